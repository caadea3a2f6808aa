#pragma once

#include "config/core/setting_store.h"
#include "controls/core/layout.h"
#include "pages/core/page_info.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace ov
{

class PageValues;

/// What shows a value on its page, which also says by what notification a
/// change is reported and whether the value is exchanged as a number or a text.
enum class ControlKind {
    None,         ///< no control of its own
    CheckBox,     ///< number, 0 or 1
    Edit,         ///< text
    DropDownList, ///< number, index of the selected entry, -1 for none
    RadioGroup,   ///< number, index of the checked button, -1 for none
    DatePicker,   ///< text, a day as "2016-05-06"
};

/// Whether a value shown by such a control is a text rather than a number.
constexpr bool ShowsText(ControlKind control)
{
    return control == ControlKind::Edit || control == ControlKind::DatePicker;
}

/// How a value of the page and the text in the store turn into one another.
/// pages/core/encoding.h has the functions behind those that do more than copy.
enum class Encoding {
    Flag,            ///< number; 1 exactly for the text "1"; written as "1" or "0"
    FlagUnlessZero,  ///< number; 0 exactly for the text "0", so 1 when absent; written as "1" or "0"
    Number,          ///< number; leading decimal integer, an empty text changes nothing; written in decimal
    AlwaysNeverUser, ///< number, index of a list; "1", "0" and "-1" in this order, what is neither 1 nor 0 is
                     ///< 2
    NeverAlwaysUser, ///< number, index of a radio group; "0", "1" and "-1" in this order, empty reads as "0"
    Verbatim,        ///< text, unchanged in both directions
    VerbatimOrZero,  ///< text; an empty one reads as "0"
};

/// Whether the page holds a text, not a number, for a setting so encoded.
constexpr bool HoldsText(Encoding encoding)
{
    return encoding == Encoding::Verbatim || encoding == Encoding::VerbatimOrZero;
}

/// When a page writes a setting into the store.
enum class SaveRule {
    WhenShownOrAbsent, ///< the rule of all pages: an unseen page keeps what the file says
    OnlyWhenShown,     ///< an unseen page does not even add the setting when it is absent
    Never,             ///< shown, or kept for others to see, but never written
};

/// One setting of a page. All the base page does with a setting (load, save,
/// exchange, help, comment, mark as modified) follows from its row.
struct SettingRow {
    const char16_t* variable;
    SettingKind kind;
    Encoding encoding;
    ControlKind control;
    int controlId;          ///< for a radio group its first button; 0 when there is no control
    unsigned helpId;        ///< string id of the control's help text; 0 for none
    unsigned commentHelpId; ///< string id of the help text that becomes the setting's comment in the file
    int initialNumber = 0;
    const char16_t* initialText = u"";

    // The exceptions. A row that has one says why.
    SaveRule saveRule = SaveRule::WhenShownOrAbsent;
    bool helpNamesAnotherVariable = false;
    bool changeGoesUnnoticed = false; ///< its control's change does not mark the dialog modified
    const char* reason = nullptr;

    constexpr bool HoldsText() const { return ov::HoldsText(encoding); }
    constexpr bool HasException() const
    {
        return saveRule != SaveRule::WhenShownOrAbsent || helpNamesAnotherVariable || changeGoesUnnoticed;
    }

    // The exceptions by name, for a row to be written in one expression.
    constexpr SettingRow Saved(SaveRule rule, const char* why) const
    {
        SettingRow row = *this;
        row.saveRule = rule;
        row.reason = why;
        return row;
    }
    constexpr SettingRow HelpNamesAnotherVariable(const char* why) const
    {
        SettingRow row = *this;
        row.helpNamesAnotherVariable = true;
        row.reason = why;
        return row;
    }
    constexpr SettingRow ChangeGoesUnnoticed(const char* why) const
    {
        SettingRow row = *this;
        row.changeGoesUnnoticed = true;
        row.reason = why;
        return row;
    }
    /// The comment is the help text of another control: a label, a button, a frame.
    constexpr SettingRow CommentFrom(unsigned otherHelpId) const
    {
        SettingRow row = *this;
        row.commentHelpId = otherHelpId;
        return row;
    }
};

/// A check box that edits a flag.
constexpr SettingRow FlagRow(const char16_t* variable, int controlId, unsigned helpId, bool initial = false)
{
    return {variable,  SettingKindFlag, Encoding::Flag, ControlKind::CheckBox,
            controlId, helpId,          helpId,         initial ? 1 : 0};
}

/// An edit field whose text is kept as typed.
constexpr SettingRow TextRow(const char16_t* variable, SettingKind kind, int controlId, unsigned helpId,
                             const char16_t* initial = u"")
{
    return {variable, kind, Encoding::Verbatim, ControlKind::Edit, controlId, helpId, helpId, 0, initial};
}

/// A drop-down list or a radio group whose index is the setting, in one of the
/// encodings that hold a number.
constexpr SettingRow ChoiceRow(const char16_t* variable, Encoding encoding, ControlKind control,
                               int controlId, unsigned helpId, int initial)
{
    return {variable, SettingKindInteger, encoding, control, controlId, helpId, helpId, initial};
}

/// A setting without a control; its value is kept, or computed by the page's
/// hooks. The comment is the help text `commentHelpId`.
constexpr SettingRow HiddenRow(const char16_t* variable, SettingKind kind, Encoding encoding,
                               unsigned commentHelpId, int initialNumber = 0,
                               const char16_t* initialText = u"")
{
    return {variable, kind, encoding, ControlKind::None, 0, 0, commentHelpId, initialNumber, initialText};
}

/// A control that shows what no variable holds by itself: half of a value, or
/// how to take it. The page's hooks compute it from the settings and back.
struct CompanionRow {
    ControlKind control;
    int controlId;            ///< for a radio group its first button
    const char16_t* variable; ///< the setting that it is a part of
    int initialNumber = 0;
    const char16_t* initialText = u"";
};

/// The help text of a control that edits no setting of its own.
struct HelpRow {
    int controlId;
    unsigned helpId;
};

/// What screen readers call a control that nothing around it explains in words.
struct NameRow {
    int controlId;
    unsigned stringId;
};

/// A control that follows its page's size otherwise than pages/core/page_layout.h
/// says; flags as in controls/core/layout.h.
struct LayoutRow {
    int controlId;
    std::uint32_t layoutFlags;
};

inline constexpr std::uint32_t kFixed = LayoutKeepLeft | LayoutKeepTop;
inline constexpr std::uint32_t kTopRight = LayoutKeepTop | LayoutAnchorRight;
inline constexpr std::uint32_t kStretched = LayoutKeepTop | LayoutStretchWidth;

/// The entries of a drop-down list, in order, as string ids. Where the template
/// gives the list the style of sorting, they are in the sorted order.
struct EntriesRow {
    int controlId;
    std::span<const unsigned> stringIds;
};

/// The number of a condition that asks for any text but an empty one.
inline constexpr int kAnyText = -2;

/// Holds while the control shows this number: 1 or 0 of a check box, the index
/// of a list or a radio group, kAnyText of an edit.
struct Condition {
    int controlId = 0; ///< 0 for no condition
    int number = 0;
};

constexpr Condition IsOn(int controlId)
{
    return {controlId, 1};
}
constexpr Condition IsOff(int controlId)
{
    return {controlId, 0};
}

constexpr Condition IsFilled(int controlId)
{
    return {controlId, kAnyText};
}

enum class Effect { Enable, Show };

/// A control that is enabled, or shown, exactly while all the conditions hold.
struct DependencyRow {
    int controlId;
    Effect effect;
    std::array<Condition, 3> conditions;
};

constexpr DependencyRow EnabledWhen(int controlId, Condition one, Condition two = {}, Condition three = {})
{
    return {controlId, Effect::Enable, {one, two, three}};
}
constexpr DependencyRow ShownWhen(int controlId, Condition one, Condition two = {}, Condition three = {})
{
    return {controlId, Effect::Show, {one, two, three}};
}

/// What a "..." button opens.
enum class BrowseKind {
    File,   ///< the file chooser
    Folder, ///< the folder browser
    List,   ///< the list editor
};

/// Where the keyboard focus goes when the list editor is refused.
inline constexpr int kFocusStays = 0;
inline constexpr int kFocusRemoved = -1; ///< no window keeps it

/// A "..." button and the setting, one that holds a text, that it edits.
struct BrowseRow {
    int buttonId;
    const char16_t* variable;
    BrowseKind kind;
    // Lists only, as the editor takes them.
    unsigned browsing = 0; ///< 1: the entries are files
    char16_t separator = u';';
    char16_t fieldSeparator = 0;
    std::size_t fieldCount = 1;
    int focusOnRefusal = kFocusStays; ///< a control, kFocusStays or kFocusRemoved
};

constexpr BrowseRow BrowseFile(int buttonId, const char16_t* variable)
{
    return {buttonId, variable, BrowseKind::File};
}
constexpr BrowseRow BrowseFolder(int buttonId, const char16_t* variable)
{
    return {buttonId, variable, BrowseKind::Folder};
}
/// A list of files between semicolons.
constexpr BrowseRow BrowseFiles(int buttonId, const char16_t* variable, int focusOnRefusal = kFocusStays)
{
    return {buttonId, variable, BrowseKind::List, 1, u';', 0, 1, focusOnRefusal};
}
constexpr BrowseRow BrowseList(int buttonId, const char16_t* variable, char16_t separator, int focusOnRefusal)
{
    return {buttonId, variable, BrowseKind::List, 0, separator, 0, 1, focusOnRefusal};
}
/// A list between semicolons whose entries have several fields.
constexpr BrowseRow BrowseFields(int buttonId, const char16_t* variable, unsigned browsing,
                                 char16_t fieldSeparator, std::size_t fieldCount, int focusOnRefusal)
{
    return {buttonId, variable, BrowseKind::List, browsing, u';', fieldSeparator, fieldCount, focusOnRefusal};
}

/// From this many seconds of holding an arrow on, this is the step.
struct SpinStep {
    unsigned seconds;
    unsigned increment;
};

/// 1 at once, 5 after three seconds, 10 after six.
inline constexpr SpinStep kFasterAndFaster[] = {{0, 1}, {3, 5}, {6, 10}};

/// An up-down control, the edit that it fills, its range (both ends included),
/// and its steps where they are not the system's.
struct SpinRow {
    int controlId;
    int buddyId;
    int lowest;
    int highest;
    std::span<const SpinStep> steps = {};
};

/// A track bar, from 0 to `highest`, and the setting that it edits: one that
/// holds a text.
struct BarRow {
    int controlId;
    const char16_t* variable;
    int highest;
};

/// The numbers that make sense for a setting, both ends included, where no
/// up-down control or track bar says so.
struct RangeRow {
    const char16_t* variable;
    double lowest;
    double highest;
};

/// A page as data. The hooks are for what rows cannot say; they see values and
/// no window, and are defined beside the rows.
struct PageRows {
    PageInfo info;
    std::span<const SettingRow> settings; ///< in the order of loading and saving
    std::span<const HelpRow> extraHelp = {};
    std::span<const LayoutRow> layout = {};
    std::span<const CompanionRow> companions = {};
    std::span<const EntriesRow> entries = {};
    std::span<const DependencyRow> dependencies = {};
    std::span<const BrowseRow> browses = {};
    std::span<const SpinRow> spins = {};
    std::span<const NameRow> names = {};
    std::span<const BarRow> bars = {};
    std::span<const RangeRow> ranges = {};
    std::span<const char16_t* const> olderVariables = {}; ///< only read, from files of long ago

    /// Loading reads the controls back and marks the dialog modified.
    bool loadMarksModified = false;

    /// After the settings were taken from a table: works out the companions.
    void (*afterLoad)(PageValues& values, const SettingStore& store, int table) = nullptr;

    /// When a control that dependencies name has changed, after a load, and
    /// whenever the page is shown; the dependencies apply afterwards. Returns
    /// whether the controls must show the values again.
    bool (*refresh)(PageValues& values) = nullptr;

    /// Before the settings are written: works them out from the companions.
    void (*beforeSave)(PageValues& values) = nullptr;
};

} // namespace ov

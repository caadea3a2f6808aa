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

/// The kind of control that shows a value. It also determines which notification
/// reports a change, and whether the value is exchanged as a number or a text.
enum class ControlKind {
    None,         ///< no control of its own
    CheckBox,     ///< number, 0 or 1
    Edit,         ///< text
    DropDownList, ///< number, index of the selected entry, -1 for none
    RadioGroup,   ///< number, index of the checked button, -1 for none
    DatePicker,   ///< text, a day as "2016-05-06"
};

/// True if such a control shows its value as text and not as a number.
constexpr bool ShowsText(ControlKind control)
{
    return control == ControlKind::Edit || control == ControlKind::DatePicker;
}

/// How a value of the page is converted to the text in the store and back.
/// pages/core/encoding.h has the functions for encodings that do more than copy.
enum class Encoding {
    Flag,            ///< number; 1 only for the text "1"; written as "1" or "0"
    FlagUnlessZero,  ///< number; 0 only for the text "0", so 1 when absent; written as "1" or "0"
    Number,          ///< number; leading decimal integer, unchanged by an empty text; written in decimal
    AlwaysNeverUser, ///< number, index of a list; "1", "0" and "-1" in this order; any other text
                     ///< reads as 2
    NeverAlwaysUser, ///< number, index of a radio group; "0", "1" and "-1" in this order; empty reads as "0"
    Verbatim,        ///< text, unchanged in both directions
    VerbatimOrZero,  ///< text; an empty one reads as "0"
};

/// True if the page holds a text, not a number, for a setting with this encoding.
constexpr bool HoldsText(Encoding encoding)
{
    return encoding == Encoding::Verbatim || encoding == Encoding::VerbatimOrZero;
}

/// When a page writes a setting into the store.
enum class SaveRule {
    WhenShownOrAbsent, ///< the usual rule: an unseen page keeps the file's value
    OnlyWhenShown,     ///< an unseen page does not add the setting if it is absent
    Never,             ///< shown, or kept for other code, but never written
};

/// One setting of a page. Everything that the base class does with a setting (load,
/// save, exchange, help, comment, mark as modified) is derived from its row.
struct SettingRow {
    const char16_t* variable;
    SettingKind kind;
    Encoding encoding;
    ControlKind control;
    int controlId;          ///< for a radio group its first button; 0 if there is no control
    unsigned helpId;        ///< string id of the control's help text; 0 for none
    unsigned commentHelpId; ///< string id of the help text that becomes the setting's comment in the file
    int initialNumber = 0;
    const char16_t* initialText = u"";

    // Exceptions from the rules. A row that sets one gives the reason.
    SaveRule saveRule = SaveRule::WhenShownOrAbsent;
    bool helpNamesAnotherVariable = false;
    bool changeGoesUnnoticed = false; ///< a change of its control does not mark the dialog as modified
    const char* reason = nullptr;

    constexpr bool HoldsText() const { return ov::HoldsText(encoding); }
    constexpr bool HasException() const
    {
        return saveRule != SaveRule::WhenShownOrAbsent || helpNamesAnotherVariable || changeGoesUnnoticed;
    }

    // Setters for the exceptions, so that a row can be written as one expression.
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
    /// Takes the comment from the help text of another control: a label, a button or a frame.
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

/// An edit whose text is stored as typed.
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

/// A setting without a control. Its value is kept, or computed by the page's
/// hooks. `commentHelpId` is the help text for its comment.
constexpr SettingRow HiddenRow(const char16_t* variable, SettingKind kind, Encoding encoding,
                               unsigned commentHelpId, int initialNumber = 0,
                               const char16_t* initialText = u"")
{
    return {variable, kind, encoding, ControlKind::None, 0, 0, commentHelpId, initialNumber, initialText};
}

/// A control whose value is not a variable of its own: a part of a variable, or an
/// option for reading it. The page's hooks convert between it and the settings.
struct CompanionRow {
    ControlKind control;
    int controlId;            ///< for a radio group its first button
    const char16_t* variable; ///< the setting that it belongs to
    int initialNumber = 0;
    const char16_t* initialText = u"";
};

/// The help text of a control that edits no setting of its own.
struct HelpRow {
    int controlId;
    unsigned helpId;
};

/// The accessible name of a control that has no describing text near it.
struct NameRow {
    int controlId;
    unsigned stringId;
};

/// A control that does not follow its page's size by the rule in
/// pages/core/page_layout.h. The flags are those of controls/core/layout.h.
struct LayoutRow {
    int controlId;
    std::uint32_t layoutFlags;
};

inline constexpr std::uint32_t kFixed = LayoutKeepLeft | LayoutKeepTop;
inline constexpr std::uint32_t kTopRight = LayoutKeepTop | LayoutAnchorRight;
inline constexpr std::uint32_t kStretched = LayoutKeepTop | LayoutStretchWidth;

/// The entries of a drop-down list, in order, as string ids. If the template gives
/// the list the sorting style, the entries must be in sorted order.
struct EntriesRow {
    int controlId;
    std::span<const unsigned> stringIds;
};

/// In a condition: any text that is not empty.
inline constexpr int kAnyText = -2;

/// Holds if the control shows this number: 1 or 0 for a check box, the index
/// for a list or a radio group, kAnyText for an edit.
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

/// A control that is enabled, or shown, only while all the conditions hold.
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

/// Where the keyboard focus goes if the list editor refuses to open.
inline constexpr int kFocusStays = 0;
inline constexpr int kFocusRemoved = -1; ///< no control has the focus

/// A "..." button and the text setting that it edits.
struct BrowseRow {
    int buttonId;
    const char16_t* variable;
    BrowseKind kind;
    // For lists only: the arguments of the list editor.
    unsigned browsing = 0; ///< 1: the entries are files
    char16_t separator = u';';
    char16_t fieldSeparator = 0;
    std::size_t fieldCount = 1;
    int focusOnRefusal = kFocusStays; ///< id of a control, kFocusStays or kFocusRemoved
};

constexpr BrowseRow BrowseFile(int buttonId, const char16_t* variable)
{
    return {buttonId, variable, BrowseKind::File};
}
constexpr BrowseRow BrowseFolder(int buttonId, const char16_t* variable)
{
    return {buttonId, variable, BrowseKind::Folder};
}
/// A list of files separated by semicolons.
constexpr BrowseRow BrowseFiles(int buttonId, const char16_t* variable, int focusOnRefusal = kFocusStays)
{
    return {buttonId, variable, BrowseKind::List, 1, u';', 0, 1, focusOnRefusal};
}
constexpr BrowseRow BrowseList(int buttonId, const char16_t* variable, char16_t separator, int focusOnRefusal)
{
    return {buttonId, variable, BrowseKind::List, 0, separator, 0, 1, focusOnRefusal};
}
/// A list separated by semicolons, with several fields per entry.
constexpr BrowseRow BrowseFields(int buttonId, const char16_t* variable, unsigned browsing,
                                 char16_t fieldSeparator, std::size_t fieldCount, int focusOnRefusal)
{
    return {buttonId, variable, BrowseKind::List, browsing, u';', fieldSeparator, fieldCount, focusOnRefusal};
}

/// The step that applies after an arrow was held for this many seconds.
struct SpinStep {
    unsigned seconds;
    unsigned increment;
};

/// 1 at once, 5 after three seconds, 10 after six.
inline constexpr SpinStep kFasterAndFaster[] = {{0, 1}, {3, 5}, {6, 10}};

/// An up-down control, its edit, its range (both ends included),
/// and its steps if they differ from the system's.
struct SpinRow {
    int controlId;
    int buddyId;
    int lowest;
    int highest;
    std::span<const SpinStep> steps = {};
};

/// A track bar with the range 0 to `highest`, and the text setting that
/// it edits.
struct BarRow {
    int controlId;
    const char16_t* variable;
    int highest;
};

/// The valid numbers of a setting, both ends included, if no up-down control or
/// track bar limits them.
struct RangeRow {
    const char16_t* variable;
    double lowest;
    double highest;
};

/// A page as data. The hooks implement what rows cannot express; they access values
/// but no windows, and are defined beside the rows.
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
    std::span<const char16_t* const> olderVariables = {}; ///< only read, from files of earlier versions

    /// Loading reads the controls back and marks the dialog as modified.
    bool loadMarksModified = false;

    /// Called after the settings were loaded from a table: computes the companions.
    void (*afterLoad)(PageValues& values, const SettingStore& store, TableSelector table) = nullptr;

    /// Called when a control that dependencies name has changed, after a load, and
    /// whenever the page is shown; the dependencies are applied afterwards. Returns
    /// true if the controls must show the values again.
    bool (*refresh)(PageValues& values) = nullptr;

    /// Called before the settings are written: computes them from the companions.
    void (*beforeSave)(PageValues& values) = nullptr;
};

} // namespace ov

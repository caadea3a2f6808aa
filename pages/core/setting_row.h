#pragma once

#include "config/core/setting_store.h"

#include <cstdint>
#include <span>

namespace ov
{

/// What shows a setting on its page, which also says by what notification a
/// change is reported and whether the value is exchanged as a number or a text.
enum class ControlKind {
    None,         ///< no control of its own
    CheckBox,     ///< number, 0 or 1
    Edit,         ///< text
    DropDownList, ///< number, index of the selected entry, -1 for none
    RadioGroup,   ///< number, index of the checked button, -1 for none
};

/// How a value of the page and the text in the store turn into one another.
enum class Encoding {
    Flag,     ///< number; 1 exactly for the text "1"; written as "1" or "0"
    Number,   ///< number; leading decimal integer, an empty text changes nothing; written in decimal
    Verbatim, ///< text, unchanged in both directions
};

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
    int controlId;        ///< for a radio group its first button; 0 when there is no control
    int commentControlId; ///< the control whose help becomes the setting's comment in the file
    unsigned helpId;      ///< string id of the control's help text; 0 for none
    int initialNumber = 0;
    const char16_t* initialText = u"";

    // The exceptions. A row that has one says why.
    SaveRule saveRule = SaveRule::WhenShownOrAbsent;
    bool helpNamesAnotherVariable = false;
    const char* reason = nullptr;

    constexpr bool HoldsText() const { return encoding == Encoding::Verbatim; }
    constexpr bool HasException() const
    {
        return saveRule != SaveRule::WhenShownOrAbsent || helpNamesAnotherVariable;
    }
};

/// A check box that edits a flag.
constexpr SettingRow FlagRow(const char16_t* variable, int controlId, unsigned helpId, bool initial = false)
{
    return {variable,  SettingKindFlag, Encoding::Flag, ControlKind::CheckBox,
            controlId, controlId,       helpId,         initial ? 1 : 0};
}

/// An edit field whose text is kept as typed.
constexpr SettingRow TextRow(const char16_t* variable, SettingKind kind, int controlId, unsigned helpId,
                             const char16_t* initial = u"")
{
    return {variable, kind, Encoding::Verbatim, ControlKind::Edit, controlId, controlId, helpId, 0, initial};
}

/// The help text of a control that edits no setting of its own.
struct HelpRow {
    int controlId;
    unsigned helpId;
};

/// How a control follows its page's size; flags as in controls/core/layout.h.
struct LayoutRow {
    int controlId;
    std::uint32_t layoutFlags;
};

/// A page as data.
struct PageRows {
    int pageId;
    std::span<const SettingRow> settings; ///< in the order of loading and saving
    std::span<const HelpRow> extraHelp;
    std::span<const LayoutRow> layout;
};

} // namespace ov

#pragma once

#include "base/text.h"
#include "controls/core/list_text.h"
#include "pages/core/setting_row.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace ov
{

/// A setting and its page.
struct SettingPlace {
    const PageRows* page;
    const SettingRow* row;
};

/// Every setting of every page, page by page in the order of saving.
std::span<const SettingPlace> AllSettings();

/// The setting stored in the variable; null if no page has it.
const SettingPlace* FindSetting(TextView variable);

/// The same for a name in the bytes of a file in any encoding that includes ASCII.
const SettingPlace* FindSetting(std::string_view variable);

/// The page that reads the variable in files of earlier versions and never writes it; null when there
/// is none.
const PageRows* PageOfOlderVariable(TextView variable);

/// The name of a setting, or of an older variable, that differs from the given one in case only,
/// or in one or two letters. Nothing if there is none; the nearest one of several.
std::optional<Text> SimilarVariable(TextView variable);

/// A quick check of a name in the bytes of a file: false if it is certainly neither a known name nor
/// similar to one.
bool MayBeSimilar(std::string_view variable);

/// The valid numbers of a setting's control, both ends included.
struct NumberRange {
    double lowest;
    double highest;
};

/// The range of the setting's up-down control or track bar, or the one in its RangeRow.
std::optional<NumberRange> RangeOf(const SettingPlace& place);

/// The "..." button that edits the setting's text; null if there is none.
const BrowseRow* BrowseOf(const SettingPlace& place);

/// The format in which the list editor reads the setting; nothing if it does not edit it.
std::optional<ListFormat> ListFormatOf(const SettingPlace& place);

/// The setting of a control: its own control, a companion or a "..." button;
/// null if it belongs to none.
const char16_t* VariableOfControl(const PageRows& page, int controlId);

/// A choice in a list or in a group of radio buttons.
struct Choice {
    Text value;   ///< as stored in the file
    Text caption; ///< as shown to the user
};

/// The choices of the setting, in order. Empty if it is not a choice. `place` must be an element of
/// AllSettings.
std::span<const Choice> ChoicesOf(const SettingPlace& place);

/// What must be true for the condition to hold: '"Check For Title Block" is on'.
Text DescribeCondition(const PageRows& page, const Condition& condition);

} // namespace ov

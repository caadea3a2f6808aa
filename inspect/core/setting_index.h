#pragma once

#include "base/text.h"
#include "controls/core/list_text.h"
#include "pages/core/setting_row.h"

#include <optional>
#include <span>
#include <vector>

namespace ov
{

/// A setting and the page that has it.
struct SettingPlace {
    const PageRows* page;
    const SettingRow* row;
};

/// Every setting of every page, page by page in the order in which they are saved.
std::span<const SettingPlace> AllSettings();

/// The setting that is stored in the variable; null when no page has it.
const SettingPlace* FindSetting(TextView variable);

/// Whether a page reads the variable in files of long ago and never writes it.
bool IsOlderVariable(TextView variable);

/// The name of a setting, or of an older variable, that differs from the given one in the case
/// of letters or in one or two letters. Nothing when there is none; the nearest of several.
std::optional<Text> SimilarVariable(TextView variable);

/// The numbers that a setting's control takes, both ends included.
struct NumberRange {
    double lowest;
    double highest;
};

/// The range of the setting's up-down control or track bar, or the one that its row names.
std::optional<NumberRange> RangeOf(const SettingPlace& place);

/// The "..." button that opens the setting's text; null when there is none.
const BrowseRow* BrowseOf(const SettingPlace& place);

/// How the list editor reads the setting; nothing when it does not edit it.
std::optional<ListFormat> ListFormatOf(const SettingPlace& place);

/// The setting that the control belongs to, as its own control, a companion or a "..." button;
/// null when it belongs to none.
const char16_t* VariableOfControl(const PageRows& page, int controlId);

/// A choice of a list or group of radio buttons.
struct Choice {
    Text value;   ///< as it is stored
    Text caption; ///< as the user reads it
};

/// What the setting is chosen from, in order. Empty when it is no choice. `place` is one of
/// AllSettings.
std::span<const Choice> ChoicesOf(const SettingPlace& place);

/// What has to be the case for the condition to hold: '"Check For Title Block" is on'.
Text DescribeCondition(const PageRows& page, const Condition& condition);

} // namespace ov

#pragma once

#include "inspect/core/setting_index.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace ov
{

/// The description of a setting, derived from the pages.
struct SettingDescription {
    Text variable;
    Text page;             ///< the title of its page
    Text caption;          ///< the caption of its control; empty if it has none
    Text heading;          ///< of its help text
    Text help;             ///< the help text's description, with CR LF and tabs
    std::string_view kind; ///< "flag", "number", "choice", "list", "path" or "text"
    bool isList = false;
    ListFormat list; ///< for a list
    std::vector<Choice> choices;
    std::optional<NumberRange> range;
    std::optional<Text> initial; ///< the value before the first load; nothing if it depends on the day
    std::vector<Text> enabledBy; ///< the conditions for its control, all of which must hold
    bool isWritten = true;       ///< true if its page ever writes it
};

SettingDescription Describe(const SettingPlace& place);

/// The descriptions of all settings, by page in the order of the category pane.
std::vector<SettingDescription> DescribeAll();

/// A variable from files of earlier versions, which a page reads but never writes.
struct OlderVariable {
    Text variable;
    Text page; ///< the title of its page
};

/// The older variables, by page in the order of the category pane.
std::vector<OlderVariable> OlderVariables();

} // namespace ov

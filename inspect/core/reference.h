#pragma once

#include "inspect/core/setting_index.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace ov
{

/// All that the pages say about a setting, in words.
struct SettingDescription {
    Text variable;
    Text page;             ///< the title of its page
    Text caption;          ///< what the user reads at its control; empty when it has none
    Text heading;          ///< of its help text
    Text help;             ///< the description, with CR LF and tabs
    std::string_view kind; ///< "flag", "number", "choice", "list", "path" or "text"
    bool isList = false;
    char16_t separator = u'\0';      ///< of a list
    char16_t fieldSeparator = u'\0'; ///< between the fields of a list's entry; 0 without fields
    std::size_t fieldCount = 1;      ///< of a list's entry
    std::vector<Choice> choices;
    std::optional<NumberRange> range;
    std::optional<Text> initial; ///< before the first load; nothing when it depends on the day
    std::vector<Text> enabledBy; ///< conditions that all have to hold
    bool isWritten = true;       ///< whether its page ever writes it
};

SettingDescription Describe(const SettingPlace& place);

/// The descriptions of all settings, by page in the order of the category list.
std::vector<SettingDescription> DescribeAll();

/// A variable that a page reads in files of long ago and never writes.
struct OlderVariable {
    Text variable;
    Text page; ///< the title of its page
};

/// The older variables, by page in the order of the category list.
std::vector<OlderVariable> OlderVariables();

} // namespace ov

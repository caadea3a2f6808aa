#pragma once

#include "inspect/core/reference.h"

#include <string>
#include <utility>
#include <vector>

namespace ov::cli
{

/// Consecutive lines of a help text: prose, or an example, which the help text sets in with tabs.
struct HelpBlock {
    bool isExample;
    std::vector<std::string> lines; ///< in UTF-8, without tabs at their beginning; never empty
};

/// The help text in blocks, without its blank lines.
std::vector<HelpBlock> HelpBlocks(const SettingDescription& setting);

/// What a setting may be, on one line: "0 = off, 1 = on", "1 to 10000". Empty when it may be any text.
std::string AllowedValues(const SettingDescription& setting);

/// The facts of a setting as pairs of a word and a text, without those that do not apply.
std::vector<std::pair<std::string, std::string>> SettingFacts(const SettingDescription& setting);

/// A number without trailing zeros, such as "0.75".
std::string NumberText(double number);

/// The setting as a few lines with its help text, for a terminal.
std::string SettingAsText(const SettingDescription& setting);

} // namespace ov::cli

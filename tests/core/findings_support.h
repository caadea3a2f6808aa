/// Runs the rules on files made up by tests.
#pragma once

#include "inspect/core/inspection.h"

#include <optional>
#include <string>
#include <vector>

namespace findings
{

/// The findings of the rule in the file, in order: "LINE:COLUMN", counted from 1. All other rules are off.
std::vector<std::string> PlacesOf(ov::RuleId rule, const std::string& bytes,
                                  const std::optional<std::string>& defaults = std::nullopt);

/// The same with all data of the findings.
std::vector<ov::Finding> FindingsOf(ov::RuleId rule, const std::string& bytes,
                                    const std::optional<std::string>& defaults = std::nullopt);

} // namespace findings

/// Inspects files that tests make up.
#pragma once

#include "inspect/core/inspection.h"

#include <optional>
#include <string>
#include <vector>

namespace findings
{

/// What the rule finds in the file, in order: "LINE:COLUMN", counted from 1. All other rules are off.
std::vector<std::string> PlacesOf(ov::RuleId rule, const std::string& bytes,
                                  const std::optional<std::string>& defaults = std::nullopt);

/// The same with everything that a finding says.
std::vector<ov::Finding> FindingsOf(ov::RuleId rule, const std::string& bytes,
                                    const std::optional<std::string>& defaults = std::nullopt);

} // namespace findings

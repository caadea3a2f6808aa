#pragma once

#include "match/core/wildcard_pattern.h"

namespace ov
{

/// True if the text matches the pattern. Fills a table from the ends: which suffixes of the text match
/// which suffixes of the pattern. The time is proportional to the product of both lengths; for
/// alternatives with a bar, or a star and a bracket, to their length times the square of the
/// text's. Memory is proportional to the sum of the lengths. Throws std::bad_alloc.
bool TabulateWildcards(TextView pattern, TextView text, const WildcardRules& rules);

} // namespace ov

#pragma once

#include "match/core/wildcard_pattern.h"

namespace ov
{

/// Whether the text fits the template, from a table of which rests of the text fit which rests of
/// the template, filled from their ends. Time grows with the product of both lengths, for
/// alternatives with a bar, or a star and a bracket, with their length times the square of the
/// text's; memory grows with the sum. Throws std::bad_alloc when memory runs out.
bool TabulateWildcards(TextView pattern, TextView text, const WildcardRules& rules);

} // namespace ov

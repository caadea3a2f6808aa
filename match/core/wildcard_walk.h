#pragma once

#include "match/core/wildcard_pattern.h"

#include <optional>

namespace ov
{

/// Matches a text against a pattern without alternatives and bars in one walk along both that
/// backtracks to the last star only. Allocates no memory and reads no more than needed. Returns nothing
/// if the walk would need more than a few steps per character: some patterns make it scan
/// the same text many times. Both texts are null-terminated.
std::optional<bool> WalkWildcards(const char16_t* pattern, const char16_t* text, bool ranges, bool exact);

} // namespace ov

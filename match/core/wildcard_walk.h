#pragma once

#include "match/core/wildcard_pattern.h"

#include <optional>

namespace ov
{

/// Whether the text fits a template without alternatives and bars, by one walk along both that
/// returns to the last star only. Takes no memory and looks no further than it must. Nothing when
/// the walk would cost more than a few steps for each character: a template may make it go over
/// the same text many times. Both texts end with a NUL.
std::optional<bool> WalkWildcards(const char16_t* pattern, const char16_t* text, bool ranges, bool exact);

} // namespace ov

#pragma once

#include "match/core/pattern_match.h"

#include <cstddef>
#include <cstdint>
#include <limits>

namespace ov::test
{

/// The status of a comparison that was abandoned because of its cost.
inline constexpr std::uint32_t kMatchTooManyCalls = 1;
inline constexpr std::size_t kAnyNumberOfCalls = std::numeric_limits<std::size_t>::max();

/// For comparison with MatchPattern: the wildcard walk in its simplest form, rule by rule, with a recursive
/// call for each recursion, regardless of cost and depth. Supports every type except PERL and POSIX.
/// Returns kMatchTooManyCalls if it would need more than `calls` calls.
std::uint32_t LiteralMatch(std::uint32_t* match, const char16_t* pattern, const char16_t* text,
                           WildcardType type, int caseFlag, std::size_t calls = kAnyNumberOfCalls);

/// The same walk, but no call is repeated with the same arguments, because its result depends on
/// nothing else. For inputs for which the simple walk takes too long.
std::uint32_t LiteralMatchOnce(std::uint32_t* match, const char16_t* pattern, const char16_t* text,
                               WildcardType type, int caseFlag);

} // namespace ov::test

#pragma once

#include "match/core/pattern_match.h"

#include <cstddef>
#include <cstdint>
#include <limits>

namespace ov::test
{

/// The status of a comparison given up because of its cost.
inline constexpr std::uint32_t kMatchTooManyCalls = 1;
inline constexpr std::size_t kAnyNumberOfCalls = std::numeric_limits<std::size_t>::max();

/// The yardstick for MatchPattern: the wildcard walk in its plainest form, one rule after another
/// and each recursion a call of its own, with no thought of cost or depth. Every type but PERL and
/// POSIX. kMatchTooManyCalls when it would take more than `calls` calls.
std::uint32_t LiteralMatch(std::uint32_t* match, const char16_t* pattern, const char16_t* text,
                           WildcardType type, int caseFlag, std::size_t calls = kAnyNumberOfCalls);

/// The same walk, but no call is made twice with the same arguments: a call's answer depends on
/// nothing else. For inputs that take the plain walk too long.
std::uint32_t LiteralMatchOnce(std::uint32_t* match, const char16_t* pattern, const char16_t* text,
                               WildcardType type, int caseFlag);

} // namespace ov::test

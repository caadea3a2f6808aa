#pragma once

#include "base/text.h"
#include "match/core/match_status.h"

#include <cstdint>

namespace ov
{

/// How a pattern is interpreted; the value of `_ORTHOVAL_WILDCARD_TYPE`. Codes above POSIX count as
/// subsets. A negative code matches an empty text only.
enum WildcardType : std::int32_t {
    WildcardTypeNone = 0,    ///< Matches the text itself only.
    WildcardTypeDos = 1,     ///< "?" for one character, "*" for any number.
    WildcardTypeRanges = 2,  ///< As DOS, plus "[ABC]", "[A-Z]" and "[^A-Z]".
    WildcardTypeSubsets = 3, ///< As ranges, plus "|" for no or one character and "[ABC,DEF]".
    WildcardTypePerl = 4,    ///< A Perl-compatible regular expression that may match anywhere.
    WildcardTypePosix = 5,   ///< Not evaluated: the match fails.
};

/// Sets `match` to 1 if the text matches the pattern and to 0 if it does not, and returns
/// kMatchDone. A case flag of 0 ignores case: of a to z only, in regular
/// expressions of all letters. Returns kMatchFailed, with `match` unspecified, if an argument is null,
/// if memory runs out, for a regular expression that is invalid or exceeds one of PCRE2's
/// limits, and for POSIX. A text equal to the pattern matches it under every type.
std::uint32_t MatchPattern(std::uint32_t* match, const char16_t* pattern, const char16_t* text,
                           WildcardType type, int caseFlag);

} // namespace ov

#pragma once

#include "base/text.h"
#include "match/core/match_status.h"

#include <cstdint>

namespace ov
{

/// How a template is read; the value of `_ORTHOVAL_WILDCARD_TYPE`. Codes above POSIX are read as
/// subsets. A negative code fits an empty text only.
enum WildcardType : std::int32_t {
    WildcardTypeNone = 0,    ///< The text itself.
    WildcardTypeDos = 1,     ///< "?" for one character, "*" for any number.
    WildcardTypeRanges = 2,  ///< As DOS, with "[ABC]", "[A-Z]" and "[^A-Z]".
    WildcardTypeSubsets = 3, ///< As ranges, with "|" for no or one character and "[ABC,DEF]".
    WildcardTypePerl = 4,    ///< A Perl-compatible regular expression that may fit anywhere.
    WildcardTypePosix = 5,   ///< Not evaluated: the match fails.
};

/// Sets `match` to 1 when the text fits the template, to 0 when it does not, and gives
/// kMatchDone. A case flag of zero compares without regard to case: of a to z only, in regular
/// expressions of all letters. kMatchFailed, with `match` of no meaning, when an argument is null,
/// when memory runs out, for a regular expression that is not valid or takes PCRE2 to one of its
/// limits, and for POSIX. A text equal to the template fits it under every type.
std::uint32_t MatchPattern(std::uint32_t* match, const char16_t* pattern, const char16_t* text,
                           WildcardType type, int caseFlag);

} // namespace ov

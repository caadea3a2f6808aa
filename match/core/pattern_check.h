#pragma once

#include "base/text.h"
#include "match/core/pattern_match.h"

#include <cstddef>
#include <optional>
#include <string>

namespace ov
{

/// Why a pattern does not compile.
struct PatternError {
    std::string message;  ///< PCRE2's message, in English
    std::size_t position; ///< of the error: the number of characters before it
};

/// Checks a pattern of that type. Returns nothing if it is valid or needs no compilation: only
/// regular expressions of type Perl are compiled.
std::optional<PatternError> CheckPattern(TextView pattern, WildcardType type);

} // namespace ov

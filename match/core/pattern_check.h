#pragma once

#include "base/text.h"
#include "match/core/pattern_match.h"

#include <cstddef>
#include <optional>
#include <string>

namespace ov
{

/// Why a template does not compile.
struct PatternError {
    std::string message;  ///< PCRE2's, in English
    std::size_t position; ///< of the error: the number of characters before it
};

/// What is wrong with a template of that type. Nothing when there is nothing to compile: only
/// regular expressions of type Perl are compiled.
std::optional<PatternError> CheckPattern(TextView pattern, WildcardType type);

} // namespace ov

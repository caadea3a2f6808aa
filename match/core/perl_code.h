#pragma once

#include "base/text.h"

#include <cstddef>
#include <memory>

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

namespace ov
{

struct ReleasePerlCode {
    void operator()(pcre2_code* code) const { pcre2_code_free(code); }
};

/// What came of compiling a Perl-compatible regular expression.
struct PerlCode {
    std::unique_ptr<pcre2_code, ReleasePerlCode> code; ///< null when it does not compile
    int error = 0;                                     ///< PCRE2's number of the error then
    std::size_t offset = 0;                            ///< and its place, in bytes of UTF-8
};

/// Compiles an expression, up to its first NUL, which compares with regard to case when `exact`.
PerlCode CompilePerl(TextView pattern, bool exact);

} // namespace ov

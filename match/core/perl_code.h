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

/// The result of compiling a Perl-compatible regular expression.
struct PerlCode {
    std::unique_ptr<pcre2_code, ReleasePerlCode> code; ///< null if it does not compile
    int error = 0;                                     ///< PCRE2's error number in that case
    std::size_t offset = 0;                            ///< and the error's offset, in bytes of UTF-8
};

/// Compiles an expression, up to its first NUL. It is case-sensitive if `exact`.
PerlCode CompilePerl(TextView pattern, bool exact);

} // namespace ov

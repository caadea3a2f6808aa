#include "match/core/perl_code.h"

#include <string>

namespace ov
{

PerlCode CompilePerl(TextView pattern, bool exact)
{
    const std::string expression = Utf8FromText(pattern);
    PerlCode result;
    result.code.reset(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(expression.c_str()), PCRE2_ZERO_TERMINATED,
                                    PCRE2_UTF | (exact ? 0 : PCRE2_CASELESS), &result.error, &result.offset,
                                    nullptr));
    return result;
}

} // namespace ov

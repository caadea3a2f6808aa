#include "match/core/pattern_check.h"

#include "base/utf8.h"
#include "match/core/perl_code.h"

#include <algorithm>
#include <string>

namespace ov
{
namespace
{
std::string MessageOf(int error)
{
    PCRE2_UCHAR message[256];
    const int length = pcre2_get_error_message(error, message, sizeof message);
    if (length < 0)
        return "error " + std::to_string(error);
    return {reinterpret_cast<const char*>(message), static_cast<std::size_t>(length)};
}

std::size_t CharactersBefore(std::string_view bytes, std::size_t offset)
{
    bytes = bytes.substr(0, offset);
    std::size_t count = 0;
    for (; !bytes.empty(); ++count)
        bytes.remove_prefix(ReadUtf8(bytes).length);
    return count;
}
} // namespace

std::optional<PatternError> CheckPattern(TextView pattern, WildcardType type)
{
    if (type != WildcardTypePerl)
        return std::nullopt;
    const PerlCode compiled = CompilePerl(pattern, false);
    if (compiled.code != nullptr)
        return std::nullopt;
    return PatternError{MessageOf(compiled.error), CharactersBefore(Utf8FromText(pattern), compiled.offset)};
}

} // namespace ov

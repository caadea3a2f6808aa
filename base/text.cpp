#include "base/text.h"

#include "base/utf8.h"

#include <cstdint>
#include <limits>

namespace ov
{

TextView Trim(TextView text)
{
    while (!text.empty() && IsWhiteSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsWhiteSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

int ToInteger(TextView text)
{
    while (!text.empty() && IsWhiteSpace(text.front()))
        text.remove_prefix(1);
    bool negative = false;
    if (!text.empty() && (text.front() == u'-' || text.front() == u'+')) {
        negative = text.front() == u'-';
        text.remove_prefix(1);
    }
    constexpr std::int64_t kHighest = std::numeric_limits<std::int32_t>::max();
    const std::int64_t limit = negative ? kHighest + 1 : kHighest;
    std::int64_t value = 0;
    for (const char16_t c : text) {
        if (!IsDigit(c))
            break;
        value = value * 10 + (c - u'0');
        if (value >= limit) {
            value = limit;
            break;
        }
    }
    return static_cast<int>(negative ? -value : value);
}

Text FormatInteger(int value)
{
    const std::string digits = std::to_string(value);
    return Text(digits.begin(), digits.end());
}

std::string Utf8FromText(TextView text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const CodePoint c = ReadUtf16(text.substr(i));
        AppendUtf8(bytes, c.valid ? c.value : kReplacementCharacter);
        i += c.length;
    }
    return bytes;
}

Text TextFromUtf8(std::string_view bytes)
{
    Text text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size();) {
        const CodePoint c = ReadUtf8(bytes.substr(i));
        AppendUtf16(text, c.valid ? c.value : kReplacementCharacter);
        i += c.length;
    }
    return text;
}

} // namespace ov

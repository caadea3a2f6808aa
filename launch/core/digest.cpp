#include "launch/core/digest.h"

namespace ov
{

std::uint64_t DigestOf(std::string_view bytes, std::uint64_t before)
{
    constexpr std::uint64_t kPrime = 0x100000001B3;
    for (const char c : bytes)
        before = (before ^ static_cast<unsigned char>(c)) * kPrime;
    return before;
}

Text Hexadecimal(std::uint64_t number, int digits)
{
    Text text(static_cast<std::size_t>(digits), u'0');
    for (auto digit = text.rbegin(); digit != text.rend(); ++digit, number >>= 4)
        *digit = u"0123456789abcdef"[number & 0xF];
    return text;
}

} // namespace ov

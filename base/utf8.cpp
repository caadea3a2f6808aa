#include "base/utf8.h"

namespace ov
{
namespace
{

constexpr bool IsHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool IsLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

} // namespace

CodePoint ReadUtf16(TextView text)
{
    const char32_t first = text.front();
    if (!IsHighSurrogate(first))
        return {first, 1, !IsLowSurrogate(first)};
    if (text.size() < 2 || !IsLowSurrogate(text[1]))
        return {first, 1, false};
    return {0x10000 + ((first - 0xD800) << 10) + (text[1] - char32_t{0xDC00}), 2, true};
}

CodePoint ReadUtf8(std::string_view bytes)
{
    const auto byteAt = [&](std::size_t i) {
        return static_cast<char32_t>(static_cast<unsigned char>(bytes[i]));
    };
    const char32_t first = byteAt(0);
    if (first < 0x80)
        return {first, 1, true};
    const CodePoint invalid{first, 1, false};
    std::size_t length = 0;
    char32_t lowest = 0;
    char32_t value = 0;
    if (first >= 0xC2 && first <= 0xDF) {
        length = 2;
        lowest = 0x80;
        value = first & 0x1F;
    } else if (first >= 0xE0 && first <= 0xEF) {
        length = 3;
        lowest = 0x800;
        value = first & 0x0F;
    } else if (first >= 0xF0 && first <= 0xF4) {
        length = 4;
        lowest = 0x10000;
        value = first & 0x07;
    } else {
        return invalid;
    }
    if (bytes.size() < length)
        return invalid;
    for (std::size_t i = 1; i < length; ++i) {
        const char32_t next = byteAt(i);
        if ((next & 0xC0) != 0x80)
            return invalid;
        value = (value << 6) | (next & 0x3F);
    }
    if (value < lowest || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
        return invalid;
    return {value, length, true};
}

void AppendUtf16(Text& text, char32_t character)
{
    if (character < 0x10000) {
        text.push_back(static_cast<char16_t>(character));
        return;
    }
    const char32_t rest = character - 0x10000;
    text.push_back(static_cast<char16_t>(0xD800 + (rest >> 10)));
    text.push_back(static_cast<char16_t>(0xDC00 + (rest & 0x3FF)));
}

void AppendUtf8(std::string& bytes, char32_t character)
{
    const auto append = [&bytes](char32_t byte) { bytes.push_back(static_cast<char>(byte)); };
    if (character < 0x80) {
        append(character);
        return;
    }
    if (character < 0x800) {
        append(0xC0 | (character >> 6));
    } else {
        if (character < 0x10000) {
            append(0xE0 | (character >> 12));
        } else {
            append(0xF0 | (character >> 18));
            append(0x80 | ((character >> 12) & 0x3F));
        }
        append(0x80 | ((character >> 6) & 0x3F));
    }
    append(0x80 | (character & 0x3F));
}

} // namespace ov

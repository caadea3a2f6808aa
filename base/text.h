#pragma once

#include <string>
#include <string_view>

namespace ov
{

/// The text type in memory: 16-bit Unicode units, on every platform.
/// Texts are compared and ordered by their units, never by a locale.
using Text = std::u16string;
using TextView = std::u16string_view;

/// True for the white space that trimming removes: blank, "\t", "\n", "\v", "\f" and "\r".
constexpr bool IsWhiteSpace(char16_t c)
{
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}

/// True for the decimal digits 0 to 9 of ASCII.
constexpr bool IsDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

/// Converts a to z to upper case and returns every other unit unchanged.
constexpr char16_t ToUpperAscii(char16_t c)
{
    return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - u'a' + u'A') : c;
}

/// The text without leading and trailing white space.
/// The result points into the given text.
TextView Trim(TextView text);

/// The decimal integer at the beginning of the text: white space, an optional sign, digits.
/// Returns 0 if there are no digits. Values out of range are clamped to 32 bits.
int ToInteger(TextView text);

/// The integer in decimal, with a leading "-" if negative.
Text FormatInteger(int value);

/// Converts text to UTF-8. An unpaired surrogate becomes U+FFFD.
std::string Utf8FromText(TextView text);

/// Converts UTF-8 to text. Each byte that is not part of a valid sequence becomes U+FFFD.
Text TextFromUtf8(std::string_view bytes);

} // namespace ov

#pragma once

#include <string>
#include <string_view>

namespace ov
{

/// The one text type in memory: 16-bit Unicode units, on every platform.
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

/// Upper-cases a to z and leaves every other unit as it is.
constexpr char16_t ToUpperAscii(char16_t c)
{
    return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - u'a' + u'A') : c;
}

/// The part of the text between its first and its last character that is not white space.
/// The result points into the given text.
TextView Trim(TextView text);

/// The decimal integer that the text begins with: white space, an optional sign, digits.
/// 0 when there are no digits; held at the limits of a 32-bit integer when beyond them.
int ToInteger(TextView text);

/// The integer in decimal digits, with a leading "-" when negative.
Text FormatInteger(int value);

/// The text in UTF-8; half of a surrogate pair standing alone becomes U+FFFD.
std::string Utf8FromText(TextView text);

/// The text of UTF-8 bytes; each byte that belongs to no valid sequence becomes U+FFFD.
Text TextFromUtf8(std::string_view bytes);

} // namespace ov

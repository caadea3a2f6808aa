#pragma once

#include "base/text.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ov
{

/// Replaces an invalid unit or byte.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

/// One character read from the front of a text.
struct CodePoint {
    char32_t value;     ///< The character. If invalid, the unit or byte itself.
    std::size_t length; ///< Units or bytes consumed, at least 1.
    bool valid;         ///< False for an unpaired surrogate or a byte outside any valid sequence.
};

/// Reads the first character of a text, which must not be empty.
CodePoint ReadUtf16(TextView text);

/// Reads the first character of UTF-8 bytes, which must not be empty. Over-long forms, surrogates
/// and values above U+10FFFF are invalid. An invalid byte is consumed alone.
CodePoint ReadUtf8(std::string_view bytes);

/// Appends a character (at most U+10FFFF) as one or two units.
void AppendUtf16(Text& text, char32_t character);

/// Appends a character (at most U+10FFFF) as one to four bytes.
void AppendUtf8(std::string& bytes, char32_t character);

} // namespace ov

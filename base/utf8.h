#pragma once

#include "base/text.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ov
{

/// The replacement for something that is no character.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

/// One character read from the front of a text.
struct CodePoint {
    char32_t value;     ///< The character; for an invalid one the unit or byte itself.
    std::size_t length; ///< Units or bytes taken, at least 1.
    bool valid;         ///< False for half a surrogate pair or a byte outside any valid sequence.
};

/// The first character of a text that is not empty.
CodePoint ReadUtf16(TextView text);

/// The first character of UTF-8 bytes that are not empty. Over-long forms, surrogates and
/// values beyond U+10FFFF are invalid; an invalid byte is taken alone.
CodePoint ReadUtf8(std::string_view bytes);

/// Appends a character (at most U+10FFFF) as one or two units.
void AppendUtf16(Text& text, char32_t character);

/// Appends a character (at most U+10FFFF) as one to four bytes.
void AppendUtf8(std::string& bytes, char32_t character);

} // namespace ov

#pragma once

#include "base/text.h"

#include <array>
#include <cstddef>
#include <ctime>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ov
{

/// Which encoding the bytes of a file are in.
enum class Charset {
    OfProcess,   ///< The encoding of the C locale that is set at the time of the conversion.
    Utf8,        ///< UTF-8, on every platform and in every locale.
    Windows1252, ///< Windows code page 1252, on every platform. As in Windows, the five bytes that it
                 ///< leaves undefined are the control characters of the same number.
};

/// The encoding that a file's bytes appear to be in: UTF-8 when they are valid UTF-8 and at least one
/// of them is no ASCII character, else Windows-1252.
Charset DetectCharset(std::string_view bytes);

/// How the process's C locale spells characters as bytes.
enum class LocaleCoding {
    Identity,   ///< The "C" locale: byte b is U+00b, on every platform.
    SingleByte, ///< A code page of 256 characters.
    Utf8,
    MultiByte, ///< Any other encoding of several bytes a character.
};

/// The characters of the 256 bytes of a single-byte code page.
using ByteTable = std::array<char16_t, 256>;

/// Turns bytes into text by a given encoding, or by the C locale that is set when the decoder is made.
///
/// Nothing is lost: a byte that means no character in the encoding becomes the lone
/// surrogate U+DC00 + byte, which LocaleEncoder turns back into that byte. Every text
/// of single bytes therefore survives decoding and encoding, and so does UTF-8, valid or not.
class LocaleDecoder
{
  public:
    explicit LocaleDecoder(Charset charset = Charset::OfProcess);

    /// Appends the text of the bytes, which must not end inside a character.
    void Append(std::string_view bytes, Text& text) const;

    /// True when the text of the bytes is known to have a unit of the same value for each byte.
    bool IsPlain(std::string_view bytes) const;

  private:
    LocaleCoding m_coding;
    bool m_plainAscii;
    ByteTable m_table{};
};

/// The result of an encoding.
struct EncodeResult {
    bool ok;              ///< False when a character cannot be written in the locale.
    std::size_t position; ///< Index of the first character that cannot be written.

    explicit operator bool() const { return ok; }
};

/// Turns text into bytes by a given encoding, or by the C locale that is set when the encoder is made.
///
/// No character is replaced by a similar one: what the encoding lacks is refused.
class LocaleEncoder
{
  public:
    explicit LocaleEncoder(Charset charset = Charset::OfProcess);

    /// Appends the bytes of the text. On failure the bytes are left as they were.
    EncodeResult Append(TextView text, std::string& bytes) const;

    /// True when units of these values are known to be written as these very bytes.
    bool IsPlain(std::string_view units) const;

  private:
    LocaleCoding m_coding;
    bool m_plainAscii;
    std::array<char16_t, 256> m_low{};                        ///< Byte of each unit below 256, or kNoByte.
    std::vector<std::pair<char16_t, unsigned char>> m_others; ///< Bytes of all other units, in unit order.
};

/// The text of the bytes in the process's C locale; see LocaleDecoder.
Text DecodeLocale(std::string_view bytes);

/// Sets `bytes` to the text in the process's C locale, to nothing on failure; see LocaleEncoder.
EncodeResult EncodeLocale(TextView text, std::string& bytes);

/// The time in the locale's words, by a strftime pattern of ASCII characters. Empty when the
/// result and its terminator need more than `capacity` characters.
Text FormatTime(const char* pattern, const std::tm& time, std::size_t capacity);

} // namespace ov

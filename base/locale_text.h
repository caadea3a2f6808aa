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

/// The encoding of a file's bytes.
enum class Charset {
    OfProcess,   ///< The encoding of the C locale that is set at the time of the conversion.
    Utf8,        ///< UTF-8, on every platform and in every locale.
    Windows1252, ///< Windows code page 1252, on every platform. As in Windows, the five bytes that it
                 ///< leaves undefined are the control characters with the same number.
};

/// The encoding that a file's bytes appear to use: UTF-8 if they are valid UTF-8 and at least one
/// of them is not ASCII, otherwise Windows-1252.
Charset DetectCharset(std::string_view bytes);

/// How the C locale of the process encodes characters.
enum class LocaleCoding {
    Identity,   ///< The "C" locale: byte b is U+00b, on every platform.
    SingleByte, ///< A code page of 256 characters.
    Utf8,
    MultiByte, ///< Any other encoding with several bytes per character.
};

/// The characters of the 256 bytes of a single-byte code page.
using ByteTable = std::array<char16_t, 256>;

/// Converts bytes to text, in a given encoding or in the C locale set when the decoder is constructed.
///
/// Decoding is lossless: a byte that is invalid in the encoding becomes the lone
/// surrogate U+DC00 + byte, and LocaleEncoder converts that back into the byte. Single-byte
/// text therefore survives decoding and encoding, and so does UTF-8, valid or not.
class LocaleDecoder
{
  public:
    explicit LocaleDecoder(Charset charset = Charset::OfProcess);

    /// Appends the decoded bytes to `text`. The bytes must not end inside a character.
    void Append(std::string_view bytes, Text& text) const;

    /// True if each byte is known to decode to one unit with the same value.
    bool IsPlain(std::string_view bytes) const;

  private:
    LocaleCoding m_coding;
    bool m_plainAscii;
    ByteTable m_table{};
};

/// The result of an encoding.
struct EncodeResult {
    bool ok;              ///< False if the locale cannot represent a character.
    std::size_t position; ///< Index of the first character that the locale cannot represent.

    explicit operator bool() const { return ok; }
};

/// Converts text to bytes, in a given encoding or in the C locale set when the encoder is constructed.
///
/// No character is replaced by a similar one: Append fails if the encoding lacks a character.
class LocaleEncoder
{
  public:
    explicit LocaleEncoder(Charset charset = Charset::OfProcess);

    /// Appends the encoded text to `bytes`. On failure `bytes` is unchanged.
    EncodeResult Append(TextView text, std::string& bytes) const;

    /// True if each of these units is known to be encoded as one byte with the same value.
    bool IsPlain(std::string_view units) const;

  private:
    LocaleCoding m_coding;
    bool m_plainAscii;
    std::array<char16_t, 256> m_low{};                        ///< Byte of each unit below 256, or kNoByte.
    std::vector<std::pair<char16_t, unsigned char>> m_others; ///< Bytes of all other units, in unit order.
};

/// Decodes bytes in the C locale of the process; see LocaleDecoder.
Text DecodeLocale(std::string_view bytes);

/// Sets `bytes` to the text encoded in the C locale, or to "" on failure; see LocaleEncoder.
EncodeResult EncodeLocale(TextView text, std::string& bytes);

/// Formats the time in the current C locale. `pattern` is a strftime pattern in ASCII. The result is empty
/// if it would need more than `capacity` characters, terminator included.
Text FormatTime(const char* pattern, const std::tm& time, std::size_t capacity);

} // namespace ov

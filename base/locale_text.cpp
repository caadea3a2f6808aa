#include "base/locale_text.h"

#include "base/utf8.h"

#include <algorithm>
#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <cwchar>

namespace ov
{
namespace
{

// A byte that is invalid in the locale becomes a lone surrogate, which no locale can encode.
constexpr char16_t kEscapeBase = 0xDC00;
constexpr char16_t kNoByte = 0xFFFF;

constexpr char16_t EscapeOf(unsigned char byte)
{
    return static_cast<char16_t>(kEscapeBase + byte);
}

constexpr bool IsEscape(char32_t unit)
{
    return unit >= kEscapeBase + 0x80u && unit <= kEscapeBase + 0xFFu;
}

// The characters of bytes 0x80 to 0x9F in Windows code page 1252. All other bytes equal their code point.
constexpr std::array<char16_t, 32> kWindows1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr ByteTable MakeWindows1252Table()
{
    ByteTable table{};
    for (std::size_t value = 0; value < table.size(); ++value)
        table[value] = static_cast<char16_t>(value);
    std::copy(kWindows1252.begin(), kWindows1252.end(), table.begin() + 0x80);
    return table;
}

LocaleCoding LocaleCodingNow()
{
    const char* name = std::setlocale(LC_CTYPE, nullptr);
    if (name == nullptr || std::strcmp(name, "C") == 0 || std::strcmp(name, "POSIX") == 0)
        return LocaleCoding::Identity;
    if (MB_CUR_MAX == 1)
        return LocaleCoding::SingleByte;
    // Only UTF-8 encodes the euro sign as these three bytes. UTF-8 is converted in this file because
    // the C runtimes differ for characters above U+FFFF.
    std::mbtowc(nullptr, nullptr, 0);
    wchar_t euro = 0;
    if (std::mbtowc(&euro, "\xE2\x82\xAC", 3) == 3 && euro == 0x20AC)
        return LocaleCoding::Utf8;
    return LocaleCoding::MultiByte;
}

LocaleCoding CodingOf(Charset charset)
{
    switch (charset) {
    case Charset::Utf8:
        return LocaleCoding::Utf8;
    case Charset::Windows1252:
        return LocaleCoding::SingleByte;
    case Charset::OfProcess:
        break;
    }
    return LocaleCodingNow();
}

// The number of leading ASCII bytes.
std::size_t AsciiLength(std::string_view bytes)
{
    std::size_t length = 0;
    for (std::uint64_t eight = 0; length + sizeof(eight) <= bytes.size(); length += sizeof(eight)) {
        std::memcpy(&eight, bytes.data() + length, sizeof(eight));
        if ((eight & 0x8080808080808080U) != 0)
            break;
    }
    while (length < bytes.size() && static_cast<unsigned char>(bytes[length]) < 0x80)
        ++length;
    return length;
}

// True if the locale encodes every ASCII character as the byte with the same value. Some multi-byte
// encodings have another character at the code of the backslash or the tilde.
bool SpellsAsciiPlainly(LocaleCoding coding)
{
    if (coding == LocaleCoding::Identity || coding == LocaleCoding::Utf8)
        return true;
    std::mbtowc(nullptr, nullptr, 0);
    for (wchar_t unit = 1; unit < 0x80; ++unit) {
        const auto byte = static_cast<char>(unit);
        wchar_t character = 0;
        if (std::mbtowc(&character, &byte, 1) != 1 || character != unit)
            return false;
    }
    return true;
}

ByteTable SingleByteTable(Charset charset)
{
    if (charset == Charset::Windows1252)
        return MakeWindows1252Table();
    std::mbtowc(nullptr, nullptr, 0);
    ByteTable table{};
    for (unsigned value = 0; value < table.size(); ++value) {
        const auto byte = static_cast<char>(value);
        wchar_t character = 0;
        const bool known = std::mbtowc(&character, &byte, 1) >= 0 && character < 0xFFFF;
        const auto unit =
            known ? static_cast<char16_t>(character) : EscapeOf(static_cast<unsigned char>(value));
        const bool taken = std::find(table.begin(), table.begin() + value, unit) != table.begin() + value;
        table[value] = taken ? EscapeOf(static_cast<unsigned char>(value)) : unit;
    }
    return table;
}

void AppendWide(wchar_t character, Text& text)
{
    if constexpr (sizeof(wchar_t) == sizeof(char16_t))
        text.push_back(static_cast<char16_t>(character));
    else
        AppendUtf16(text, static_cast<char32_t>(character));
}

// The most leading bytes that one character can take. Control characters, blanks and most ASCII
// punctuation are never trail bytes, but some runtimes consume one that follows a lead byte.
std::size_t LongestCharacter(std::string_view bytes)
{
    constexpr unsigned char kLowestLaterByte = 0x30;
    const std::size_t longest = std::min(bytes.size(), static_cast<std::size_t>(MB_CUR_MAX));
    std::size_t length = 1;
    while (length < longest && static_cast<unsigned char>(bytes[length]) >= kLowestLaterByte)
        ++length;
    return length;
}

void DecodeMultiByte(std::string_view bytes, Text& text)
{
    std::mbtowc(nullptr, nullptr, 0);
    while (!bytes.empty()) {
        wchar_t character = 0;
        const int length = std::mbtowc(&character, bytes.data(), LongestCharacter(bytes));
        if (length < 0) {
            std::mbtowc(nullptr, nullptr, 0);
            text.push_back(EscapeOf(static_cast<unsigned char>(bytes.front())));
            bytes.remove_prefix(1);
            continue;
        }
        AppendWide(character, text);
        bytes.remove_prefix(length == 0 ? 1 : static_cast<std::size_t>(length));
    }
}

void AppendPlain(std::string_view bytes, Text& text)
{
    const std::size_t start = text.size();
    text.resize(start + bytes.size());
    std::transform(bytes.begin(), bytes.end(), text.data() + start,
                   [](char c) { return static_cast<unsigned char>(c); });
}

void DecodeUtf8(std::string_view bytes, Text& text)
{
    while (!bytes.empty()) {
        if (const std::size_t ascii = AsciiLength(bytes); ascii > 0) {
            AppendPlain(bytes.substr(0, ascii), text);
            bytes.remove_prefix(ascii);
            continue;
        }
        const CodePoint c = ReadUtf8(bytes);
        if (c.valid)
            AppendUtf16(text, c.value);
        else
            text.push_back(EscapeOf(static_cast<unsigned char>(bytes.front())));
        bytes.remove_prefix(c.length);
    }
}

EncodeResult EncodeUtf8(TextView text, std::string& bytes)
{
    for (std::size_t i = 0; i < text.size();) {
        if (text[i] < 0x80) {
            bytes.push_back(static_cast<char>(text[i++]));
            continue;
        }
        const CodePoint c = ReadUtf16(text.substr(i));
        if (c.valid)
            AppendUtf8(bytes, c.value);
        else if (IsEscape(c.value))
            bytes.push_back(static_cast<char>(c.value & 0xFF));
        else
            return {false, i};
        i += c.length;
    }
    return {true, text.size()};
}

// Appends one character with the C runtime. Returns false if the bytes written do not decode to the same
// character, because some runtimes substitute a similar one.
bool AppendMultiByte(wchar_t character, std::string& bytes)
{
    std::string buffer(static_cast<std::size_t>(MB_CUR_MAX), '\0');
    [[maybe_unused]] const int hasStates = std::wctomb(nullptr, 0);
    const int length = std::wctomb(buffer.data(), character);
    if (length <= 0)
        return false;
    const auto size = static_cast<std::size_t>(length);
    wchar_t back = 0;
    std::mbtowc(nullptr, nullptr, 0);
    if (std::mbtowc(&back, buffer.data(), size) < 0 || back != character)
        return false;
    bytes.append(buffer, 0, size);
    return true;
}

EncodeResult EncodeMultiByte(TextView text, std::string& bytes)
{
    for (std::size_t i = 0; i < text.size();) {
        const CodePoint c = ReadUtf16(text.substr(i));
        const bool fits = c.valid && (sizeof(wchar_t) > sizeof(char16_t) || c.value <= 0xFFFF);
        if (IsEscape(c.value))
            bytes.push_back(static_cast<char>(c.value & 0xFF));
        else if (!fits || !AppendMultiByte(static_cast<wchar_t>(c.value), bytes))
            return {false, i};
        i += c.length;
    }
    return {true, text.size()};
}

EncodeResult EncodeIdentity(TextView text, std::string& bytes)
{
    const std::size_t start = bytes.size();
    bytes.resize(start + text.size());
    char* out = bytes.data() + start;
    // Combines all units first, so that the loop needs no branch per unit.
    unsigned seen = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        seen |= text[i];
        out[i] = static_cast<char>(text[i]);
    }
    if (seen <= 0xFF)
        return {true, text.size()};
    const auto first = std::find_if(text.begin(), text.end(), [](char16_t c) { return c > 0xFF; });
    return {false, static_cast<std::size_t>(first - text.begin())};
}

} // namespace

Charset DetectCharset(std::string_view bytes)
{
    bool ascii = true;
    while (!bytes.empty()) {
        bytes.remove_prefix(AsciiLength(bytes));
        if (bytes.empty())
            break;
        const CodePoint c = ReadUtf8(bytes);
        if (!c.valid)
            return Charset::Windows1252;
        ascii = false;
        bytes.remove_prefix(c.length);
    }
    return ascii ? Charset::Windows1252 : Charset::Utf8;
}

LocaleDecoder::LocaleDecoder(Charset charset)
    : m_coding(CodingOf(charset)), m_plainAscii(charset != Charset::OfProcess || SpellsAsciiPlainly(m_coding))
{
    if (m_coding == LocaleCoding::SingleByte)
        m_table = SingleByteTable(charset);
}

void LocaleDecoder::Append(std::string_view bytes, Text& text) const
{
    switch (m_coding) {
    case LocaleCoding::Identity:
        AppendPlain(bytes, text);
        break;
    case LocaleCoding::Utf8:
        DecodeUtf8(bytes, text);
        break;
    case LocaleCoding::MultiByte:
        DecodeMultiByte(bytes, text);
        break;
    case LocaleCoding::SingleByte: {
        const std::size_t start = text.size();
        text.resize(start + bytes.size());
        std::transform(bytes.begin(), bytes.end(), text.data() + start,
                       [this](char c) { return m_table[static_cast<unsigned char>(c)]; });
        break;
    }
    }
}

bool LocaleDecoder::IsPlain(std::string_view bytes) const
{
    return m_coding == LocaleCoding::Identity || (m_plainAscii && AsciiLength(bytes) == bytes.size());
}

LocaleEncoder::LocaleEncoder(Charset charset)
    : m_coding(CodingOf(charset)), m_plainAscii(charset != Charset::OfProcess || SpellsAsciiPlainly(m_coding))
{
    if (m_coding != LocaleCoding::SingleByte)
        return;
    // Built from the decoding table, so that every text that was decoded can be encoded again.
    m_low.fill(kNoByte);
    const ByteTable table = SingleByteTable(charset);
    for (unsigned value = 0; value < table.size(); ++value) {
        const char16_t unit = table[value];
        if (unit < m_low.size())
            m_low[unit] = static_cast<char16_t>(value);
        else
            m_others.emplace_back(unit, static_cast<unsigned char>(value));
    }
    std::sort(m_others.begin(), m_others.end());
}

EncodeResult LocaleEncoder::Append(TextView text, std::string& bytes) const
{
    const std::size_t start = bytes.size();
    EncodeResult result{true, text.size()};
    switch (m_coding) {
    case LocaleCoding::Identity:
        result = EncodeIdentity(text, bytes);
        break;
    case LocaleCoding::Utf8:
        result = EncodeUtf8(text, bytes);
        break;
    case LocaleCoding::MultiByte:
        result = EncodeMultiByte(text, bytes);
        break;
    case LocaleCoding::SingleByte:
        for (std::size_t i = 0; i < text.size() && result.ok; ++i) {
            char16_t byte = kNoByte;
            if (text[i] < m_low.size()) {
                byte = m_low[text[i]];
            } else {
                const auto found = std::lower_bound(m_others.begin(), m_others.end(),
                                                    std::pair<char16_t, unsigned char>(text[i], 0));
                if (found != m_others.end() && found->first == text[i])
                    byte = found->second;
            }
            if (byte == kNoByte)
                result = {false, i};
            else
                bytes.push_back(static_cast<char>(byte));
        }
        break;
    }
    if (!result.ok)
        bytes.resize(start);
    return result;
}

bool LocaleEncoder::IsPlain(std::string_view units) const
{
    return m_coding == LocaleCoding::Identity || (m_plainAscii && AsciiLength(units) == units.size());
}

Text DecodeLocale(std::string_view bytes)
{
    Text text;
    LocaleDecoder().Append(bytes, text);
    return text;
}

EncodeResult EncodeLocale(TextView text, std::string& bytes)
{
    bytes.clear();
    return LocaleEncoder().Append(text, bytes);
}

Text FormatTime(const char* pattern, const std::tm& time, std::size_t capacity)
{
    const std::wstring widePattern(pattern, pattern + std::strlen(pattern));
    // One character more than the capacity: some runtimes omit the terminator when the result fills
    // the buffer exactly.
    std::wstring buffer(capacity + 1, L'\0');
    buffer.resize(std::wcsftime(buffer.data(), buffer.size(), widePattern.c_str(), &time));
    if (buffer.size() >= capacity)
        return {};
    Text text;
    for (const wchar_t c : buffer)
        AppendWide(c, text);
    return text;
}

} // namespace ov

#pragma once

#include "base/text.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace ov
{

// How a line of a configuration file is parsed. All code that examines lines uses these functions,
// so that every line has one meaning.
//
// Lines are parsed as bytes. In every supported encoding the characters searched for below are single
// ASCII bytes, and none of them is a trail byte of another character: trail bytes are 0x80 and above
// in UTF-8 and EUC, and 0x40 and above, or digits, in the other encodings.

/// The kinds of lines.
enum class LineKind : std::uint8_t {
    Blank,
    Comment,    ///< Begins with "#".
    Directive,  ///< Begins with "%"; the reader skips it.
    Assignment, ///< A name, an operator and a value, which may be empty.
    Ignored,    ///< Anything else: the second word contains no operator. The reader skips it.
};

/// A parsed line. The parts point into the line.
struct ConfigLine {
    LineKind kind = LineKind::Blank;
    char operation = '\0';          ///< Assignment: '=', '>', '<', '+' or ':'.
    std::string_view text;          ///< The line without leading and trailing white space.
    std::string_view name;          ///< Assignment and Ignored: the first word.
    std::string_view operatorToken; ///< Assignment and Ignored: the second word; may be empty.
    std::string_view value;         ///< Assignment and Ignored: the text after the one separator that
                                    ///< follows the second word, quotes included; may be empty.
};

/// True for the characters that separate the words of a line.
constexpr bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

/// The bytes without leading and trailing white space.
inline std::string_view TrimBytes(std::string_view line)
{
    const auto isSpace = [](char c) { return IsWhiteSpace(static_cast<unsigned char>(c)); };
    while (!line.empty() && isSpace(line.front()))
        line.remove_prefix(1);
    while (!line.empty() && isSpace(line.back()))
        line.remove_suffix(1);
    return line;
}

/// The operator in a token, which decides how the line is applied; NUL if it contains none.
inline char OperatorOf(std::string_view token)
{
    for (const char c : std::string_view("=><+:")) {
        if (token.find(c) != std::string_view::npos)
            return c;
    }
    return '\0';
}

/// Parses a line, which is passed without its line end.
inline ConfigLine ParseConfigLine(std::string_view line)
{
    ConfigLine parts;
    parts.text = TrimBytes(line);
    if (parts.text.empty())
        return parts;
    if (parts.text.front() == '#' || parts.text.front() == '%') {
        parts.kind = parts.text.front() == '#' ? LineKind::Comment : LineKind::Directive;
        return parts;
    }
    const auto end = parts.text.end();
    const auto nameEnd = std::find_if(parts.text.begin(), end, IsBlank);
    const auto tokenStart = std::find_if_not(nameEnd, end, IsBlank);
    const auto tokenEnd = std::find_if(tokenStart, end, IsBlank);
    parts.name = {parts.text.begin(), nameEnd};
    parts.operatorToken = {tokenStart, tokenEnd};
    parts.value = {tokenEnd == end ? tokenEnd : tokenEnd + 1, end};
    parts.operation = OperatorOf(parts.operatorToken);
    parts.kind = parts.operation != '\0' ? LineKind::Assignment : LineKind::Ignored;
    return parts;
}

/// True if the value of a line is quoted: its first and last characters are quotes. They may be
/// the same character.
inline bool IsQuoted(std::string_view value)
{
    return !value.empty() && value.front() == '"' && value.back() == '"';
}

/// The value of a line for which IsQuoted is true: without any quotes, and without the part from the first
/// "#" after its first character. `room` receives the value if quotes have to be removed inside it.
template <typename Unit>
std::basic_string_view<Unit> Unquoted(std::basic_string_view<Unit> value, std::basic_string<Unit>& room)
{
    constexpr Unit kQuote = '"';
    constexpr Unit kNumberSign = '#';
    value = value.size() == 1 ? value.substr(1) : value.substr(1, value.size() - 2);
    if (value.find(kQuote) != value.npos) {
        room.assign(value);
        std::erase(room, kQuote);
        value = room;
    }
    const std::size_t end = value.find(kNumberSign);
    return end != value.npos && end > 0 ? value.substr(0, end) : value;
}

} // namespace ov

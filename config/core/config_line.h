#pragma once

#include "base/text.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace ov
{

// How a line of a configuration file is understood. Everything that looks at lines uses these
// functions, so that there is one meaning.
//
// Lines are taken apart as bytes. In every encoding that is supported the marks below are single
// bytes of ASCII, and none of them is a later byte of another character: those are 0x80 and above in
// UTF-8 and EUC, 0x40 and above, or digits, in the other encodings.

/// The kinds of lines.
enum class LineKind : std::uint8_t {
    Blank,
    Comment,    ///< Begins with "#".
    Directive,  ///< Begins with "%"; the reader skips it.
    Assignment, ///< A name, an operator, a value that may be empty.
    Ignored,    ///< Anything else: the second word holds no operator. The reader skips it.
};

/// A line taken apart. The parts point into the line.
struct ConfigLine {
    LineKind kind = LineKind::Blank;
    char operation = '\0';          ///< Assignment: '=', '>', '<', '+' or ':'.
    std::string_view text;          ///< The line without the white space at its ends.
    std::string_view name;          ///< Assignment and Ignored: the first word.
    std::string_view operatorToken; ///< Assignment and Ignored: the second word; may be empty.
    std::string_view value;         ///< Assignment and Ignored: what follows the one separator after
                                    ///< the second word, quotes included; may be empty.
};

/// True for what separates the words of a line.
constexpr bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

/// The bytes without the white space at both ends.
inline std::string_view TrimBytes(std::string_view line)
{
    const auto isSpace = [](char c) { return IsWhiteSpace(static_cast<unsigned char>(c)); };
    while (!line.empty() && isSpace(line.front()))
        line.remove_prefix(1);
    while (!line.empty() && isSpace(line.back()))
        line.remove_suffix(1);
    return line;
}

/// The character that decides what an operator token does; NUL when it holds none.
inline char OperatorOf(std::string_view token)
{
    for (const char c : std::string_view("=><+:")) {
        if (token.find(c) != std::string_view::npos)
            return c;
    }
    return '\0';
}

/// Takes a line apart, which is given without its line end.
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

/// True when the value of a line is quoted: its first and its last character are quotes, which
/// may be the same one.
inline bool IsQuoted(std::string_view value)
{
    return !value.empty() && value.front() == '"' && value.back() == '"';
}

/// A value for which IsQuoted holds as it is read: without all quotes and without what follows a "#"
/// that is not its first character. `room` takes the value when quotes are inside it.
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

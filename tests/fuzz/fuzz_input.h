#pragma once

#include "base/text.h"
#include "base/utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// Ends the process if the condition is false; the fuzzer then keeps the input.
#define OV_REQUIRE(condition) ((condition) ? void() : ov::fuzz::Fail(#condition, __FILE__, __LINE__))

namespace ov::fuzz
{

[[noreturn]] inline void Fail(const char* condition, const char* file, int line)
{
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, condition);
    std::abort();
}

/// Decimal numbers in a line, separated by any other characters.
class Options
{
  public:
    explicit Options(std::string_view line) : m_rest(line) {}

    /// The next number, mapped to the range 0 to `last`; 0 if there are no more.
    unsigned Number(unsigned last)
    {
        const std::size_t start = std::min(m_rest.find_first_of("0123456789"), m_rest.size());
        m_rest.remove_prefix(start);
        std::uint64_t value = 0;
        while (!m_rest.empty() && m_rest.front() >= '0' && m_rest.front() <= '9') {
            value = (value * 10 + static_cast<unsigned>(m_rest.front() - '0')) % (std::uint64_t{last} + 1);
            m_rest.remove_prefix(1);
        }
        return static_cast<unsigned>(value);
    }

    bool Empty() const { return m_rest.find_first_of("0123456789") == std::string_view::npos; }

  private:
    std::string_view m_rest;
};

/// An input of the fuzzer: lines with options, then the text. Seeds can therefore be read and
/// written by hand.
class FuzzInput
{
  public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : m_rest(reinterpret_cast<const char*>(data), size)
    {
    }

    /// The next line without its "\n"; empty if there are no more.
    std::string_view Line()
    {
        const std::size_t length = std::min(m_rest.find('\n'), m_rest.size());
        const std::string_view line = m_rest.substr(0, length);
        m_rest.remove_prefix(std::min(length + 1, m_rest.size()));
        return line;
    }

    /// Everything after the lines read so far.
    std::string_view Rest() const { return m_rest; }

  private:
    std::string_view m_rest;
};

/// Converts UTF-8 bytes to text. An invalid byte becomes an unpaired surrogate, so that such
/// texts are tested as well.
inline Text Characters(std::string_view bytes)
{
    Text text;
    while (!bytes.empty()) {
        const CodePoint c = ReadUtf8(bytes);
        if (c.valid)
            AppendUtf16(text, c.value);
        else
            text.push_back(static_cast<char16_t>(0xDC00 + static_cast<unsigned char>(bytes.front())));
        bytes.remove_prefix(c.length);
    }
    return text;
}

} // namespace ov::fuzz

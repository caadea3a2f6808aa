#pragma once

#include "base/text.h"

#include <compare>
#include <cstddef>
#include <string_view>

namespace ov
{

/// A text that lies somewhere in units of 8 bits or in units of 16 bits.
///
/// Hardly any text of a configuration file has a unit above 0xFF. In 8 bits it takes half the
/// memory, and in the usual locales it is the very bytes of the file. Which form a text has makes
/// no difference to its content: texts of both forms are equal when their units are.
class CompactView
{
  public:
    CompactView() = default;
    CompactView(TextView text) : m_units(text.data()), m_shape(text.size() << 1 | 1) {}
    CompactView(const Text& text) : CompactView(TextView(text)) {}
    CompactView(const char16_t* text) : CompactView(TextView(text)) {}

    /// The text whose units are the values of the bytes.
    static constexpr CompactView OfBytes(std::string_view bytes) { return {bytes.data(), bytes.size() << 1}; }

    std::size_t size() const { return m_shape >> 1; }
    bool empty() const { return size() == 0; }

    /// True when the text lies in units of 8 bits.
    bool IsNarrow() const { return (m_shape & 1) == 0; }
    /// The units of a text for which IsNarrow holds; each byte is a unit of its value.
    std::string_view Narrow() const { return {static_cast<const char*>(m_units), size()}; }
    /// The units of a text for which IsNarrow does not hold.
    TextView Wide() const { return {static_cast<const char16_t*>(m_units), size()}; }

    /// True when no unit is above 0xFF, in whatever form the text lies.
    bool FitsNarrow() const;

    char16_t operator[](std::size_t index) const
    {
        return IsNarrow() ? static_cast<unsigned char>(Narrow()[index]) : Wide()[index];
    }
    bool Contains(char16_t unit) const;
    void AppendTo(Text& text) const;
    operator Text() const;

    friend bool operator==(CompactView a, CompactView b);
    /// The ordinal order of the units.
    friend std::strong_ordering operator<=>(CompactView a, CompactView b);

  private:
    constexpr CompactView(const void* units, std::size_t shape) : m_units(units), m_shape(shape) {}

    const void* m_units = nullptr;
    std::size_t m_shape = 0; ///< Twice the length, and one more in units of 16 bits.
};

/// The number of bytes that a text takes in units of 16 bits, or of 8 bits when `narrow`.
inline std::size_t ByteLength(CompactView text, bool narrow)
{
    return narrow ? text.size() : text.size() * sizeof(char16_t);
}

/// Copies the units to `room` in the form asked for, which must be able to hold them, and gives the
/// text there. The text may lie in the room itself, at its front or behind.
CompactView CopyUnits(CompactView text, bool narrow, char* room);

} // namespace ov

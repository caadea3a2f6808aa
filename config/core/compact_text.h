#pragma once

#include "base/text.h"

#include <compare>
#include <cstddef>
#include <string_view>

namespace ov
{

/// A view of a text that is stored in 8-bit or in 16-bit units.
///
/// Hardly any text of a configuration file has a unit above 0xFF. In 8-bit units it needs half the
/// memory, and in the usual locales these units are the bytes of the file. The storage form does not
/// affect comparison: texts of both forms are equal if their units are.
class CompactView
{
  public:
    CompactView() = default;
    CompactView(TextView text) : m_units(text.data()), m_shape(text.size() << 1 | 1) {}
    CompactView(const Text& text) : CompactView(TextView(text)) {}
    CompactView(const char16_t* text) : CompactView(TextView(text)) {}

    /// The text whose units have the values of the bytes.
    static constexpr CompactView OfBytes(std::string_view bytes) { return {bytes.data(), bytes.size() << 1}; }

    std::size_t size() const { return m_shape >> 1; }
    bool empty() const { return size() == 0; }

    /// True if the text is stored in 8-bit units.
    bool IsNarrow() const { return (m_shape & 1) == 0; }
    /// The units of a narrow text; each byte is one unit with the same value.
    std::string_view Narrow() const { return {static_cast<const char*>(m_units), size()}; }
    /// The units of a text that is not narrow.
    TextView Wide() const { return {static_cast<const char16_t*>(m_units), size()}; }

    /// True if no unit is above 0xFF, whether or not the text is narrow.
    bool FitsNarrow() const;

    char16_t operator[](std::size_t index) const
    {
        return IsNarrow() ? static_cast<unsigned char>(Narrow()[index]) : Wide()[index];
    }
    bool Contains(char16_t unit) const;
    void AppendTo(Text& text) const;
    operator Text() const;

    friend bool operator==(CompactView a, CompactView b);
    /// Ordinal order of the units.
    friend std::strong_ordering operator<=>(CompactView a, CompactView b);

  private:
    constexpr CompactView(const void* units, std::size_t shape) : m_units(units), m_shape(shape) {}

    const void* m_units = nullptr;
    std::size_t m_shape = 0; ///< Twice the length, plus one for 16-bit units.
};

/// The number of bytes that a text occupies in 16-bit units, or in 8-bit units if `narrow`.
inline std::size_t ByteLength(CompactView text, bool narrow)
{
    return narrow ? text.size() : text.size() * sizeof(char16_t);
}

/// Copies the units to `room` in the requested form, which must be able to represent them, and returns
/// the copy. The text may be stored in `room` itself, at its beginning or further on.
CompactView CopyUnits(CompactView text, bool narrow, char* room);

} // namespace ov

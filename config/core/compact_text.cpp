#include "config/core/compact_text.h"

#include <algorithm>
#include <cstring>

namespace ov
{
namespace
{

char16_t UnitOf(char byte)
{
    return static_cast<unsigned char>(byte);
}

char16_t UnitOf(char16_t unit)
{
    return unit;
}

} // namespace

bool CompactView::FitsNarrow() const
{
    if (IsNarrow())
        return true;
    // Combines all units first, so that the loop needs no branch per unit.
    unsigned seen = 0;
    for (const char16_t unit : Wide())
        seen |= unit;
    return seen <= 0xFF;
}

bool CompactView::Contains(char16_t unit) const
{
    if (!IsNarrow())
        return Wide().find(unit) != TextView::npos;
    return unit <= 0xFF && Narrow().find(static_cast<char>(unit)) != std::string_view::npos;
}

void CompactView::AppendTo(Text& text) const
{
    if (!IsNarrow()) {
        text.append(Wide());
        return;
    }
    const std::string_view bytes = Narrow();
    const std::size_t start = text.size();
    text.resize(start + bytes.size());
    std::transform(bytes.begin(), bytes.end(), text.data() + start, [](char byte) { return UnitOf(byte); });
}

CompactView::operator Text() const
{
    Text text;
    AppendTo(text);
    return text;
}

bool operator==(CompactView a, CompactView b)
{
    if (a.size() != b.size())
        return false;
    if (a.IsNarrow() && b.IsNarrow())
        return a.Narrow() == b.Narrow();
    return std::is_eq(a <=> b);
}

std::strong_ordering operator<=>(CompactView a, CompactView b)
{
    // Bytes are compared as unsigned numbers.
    if (a.IsNarrow() && b.IsNarrow())
        return a.Narrow() <=> b.Narrow();
    if (!a.IsNarrow() && !b.IsNarrow())
        return a.Wide() <=> b.Wide();
    const auto compare = [](auto first, auto second) {
        return std::lexicographical_compare_three_way(
            first.begin(), first.end(), second.begin(), second.end(),
            [](auto one, auto other) { return UnitOf(one) <=> UnitOf(other); });
    };
    return a.IsNarrow() ? compare(a.Narrow(), b.Wide()) : compare(a.Wide(), b.Narrow());
}

CompactView CopyUnits(CompactView text, bool narrow, char* room)
{
    if (narrow) {
        if (text.IsNarrow()) {
            if (!text.empty())
                std::memmove(room, text.Narrow().data(), text.size());
        } else {
            std::transform(text.Wide().begin(), text.Wide().end(), room,
                           [](char16_t unit) { return static_cast<char>(unit); });
        }
        return CompactView::OfBytes({room, text.size()});
    }
    auto* const units = reinterpret_cast<char16_t*>(room);
    if (text.IsNarrow())
        std::transform(text.Narrow().begin(), text.Narrow().end(), units,
                       [](char byte) { return UnitOf(byte); });
    else if (!text.empty())
        std::memmove(units, text.Wide().data(), text.size() * sizeof(char16_t));
    return TextView(units, text.size());
}

} // namespace ov

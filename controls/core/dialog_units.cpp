#include "controls/core/dialog_units.h"

#include <algorithm>
#include <cstdlib>

namespace ov
{
namespace
{

// Template coordinates are in these fractions of the base units.
constexpr std::int32_t kHorizontalUnits = 4;
constexpr std::int32_t kVerticalUnits = 8;
constexpr std::int32_t kPointsPerInch = 72;
constexpr std::int32_t kLetters = 52;

// Rounds to the nearest integer, halves away from zero.
std::int32_t Scale(std::int32_t value, std::int32_t numerator, std::int32_t denominator)
{
    const std::int64_t magnitude =
        (std::abs(std::int64_t{value}) * numerator + denominator / 2) / denominator;
    return static_cast<std::int32_t>(value < 0 ? -magnitude : magnitude);
}

std::int32_t Grown(std::int32_t length, std::int32_t unit, std::int32_t usualUnit)
{
    const std::int64_t scaled = (std::int64_t{length} * unit + usualUnit - 1) / usualUnit;
    return std::max(length, static_cast<std::int32_t>(scaled));
}

} // namespace

std::int32_t PixelsAt(std::int32_t length, std::int32_t resolution)
{
    return Scale(length, resolution, kUsualResolution);
}

Rect EdgesInPixels(const Rect& edges, const Size& units)
{
    return {Scale(edges.left, units.width, kHorizontalUnits), Scale(edges.top, units.height, kVerticalUnits),
            Scale(edges.right, units.width, kHorizontalUnits),
            Scale(edges.bottom, units.height, kVerticalUnits)};
}

Rect ControlInPixels(const Rect& control, const Size& units)
{
    Rect pixels = EdgesInPixels({control.left, control.top, control.Width(), control.Height()}, units);
    pixels.right += pixels.left;
    pixels.bottom += pixels.top;
    return pixels;
}

Size SizeInUnits(const Size& size, const Size& units)
{
    return {Grown(size.width, units.width, kUsualUnits.width),
            Grown(size.height, units.height, kUsualUnits.height)};
}

std::int32_t FontHeightAt(std::int32_t height, std::int32_t resolution, std::int32_t newResolution)
{
    return Scale(Scale(height, kPointsPerInch, resolution), newResolution, kPointsPerInch);
}

Size UnitsOfFont(std::int32_t alphabetWidth, std::int32_t lineHeight)
{
    constexpr std::int32_t halfOfLetters = kLetters / 2;
    return {(alphabetWidth / halfOfLetters + 1) / 2, lineHeight};
}

} // namespace ov

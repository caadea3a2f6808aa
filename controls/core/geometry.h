#pragma once

#include <cstdint>

namespace ov
{

/// A point in pixels.
struct Point {
    std::int32_t x = 0;
    std::int32_t y = 0;

    bool operator==(const Point&) const = default;
};

/// A rectangle in pixels, in the client coordinates of a window; right and bottom
/// are exclusive.
struct Rect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    constexpr std::int32_t Width() const { return right - left; }
    constexpr std::int32_t Height() const { return bottom - top; }
    bool operator==(const Rect&) const = default;
};

/// Width and height in pixels.
struct Size {
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool operator==(const Size&) const = default;
};

} // namespace ov

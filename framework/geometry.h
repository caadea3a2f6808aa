#pragma once

#include "framework/windows_api.h"

/// A size in pixels.
class CSize : public SIZE
{
  public:
    constexpr CSize() : SIZE{0, 0} {}
    constexpr CSize(int width, int height) : SIZE{width, height} {}
    constexpr CSize(SIZE size) : SIZE(size) {}
    constexpr bool operator==(const CSize& other) const { return cx == other.cx && cy == other.cy; }
};

/// A point in pixels.
class CPoint : public POINT
{
  public:
    constexpr CPoint() : POINT{0, 0} {}
    constexpr CPoint(int left, int top) : POINT{left, top} {}
    constexpr CPoint(POINT point) : POINT(point) {}
    /// From the packed coordinates of a mouse message; they may be negative.
    explicit CPoint(LPARAM packed)
        : POINT{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))}
    {
    }
    constexpr bool operator==(const CPoint& other) const { return x == other.x && y == other.y; }
};

/// A rectangle in pixels; right and bottom are exclusive. Converts to the
/// pointers that Windows functions take.
class CRect : public RECT
{
  public:
    constexpr CRect() : RECT{0, 0, 0, 0} {}
    constexpr CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
    constexpr CRect(const RECT& rectangle) : RECT(rectangle) {}
    constexpr CRect(POINT topLeft, SIZE size)
        : RECT{topLeft.x, topLeft.y, topLeft.x + size.cx, topLeft.y + size.cy}
    {
    }

    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    constexpr int Width() const { return right - left; }
    constexpr int Height() const { return bottom - top; }
    constexpr CPoint TopLeft() const { return {left, top}; }
    constexpr BOOL PtInRect(POINT point) const
    {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    constexpr void OffsetRect(int dx, int dy) { *this = CRect(left + dx, top + dy, right + dx, bottom + dy); }
    constexpr bool operator==(const CRect& other) const
    {
        return left == other.left && top == other.top && right == other.right && bottom == other.bottom;
    }
};

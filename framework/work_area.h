#pragma once

#include "framework/geometry.h"

#include <algorithm>

/// The rectangle moved as little as necessary to lie in the area. If it is larger than
/// the area, its left and top edges are inside.
constexpr CRect AfxMovedInto(const CRect& rectangle, const CRect& area)
{
    const LONG x = std::max(std::min(rectangle.left, area.right - rectangle.Width()), area.left);
    const LONG y = std::max(std::min(rectangle.top, area.bottom - rectangle.Height()), area.top);
    return {CPoint(x, y), CSize(rectangle.Width(), rectangle.Height())};
}

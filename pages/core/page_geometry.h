#pragma once

#include "controls/core/geometry.h"

#include <cstdint>
#include <span>

namespace ov
{

/// What the width of a control depends on.
enum class WidthKind {
    Frame,   ///< a group box: as wide as its members need
    Caption, ///< a label or a button: lines are broken for the template's width
    Content, ///< an edit or a list: shows less when it is narrower
};

/// A control of a page at its place in the template.
struct PlacedControl {
    Rect rect;                     ///< on the page, in pixels
    std::uint32_t layoutFlags = 0; ///< see controls/core/layout.h
    WidthKind kind = WidthKind::Content;
};

/// Widths in pixels at the page's resolution.
struct PageWidths {
    std::int32_t templateWidth = 0;
    std::int32_t frameMargin = 0;     ///< between a frame's members and its right edge
    std::int32_t shortestContent = 0; ///< what still shows a word of an edit's text
};

/// The smallest width at which the controls of a page can be laid out: no stretched control
/// is narrower than it may be, and every control of fixed place lies on the page.
std::int32_t NarrowestPageWidth(std::span<const PlacedControl> controls, const PageWidths& widths);

/// The lower end of the lowest control; 0 without controls.
std::int32_t ContentHeight(std::span<const PlacedControl> controls);

} // namespace ov

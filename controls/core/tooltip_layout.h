#pragma once

#include "base/text.h"
#include "controls/core/geometry.h"
#include "controls/core/tooltip_markup.h"

#include <array>
#include <optional>
#include <vector>

namespace ov
{

/// One part of a help text, as shown in the tooltip window.
struct TooltipPart {
    TooltipSection section = TooltipSection::Description; ///< decides font and colour
    TextView text;
    Size extent; ///< the text's size in its font; the caller fills it in

    bool operator==(const TooltipPart&) const = default;
};

/// The parts from top to bottom: heading and variable name if not empty, then
/// sub-headings and descriptions alternately until both are used up. The parts
/// point into `text`; their extents are zero.
std::vector<TooltipPart> SplitTooltip(TextView text);

/// Layout values that depend on the tooltip's font, in pixels.
struct TooltipMetrics {
    std::int32_t fontHeight = 14;
    std::int32_t lineGap = 3; ///< below every part
};

/// The metrics for a window whose font has that height. The sign of the height,
/// which says what it measures, is ignored.
TooltipMetrics MetricsOfFont(std::int32_t fontHeight);

/// The size of a body that holds the parts and, left of them, the icon. Without an
/// icon, pass a size of zero.
Size TooltipBodySize(const std::vector<TooltipPart>& parts, const TooltipMetrics& metrics, Size icon);

/// The position of the body relative to the anchor, the point that the tooltip refers to.
struct TooltipSide {
    bool right = false; ///< otherwise left
    bool above = false; ///< otherwise below

    bool operator==(const TooltipSide&) const = default;
};

/// Left of and above the anchor if the screen has room there. `anchor` is in
/// screen coordinates.
TooltipSide ChooseTooltipSide(Size body, Point anchor);

/// The corner ellipse of a rounded body, in pixels.
inline constexpr Size kTooltipCorner{12, 10};

/// The outline in window coordinates.
struct TooltipOutline {
    Size window;
    Rect body;
    /// A balloon's tail: the two ends of its base, which are inside the body, and the tip.
    std::optional<std::array<Point, 3>> tail;
};

/// The outline of a tooltip with or without a tail.
TooltipOutline OutlineTooltip(Size body, TooltipSide side, bool withTail);

/// The window's top left corner in screen coordinates.
Point TooltipPosition(const TooltipOutline& outline, TooltipSide side, Point anchor);

/// The rectangle of each part, in window coordinates.
std::vector<Rect> PlaceTooltipParts(const std::vector<TooltipPart>& parts, const TooltipMetrics& metrics,
                                    const TooltipOutline& outline, Size icon);

/// The position of the icon, in window coordinates.
Point PlaceTooltipIcon(const TooltipOutline& outline);

} // namespace ov

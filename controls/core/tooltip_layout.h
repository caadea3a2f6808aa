#pragma once

#include <array>
#include <optional>
#include <vector>

#include "base/text.h"
#include "controls/core/geometry.h"
#include "controls/core/tooltip_markup.h"

namespace ov
{

/// One piece of a help text, as the tooltip window shows it.
struct TooltipPart {
    TooltipSection section = TooltipSection::Description; ///< decides font and colour
    TextView text;
    Size extent; ///< the text's size in its font, to be filled in by whoever has the fonts

    bool operator==(const TooltipPart&) const = default;
};

/// The pieces from top to bottom: heading and variable name where they are not
/// empty, then sub-headings and descriptions in turn until there are no more of
/// either. The pieces view into `text`; their extents are zero.
std::vector<TooltipPart> SplitTooltip(TextView text);

/// What a tooltip's font says about its layout, in pixels.
struct TooltipMetrics {
    std::int32_t fontHeight = 14;
    std::int32_t lineGap = 3; ///< below every piece
};

/// The metrics for a window whose font has that height; the sign, which tells
/// how the height is meant, does not count.
TooltipMetrics MetricsOfFont(std::int32_t fontHeight);

/// Size of the body that holds the pieces and, left of them, the icon; without
/// an icon its size is zero.
Size TooltipBodySize(const std::vector<TooltipPart>& parts, const TooltipMetrics& metrics, Size icon);

/// Where the body lies as seen from the anchor, the point that the tooltip is about.
struct TooltipSide {
    bool right = false; ///< else left
    bool above = false; ///< else below

    bool operator==(const TooltipSide&) const = default;
};

/// To the left and above where the screen has room for it. `anchor` in screen
/// coordinates.
TooltipSide ChooseTooltipSide(Size body, Point anchor);

/// Corner ellipse of a rounded body, in pixels.
inline constexpr Size TooltipCorner{12, 10};

/// Outline in the window's coordinates.
struct TooltipOutline {
    Size window;
    Rect body;
    /// A balloon's tail: the two ends of the base, which lie inside the body, and the tip.
    std::optional<std::array<Point, 3>> tail;
};

/// The outline of a tooltip with or without a tail.
TooltipOutline OutlineTooltip(Size body, TooltipSide side, bool withTail);

/// The window's top left corner in screen coordinates.
Point TooltipPosition(const TooltipOutline& outline, TooltipSide side, Point anchor);

/// Where the pieces go, one rectangle each, in the window's coordinates.
std::vector<Rect> PlaceTooltipParts(const std::vector<TooltipPart>& parts, const TooltipMetrics& metrics,
                                    const TooltipOutline& outline, Size icon);

/// Where the icon goes, in the window's coordinates.
Point PlaceTooltipIcon(const TooltipOutline& outline);

} // namespace ov

#pragma once

#include <cstdint>

namespace ov
{

/// Pixels of one line step.
inline constexpr std::int32_t ScrollLineStep = 60;

/// A wheel setting of this many lines per notch means a page at a time.
inline constexpr std::uint32_t WheelScrollsPage = 0xFFFFFFFF;

/// One direction of a scrolled page, in pixels.
struct ScrollAxis {
    std::int32_t pageSize = 0;    ///< visible part, 0 while everything fits
    std::int32_t displaySize = 0; ///< whole content
    std::int32_t position = 0;    ///< how far the content is scrolled, never negative
};

/// What a scroll bar is to show; its range begins at 0.
struct ScrollBarState {
    std::int32_t maximum = 0;
    std::int32_t pageSize = 0;
    std::int32_t position = 0;

    bool operator==(const ScrollBarState&) const = default;
};

/// A new scroll bar state, and by how much the content moves to match it
/// (positive: right or down).
struct ScrollUpdate {
    ScrollBarState bar;
    std::int32_t contentShift = 0;

    bool operator==(const ScrollUpdate&) const = default;
};

/// What a person asks of a scroll bar; the values are Windows' request codes.
enum class ScrollRequest : std::uint32_t {
    LineBack = 0,
    LineForward = 1,
    PageBack = 2,
    PageForward = 3,
    ThumbPosition = 4,
    ThumbTrack = 5,
};

/// The scroll steps of a wheel movement.
struct WheelSteps {
    ScrollRequest request = ScrollRequest::LineForward;
    std::uint64_t count = 0;

    bool operator==(const WheelSteps&) const = default;
};

/// Size of the client area as if it had no scroll bar: a window that is larger
/// than its client area by at least the bar's thickness shows one.
std::int32_t AvailableSize(std::int32_t windowSize, std::int32_t clientSize, std::int32_t barThickness);

/// Fits the axis to `available` visible pixels. `barPosition` is what the
/// scroll bar shows so far. A content that fits returns to the origin; one that
/// does not keeps the same part in view.
ScrollUpdate UpdateAxis(ScrollAxis& axis, std::int32_t available, std::int32_t barPosition);

/// Performs a request, never leaving the content, and returns the step taken in
/// pixels (0 for none); the content moves by minus that. `trackPosition` is
/// where the thumb is being held; only the two thumb requests look at it.
std::int32_t Scroll(ScrollAxis& axis, ScrollRequest request, std::int32_t trackPosition);

/// How much of the content can be brought into view: what is visible, and what
/// scrolling to the end adds. `available` is as UpdateAxis takes it, `visible` what
/// the scroll bars leave of that. A bar covers as much at the content's end.
std::int32_t ReachableSize(const ScrollAxis& axis, std::int32_t available, std::int32_t visible);

/// Where to scroll so that the content from `begin` to `end` comes into view:
/// the shortest way, or to the origin where that shows it. Of what is longer
/// than the view, as much as fills three quarters of it. `visible` is what the
/// scroll bars leave of the page.
std::int32_t PositionShowing(const ScrollAxis& axis, std::int32_t begin, std::int32_t end,
                             std::int32_t visible);

/// Returns a scrolled axis to its origin; the result is by how much the content
/// moves back, 0 when it need not.
std::int32_t ResetAxis(ScrollAxis& axis);

/// What a wheel movement of `delta` (120 a notch, positive away from the user)
/// does with that many lines set per notch.
WheelSteps StepsOfWheel(std::int32_t delta, std::uint32_t linesPerNotch);

} // namespace ov

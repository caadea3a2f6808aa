#pragma once

#include <cstdint>

namespace ov
{

/// The pixels of one line step.
inline constexpr std::int32_t kScrollLineStep = 60;

/// With this wheel setting one notch scrolls a whole page.
inline constexpr std::uint32_t kWheelScrollsPage = 0xFFFFFFFF;

/// One direction of a scrolled page, in pixels.
struct ScrollAxis {
    std::int32_t pageSize = 0;    ///< visible part; 0 while everything fits
    std::int32_t displaySize = 0; ///< whole content
    std::int32_t position = 0;    ///< distance scrolled from the origin, never negative
};

/// The values for a scroll bar; its range begins at 0.
struct ScrollBarState {
    std::int32_t maximum = 0;
    std::int32_t pageSize = 0;
    std::int32_t position = 0;

    bool operator==(const ScrollBarState&) const = default;
};

/// A new scroll bar state, and the distance by which the content moves to match
/// it (positive: right or down).
struct ScrollUpdate {
    ScrollBarState bar;
    std::int32_t contentShift = 0;

    bool operator==(const ScrollUpdate&) const = default;
};

/// A request from a scroll bar; the values are those of Windows.
enum class ScrollRequest : std::uint32_t {
    LineBack = 0,
    LineForward = 1,
    PageBack = 2,
    PageForward = 3,
    ThumbPosition = 4,
    ThumbTrack = 5,
};

/// The scroll steps for a wheel movement.
struct WheelSteps {
    ScrollRequest request = ScrollRequest::LineForward;
    std::uint64_t count = 0;

    bool operator==(const WheelSteps&) const = default;
};

/// The size of the client area without the scroll bar: a window that is larger
/// than its client area by at least the bar's thickness is showing one.
std::int32_t AvailableSize(std::int32_t windowSize, std::int32_t clientSize, std::int32_t barThickness);

/// Fits the axis to `available` visible pixels. `barPosition` is the present
/// position of the scroll bar. Content that fits returns to the origin; other
/// content keeps the same part visible.
ScrollUpdate UpdateAxis(ScrollAxis& axis, std::int32_t available, std::int32_t barPosition);

/// Performs a request within the content's limits and returns the step in pixels
/// (0 for none); the content moves by the negative step. `trackPosition` is the
/// position of the thumb while it is dragged; only the two thumb requests use it.
std::int32_t Scroll(ScrollAxis& axis, ScrollRequest request, std::int32_t trackPosition);

/// The size of the content that can be made visible: the visible part plus what
/// scrolling to the end adds. `available` is the same as for UpdateAxis, `visible` is
/// the part of it without the scroll bars, which also cover the content's end.
std::int32_t ReachableSize(const ScrollAxis& axis, std::int32_t available, std::int32_t visible);

/// The position that makes the content from `begin` to `end` visible: the nearest
/// one, or the origin if that shows it. Content longer than the view is shown
/// only in part, filling three quarters of the view. `visible` is the size of the
/// page without its scroll bars.
std::int32_t PositionShowing(const ScrollAxis& axis, std::int32_t begin, std::int32_t end,
                             std::int32_t visible);

/// Returns a scrolled axis to its origin. Returns the distance by which the
/// content moves back; 0 if it was there.
std::int32_t ResetAxis(ScrollAxis& axis);

/// The scroll steps for a wheel movement of `delta` (120 per notch, positive away
/// from the user) if the system is set to `linesPerNotch` lines.
WheelSteps StepsOfWheel(std::int32_t delta, std::uint32_t linesPerNotch);

} // namespace ov

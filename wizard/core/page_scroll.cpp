#include "wizard/core/page_scroll.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace ov
{
namespace
{

constexpr std::int32_t kWheelNotch = 120;
// A line step counts as three of the system's lines, so that the usual setting
// of three lines per notch scrolls one step per notch.
constexpr std::uint64_t kLinesPerStep = 3;
constexpr std::uint64_t kFewestLinesForSteps = 6;

std::int32_t RequestedStep(const ScrollAxis& axis, ScrollRequest request, std::int32_t trackPosition)
{
    switch (request) {
    case ScrollRequest::LineBack:
        return -kScrollLineStep;
    case ScrollRequest::LineForward:
        return kScrollLineStep;
    case ScrollRequest::PageBack:
        return -axis.pageSize;
    case ScrollRequest::PageForward:
        return axis.pageSize;
    case ScrollRequest::ThumbPosition:
    case ScrollRequest::ThumbTrack:
        return trackPosition - axis.position;
    }
    return 0; // the codes for top, bottom and the end of scrolling
}

} // namespace

std::int32_t AvailableSize(std::int32_t windowSize, std::int32_t clientSize, std::int32_t barThickness)
{
    return windowSize - clientSize >= barThickness ? clientSize + barThickness : clientSize;
}

ScrollUpdate UpdateAxis(ScrollAxis& axis, std::int32_t available, std::int32_t barPosition)
{
    if (available >= axis.displaySize) {
        axis.pageSize = 0;
        axis.position = 0;
        return {{}, barPosition};
    }
    if (axis.pageSize > 0 && axis.position > 0) {
        const double ratio = static_cast<double>(axis.position) * available / axis.pageSize;
        axis.position = static_cast<std::int32_t>(ratio);
    }
    axis.pageSize = available;
    axis.position = std::min(axis.position, axis.displaySize - available - 1);
    return {{axis.displaySize - 1, axis.pageSize, axis.position}, barPosition - axis.position};
}

std::int32_t Scroll(ScrollAxis& axis, ScrollRequest request, std::int32_t trackPosition)
{
    // Content that fits cannot scroll and stays at its origin.
    const std::int32_t last = axis.pageSize > 0 ? axis.displaySize - axis.pageSize : 0;
    const std::int32_t target = axis.position + RequestedStep(axis, request, trackPosition);
    const std::int32_t clamped = std::clamp(target, 0, last);
    const std::int32_t step = clamped - axis.position;
    axis.position = clamped;
    return step;
}

std::int32_t ReachableSize(const ScrollAxis& axis, std::int32_t available, std::int32_t visible)
{
    return visible + std::max(axis.displaySize - available, 0);
}

std::int32_t PositionShowing(const ScrollAxis& axis, std::int32_t begin, std::int32_t end,
                             std::int32_t visible)
{
    if (end - begin > visible)
        end = begin + visible - visible / 4;
    if (begin >= axis.position && end <= axis.position + visible)
        return axis.position;
    if (end <= visible)
        return 0;
    return begin > axis.position ? end - visible : begin;
}

std::int32_t ResetAxis(ScrollAxis& axis)
{
    if (axis.displaySize <= 0 || axis.pageSize <= 0 || axis.position <= 0)
        return 0;
    return std::exchange(axis.position, 0);
}

WheelSteps StepsOfWheel(std::int32_t delta, std::uint32_t linesPerNotch)
{
    const bool forward = delta <= 0;
    if (linesPerNotch == kWheelScrollsPage)
        return {forward ? ScrollRequest::PageForward : ScrollRequest::PageBack, 1};
    const auto notches = static_cast<std::uint64_t>(std::abs(std::int64_t{delta}) / kWheelNotch);
    const std::uint64_t lines = notches * linesPerNotch;
    const std::uint64_t count = lines < kFewestLinesForSteps ? 1 : lines / kLinesPerStep;
    return {forward ? ScrollRequest::LineForward : ScrollRequest::LineBack, count};
}

} // namespace ov

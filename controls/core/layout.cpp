#include "controls/core/layout.h"

#include "controls/core/dialog_units.h"

#include <algorithm>

namespace ov
{
namespace
{

// The width of a list's borders; without it the columns would need a horizontal scroll bar.
constexpr std::int32_t kListBorders = 4;

// Single precision and truncation decide some pixels at the edges; both are intended.
std::int32_t Scale(std::int32_t initial, std::uint32_t design, std::int32_t current)
{
    return static_cast<std::int32_t>(static_cast<float>(initial) / static_cast<float>(design) *
                                     static_cast<float>(current));
}

void PlaceVertically(Rect& rect, const Rect& initial)
{
    rect.top = initial.top;
    rect.bottom = initial.bottom;
}

} // namespace

void CaptureControl(CDlgControlInfo& info, const Rect& rect, std::int32_t clientWidth,
                    std::int32_t clientHeight)
{
    if (info.captured != 0)
        return;
    info.initialRect = rect;
    info.left = rect.left;
    info.rightMargin = clientWidth - rect.right;
    info.top = rect.top;
    info.bottomMargin = clientHeight - rect.bottom;
    info.captured = 1;
}

// The order matters: later rules override earlier ones, and some reset the other axis to its
// initial edges.
Rect PlaceControl(const CDlgControlInfo& info, std::uint32_t designWidth, std::uint32_t designHeight,
                  std::int32_t clientWidth, std::int32_t clientHeight)
{
    const Rect& initial = info.initialRect;
    const auto has = [&](std::uint32_t flag) { return (info.layoutFlags & flag) != 0; };
    Rect rect = initial;

    if (has(LayoutStretchWidth)) {
        rect.left = info.left;
        rect.right = clientWidth - info.rightMargin;
    }
    if (has(LayoutStretchHeight)) {
        rect.top = info.top;
        rect.bottom = clientHeight - info.bottomMargin;
    }
    if (has(LayoutScaleX)) {
        rect.left = Scale(info.left, designWidth, clientWidth);
        rect.right = rect.left + initial.Width();
        PlaceVertically(rect, initial);
    }

    if (has(LayoutScaleWidth)) {
        const std::int32_t width = Scale(initial.Width(), designWidth, clientWidth);
        if (has(LayoutScaleWidthFromRight)) {
            rect.right = clientWidth - info.rightMargin - 1;
            rect.left = rect.right - width;
        } else {
            rect.right = rect.left + width;
        }
    } else if (has(LayoutAnchorRight)) {
        rect.left = clientWidth - initial.Width() - info.rightMargin;
        rect.right = rect.left + initial.Width();
        PlaceVertically(rect, initial);
    } else if (has(LayoutKeepLeft)) {
        rect = initial;
    }

    if (has(LayoutScaleY)) {
        rect.top = Scale(info.top, designHeight, clientHeight);
        rect.bottom = rect.top + initial.Height();
    }

    if (has(LayoutScaleHeight)) {
        rect.bottom = rect.top + Scale(initial.Height(), designHeight, clientHeight);
    } else if (has(LayoutAnchorBottom)) {
        rect.top = clientHeight - info.bottomMargin - initial.Height();
        rect.bottom = rect.top + initial.Height();
    } else if (has(LayoutKeepTop)) {
        rect.top = initial.top;
    }
    return rect;
}

std::int32_t ColumnWidth(std::int32_t listWidth, std::int32_t columns)
{
    // A list view treats negative widths as requests to fit the column to its content.
    return columns > 0 ? std::max(0, (listWidth - kListBorders) / columns) : 0;
}

Rect GripRect(std::int32_t clientWidth, std::int32_t clientHeight)
{
    return {clientWidth - kGripSize, clientHeight - kGripSize, clientWidth, clientHeight};
}

std::optional<Size> MinimumTrackSize(std::uint32_t designWidth, std::uint32_t designHeight, const Size& units,
                                     const Size& workArea)
{
    if (designWidth == 0)
        return std::nullopt;
    const Size design{static_cast<std::int32_t>(designWidth), static_cast<std::int32_t>(designHeight)};
    const Size grown = SizeInUnits(design, units);
    return Size{std::max(design.width, std::min(grown.width, workArea.width)),
                std::max(design.height, std::min(grown.height, workArea.height))};
}

void CaptureControls(std::vector<CDlgControlInfo>& entries, LayoutControls& controls,
                     std::int32_t clientWidth, std::int32_t clientHeight)
{
    for (CDlgControlInfo& info : entries) {
        if (const std::optional<Rect> rect = controls.ControlRect(info.controlId))
            CaptureControl(info, *rect, clientWidth, clientHeight);
    }
}

void RecaptureControls(std::vector<CDlgControlInfo>& entries, LayoutControls& controls,
                       std::int32_t clientWidth, std::int32_t clientHeight)
{
    for (CDlgControlInfo& info : entries)
        info.captured = 0;
    CaptureControls(entries, controls, clientWidth, clientHeight);
}

void ApplyLayout(const std::vector<CDlgControlInfo>& entries, LayoutControls& controls,
                 std::uint32_t designWidth, std::uint32_t designHeight, std::int32_t clientWidth,
                 std::int32_t clientHeight)
{
    if (!IsLayoutActive(designWidth, designHeight))
        return;
    for (const CDlgControlInfo& info : entries) {
        if (!controls.ControlRect(info.controlId))
            continue;
        const Rect rect = PlaceControl(info, designWidth, designHeight, clientWidth, clientHeight);
        if ((info.layoutFlags & LayoutStretchWidth) != 0) {
            if (const std::int32_t columns = controls.ListColumns(info.controlId); columns > 0) {
                // The columns follow the stretched width, even if a later rule changes the control's width.
                const std::int32_t stretched = clientWidth - info.rightMargin - info.left;
                controls.SetListColumnWidths(info.controlId, ColumnWidth(stretched, columns));
            }
        }
        controls.MoveControl(info.controlId, rect);
    }
}

} // namespace ov

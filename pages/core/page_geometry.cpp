#include "pages/core/page_geometry.h"

#include "controls/core/layout.h"

#include <algorithm>

namespace ov
{
namespace
{
bool Stretches(const PlacedControl& control)
{
    return (control.layoutFlags & LayoutStretchWidth) != 0;
}

/// True if the control's right edge follows the page's.
bool Follows(const PlacedControl& control)
{
    return (control.layoutFlags & (LayoutStretchWidth | LayoutAnchorRight)) != 0;
}

bool BeginsIn(const Rect& outer, const Rect& inner)
{
    return inner.left >= outer.left && inner.left < outer.right && inner.top >= outer.top &&
           inner.top < outer.bottom;
}

std::int32_t NarrowestWidth(const PlacedControl& control, std::span<const PlacedControl> controls,
                            const PageWidths& widths)
{
    switch (control.kind) {
    case WidthKind::Caption:
        break;
    case WidthKind::Content:
        return std::min(control.rect.Width(), widths.shortestContent);
    case WidthKind::Frame:
        std::int32_t width = 0;
        for (const PlacedControl& member : controls) {
            if (&member != &control && BeginsIn(control.rect, member.rect) && !Follows(member))
                width = std::max(width, member.rect.right + widths.frameMargin - control.rect.left);
        }
        return width;
    }
    return control.rect.Width();
}
} // namespace

std::int32_t NarrowestPageWidth(std::span<const PlacedControl> controls, const PageWidths& widths)
{
    std::int32_t spare = widths.templateWidth;
    std::int32_t fixed = 0;
    for (const PlacedControl& control : controls) {
        if (Stretches(control))
            spare = std::min(spare, control.rect.Width() - NarrowestWidth(control, controls, widths));
        else if (!Follows(control))
            fixed = std::max(fixed, control.rect.right);
    }
    return std::max(widths.templateWidth - std::max(spare, 0), fixed);
}

std::int32_t ContentHeight(std::span<const PlacedControl> controls)
{
    std::int32_t height = 0;
    for (const PlacedControl& control : controls)
        height = std::max(height, control.rect.bottom);
    return height;
}

} // namespace ov

#include "controls/core/tooltip_layout.h"

#include <algorithm>
#include <cstdlib>

namespace ov
{
namespace
{

constexpr Size kMargin{12, 10};          // around the text
constexpr std::int32_t kIconLeft = 10;   // of the icon, from the body's left side
constexpr std::int32_t kIconGap = 2;     // between icon and text
constexpr std::int32_t kTailInset = 12;  // between the outer end of the base and the body's side
constexpr std::int32_t kTailWidth = 25;  // of the base
constexpr std::int32_t kTailHeight = 25; // from the body to the tip
constexpr std::int32_t kReach = 10;      // past the anchor, or off it

// Extracts the next section of that kind; false if there is none.
bool TakeSection(TextView text, TooltipSection section, std::size_t& position,
                 std::vector<TooltipPart>& parts)
{
    const std::size_t before = position;
    const TextView found = ExtractSection(text, section, position);
    if (position == before)
        return false;
    parts.push_back({section, found, {}});
    return true;
}

std::int32_t IconColumn(Size icon)
{
    return icon.width != 0 ? icon.width + kIconGap : 0;
}

} // namespace

std::vector<TooltipPart> SplitTooltip(TextView text)
{
    std::vector<TooltipPart> parts;
    for (const TooltipSection section : {TooltipSection::Heading, TooltipSection::Variable}) {
        std::size_t position = 0;
        if (TakeSection(text, section, position, parts) && parts.back().text.empty())
            parts.pop_back();
    }
    // Each kind has its own position; with a common one a description
    // before the first sub-heading would be skipped.
    std::size_t subHeading = 0;
    std::size_t description = 0;
    bool more = true;
    while (more) {
        more = TakeSection(text, TooltipSection::SubHeading, subHeading, parts);
        more = TakeSection(text, TooltipSection::Description, description, parts) || more;
    }
    return parts;
}

TooltipMetrics MetricsOfFont(std::int32_t fontHeight)
{
    const std::int32_t height = std::abs(fontHeight);
    return {height, height / 3};
}

Size TooltipBodySize(const std::vector<TooltipPart>& parts, const TooltipMetrics& metrics, Size icon)
{
    Size size;
    for (const TooltipPart& part : parts) {
        size.width = std::max(size.width, part.extent.width);
        size.height += part.extent.height + metrics.lineGap;
    }
    const auto subHeadings =
        static_cast<std::int32_t>(std::count_if(parts.begin(), parts.end(), [](const TooltipPart& part) {
            return part.section == TooltipSection::SubHeading;
        }));
    if (subHeadings != 0)
        size.height += (subHeadings + 1) * metrics.fontHeight;
    return {size.width + 2 * kMargin.width + IconColumn(icon),
            std::max(size.height + 2 * kMargin.height, icon.height)};
}

TooltipSide ChooseTooltipSide(Size body, Point anchor)
{
    return {body.width + kTailInset >= anchor.x, body.height + kReach < anchor.y};
}

TooltipOutline OutlineTooltip(Size body, TooltipSide side, bool withTail)
{
    if (!withTail)
        return {body, {0, 0, body.width, body.height}, std::nullopt};
    const std::int32_t top = side.above ? 0 : kTailHeight;
    const Rect rect{0, top, body.width, top + body.height};
    // The system omits the last pixels of a rounded region. The tail begins slightly
    // inside the body, with its slope extended, so that no gap is visible.
    constexpr std::int32_t overlap = 2;
    const std::int32_t outer = side.right ? kTailInset : body.width - kTailInset;
    const std::int32_t inward = side.right ? kTailWidth + overlap : -(kTailWidth + overlap);
    const std::int32_t base = side.above ? rect.bottom - overlap : rect.top + overlap;
    const std::int32_t tip = side.above ? rect.bottom + kTailHeight : 0;
    return {{body.width, body.height + kTailHeight},
            rect,
            std::array<Point, 3>{Point{outer, base}, Point{outer + inward, base}, Point{outer, tip}}};
}

Point TooltipPosition(const TooltipOutline& outline, TooltipSide side, Point anchor)
{
    const std::int32_t left =
        side.right ? anchor.x - kTailInset : anchor.x - outline.window.width + kTailInset;
    const std::int32_t above = anchor.y - outline.window.height;
    // A tail reaches past the anchor; a window without one keeps away from the cursor.
    if (!outline.tail)
        return {left, side.above ? above : anchor.y + kReach};
    return {left, side.above ? above + kReach : anchor.y - kReach};
}

std::vector<Rect> PlaceTooltipParts(const std::vector<TooltipPart>& parts, const TooltipMetrics& metrics,
                                    const TooltipOutline& outline, Size icon)
{
    std::vector<Rect> places;
    places.reserve(parts.size());
    const std::int32_t left = outline.body.left + kMargin.width + IconColumn(icon);
    std::int32_t top = outline.body.top + kMargin.height;
    for (const TooltipPart& part : parts) {
        places.push_back({left, top, left + part.extent.width, top + part.extent.height});
        top += part.extent.height + metrics.lineGap;
    }
    return places;
}

Point PlaceTooltipIcon(const TooltipOutline& outline)
{
    return {outline.body.left + kIconLeft, outline.body.top + kMargin.height};
}

} // namespace ov

#include "pages/core/page_layout.h"

#include "pages/core/page_template.h"

#include <algorithm>
#include <stdexcept>

namespace ov
{
namespace
{
std::uint32_t LayoutByRule(const PageRows& page, const TemplateControl& control)
{
    if (control.kind == TemplateKind::Edit) {
        const bool hasArrows =
            std::ranges::find(page.spins, control.id, &SpinRow::buddyId) != page.spins.end();
        return hasArrows ? kFixed : kStretched;
    }
    return control.kind == TemplateKind::Button && control.caption == "..." ? kTopRight : kFixed;
}
} // namespace

std::vector<LayoutRow> LayoutOf(const PageRows& page)
{
    const PageTemplate* dialog = FindTemplate(page.info.templateId);
    if (dialog == nullptr)
        throw std::logic_error("The page has no template.");
    std::vector<LayoutRow> layout;
    for (const TemplateControl& control : dialog->controls) {
        const auto row = std::ranges::find(page.layout, control.id, &LayoutRow::controlId);
        layout.push_back(
            {control.id, row != page.layout.end() ? row->layoutFlags : LayoutByRule(page, control)});
    }
    return layout;
}

} // namespace ov

#include "pages/core/page_template.h"

#include "controls/core/accessible_names.h"
#include "pages/core/page_dialog.h"

#include <algorithm>
#include <initializer_list>
#include <winresrc.h>

namespace ov
{
namespace
{
TemplateKind KindOfClass(std::string_view windowClass)
{
    if (windowClass == "msctls_updown32")
        return TemplateKind::UpDown;
    return windowClass == "msctls_trackbar32" ? TemplateKind::TrackBar : TemplateKind::DatePicker;
}

/// A control as written in a template.
struct StatedControl {
    TemplateControl control;

    StatedControl() = default;
    StatedControl(TemplateKind kind, std::string_view caption, int id, int, int, int, int, int style = 0,
                  int = 0)
        // Every label begins a group, with or without WS_GROUP in its line.
        : control{kind, caption, id, kind == TemplateKind::Label || (style & WS_GROUP) != 0,
                  (style & ES_READONLY) != 0}
    {
    }
    StatedControl(std::string_view caption, int id, std::string_view windowClass, int style, int, int, int,
                  int, int = 0)
        : control{KindOfClass(windowClass), caption, id, (style & WS_GROUP) != 0, false}
    {
    }
};

/// Reads a template. The arguments are the words of its file in order: id, position
/// and size, styles, font. The first control of the list is empty.
PageTemplate ReadTemplate(unsigned id, int, int, int, int, int, int, int, std::string_view, int, int, int,
                          std::initializer_list<StatedControl> controls)
{
    PageTemplate page{id, {}};
    for (const StatedControl* stated = controls.begin() + 1; stated != controls.end(); ++stated)
        page.controls.push_back(stated->control);
    return page;
}

std::vector<PageTemplate> ReadTemplates()
{
#define OV_TEMPLATE_BEGIN ReadTemplate(
#define OV_TEMPLATE_END ),
    return {
#include "pages/page_templates.inc"
    };
#undef OV_TEMPLATE_BEGIN
#undef OV_TEMPLATE_END
}

ControlRole RoleOf(TemplateKind kind)
{
    switch (kind) {
    case TemplateKind::Label:
        return ControlRole::Label;
    case TemplateKind::Frame:
        return ControlRole::Frame;
    case TemplateKind::CheckBox:
        return ControlRole::Box;
    case TemplateKind::RadioButton:
        return ControlRole::Radio;
    case TemplateKind::Button:
        return ControlRole::Button;
    case TemplateKind::UpDown:
        return ControlRole::UpDown;
    case TemplateKind::Edit:
    case TemplateKind::List:
    case TemplateKind::TrackBar:
    case TemplateKind::DatePicker:
        break;
    }
    return ControlRole::Input;
}
} // namespace

const PageTemplate* FindTemplate(unsigned templateId)
{
    static const std::vector<PageTemplate> templates = ReadTemplates();
    const auto found = std::ranges::find(templates, templateId, &PageTemplate::id);
    return found != templates.end() ? &*found : nullptr;
}

std::vector<const TemplateControl*> ButtonsOfGroup(const PageTemplate& page, int firstButtonId)
{
    std::vector<const TemplateControl*> buttons;
    auto control = std::ranges::find(page.controls, firstButtonId, &TemplateControl::id);
    for (; control != page.controls.end(); ++control) {
        if (!buttons.empty() && control->beginsGroup)
            break;
        if (control->kind == TemplateKind::RadioButton)
            buttons.push_back(&*control);
    }
    return buttons;
}

Text CaptionOf(const PageTemplate& page, int controlId)
{
    const auto control = std::ranges::find(page.controls, controlId, &TemplateControl::id);
    if (control == page.controls.end())
        return {};
    if (RoleOf(control->kind) != ControlRole::Input)
        return SpokenCaption(TextFromUtf8(control->caption));
    if (control != page.controls.begin() && (control - 1)->kind == TemplateKind::Label)
        return SpokenCaption(TextFromUtf8((control - 1)->caption));
    std::vector<ControlToName> controls;
    for (const TemplateControl& each : page.controls)
        controls.push_back({RoleOf(each.kind), TextFromUtf8(each.caption), {}});
    return NamesToGive(controls)[static_cast<std::size_t>(control - page.controls.begin())];
}

Text CaptionOfGroup(const PageTemplate& page, int firstButtonId)
{
    auto control = std::ranges::find(page.controls, firstButtonId, &TemplateControl::id);
    if (control == page.controls.end() || control == page.controls.begin())
        return {};
    --control;
    while (control->kind != TemplateKind::Label && control->kind != TemplateKind::Frame) {
        if (control == page.controls.begin())
            return {};
        --control;
    }
    return SpokenCaption(TextFromUtf8(control->caption));
}

} // namespace ov

#include "controls/control_names.h"

#include "controls/core/accessible_names.h"
#include "resources/ids.h"

#include <cwchar>
#include <optional>
#include <utility>
#include <vector>

namespace
{
// The longest possible class name with its terminator; captions are shorter.
using ShortText = wchar_t[257];

ov::ControlRole RoleOfButton(HWND button)
{
    switch (::GetWindowLongPtrW(button, GWL_STYLE) & BS_TYPEMASK) {
    case BS_GROUPBOX:
        return ov::ControlRole::Frame;
    case BS_AUTOCHECKBOX:
        return ov::ControlRole::Box;
    case BS_AUTORADIOBUTTON:
        return ov::ControlRole::Radio;
    default:
        return ov::ControlRole::Button;
    }
}

// Nothing for windows that are not controls: a page, the size grip.
std::optional<ov::ControlRole> RoleOf(HWND window)
{
    ShortText name;
    ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
    const auto is = [&](const wchar_t* windowClass) { return ::_wcsicmp(name, windowClass) == 0; };
    if (is(WC_BUTTONW))
        return RoleOfButton(window);
    if (is(WC_STATICW))
        return ov::ControlRole::Label;
    if (is(UPDOWN_CLASSW))
        return ov::ControlRole::UpDown;
    if (is(WC_EDITW) || is(WC_COMBOBOXW) || is(WC_LISTVIEWW) || is(DATETIMEPICK_CLASSW) ||
        is(TRACKBAR_CLASSW))
        return ov::ControlRole::Input;
    return std::nullopt;
}

ov::Text CaptionOf(HWND window)
{
    ShortText caption;
    const int length = ::GetWindowTextW(window, caption, static_cast<int>(std::size(caption)));
    return FromWide({caption, static_cast<size_t>(length)});
}

} // namespace

void NameControls(std::span<const HWND> windows, const std::function<UINT(int controlId)>& nameId,
                  CWindowNames& names)
{
    std::vector<HWND> named;
    std::vector<ov::ControlToName> controls;
    for (const HWND window : windows) {
        const std::optional<ov::ControlRole> role = RoleOf(window);
        if (!role)
            continue;
        ov::ControlToName control{*role, {}, {}};
        // What an input shows is its value.
        if (*role != ov::ControlRole::Input)
            control.caption = CaptionOf(window);
        UINT given = nameId(::GetDlgCtrlID(window));
        if (given == 0 && *role == ov::ControlRole::Button)
            given = IDS_NAME_BROWSE;
        if (given != 0)
            control.given = AfxLoadString(given);
        named.push_back(window);
        controls.push_back(std::move(control));
    }
    const std::vector<ov::Text> found = ov::NamesToGive(controls);
    for (size_t i = 0; i < found.size(); ++i) {
        if (!found[i].empty())
            names.Set(named[i], found[i]);
    }
}

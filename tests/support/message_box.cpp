#include "tests/support/message_box.h"

#include "tests/support/control_state.h"
#include "tests/support/window_search.h"

#include <algorithm>

namespace uidriver
{

namespace
{

bool IsMessageBox(HWND window)
{
    if (ClassOf(window) != L"#32770")
        return false;
    // A message box contains only statics and buttons.
    const auto children = Children(window);
    return !children.empty() && std::ranges::all_of(children, [](HWND child) {
        const auto name = ClassOf(child);
        return name == L"Static" || name == L"Button";
    });
}

MessageBoxContent ReadMessageBox(HWND window)
{
    MessageBoxContent content;
    content.window = window;
    content.caption = GetText(window);
    for (HWND child : Children(window)) {
        if (!IsWindowVisible(child))
            continue;
        if (ClassOf(child) == L"Button")
            content.buttons.push_back({GetDlgCtrlID(child), GetText(child)});
        else if (!(GetWindowLongPtrW(child, GWL_STYLE) & SS_ICON))
            content.text += GetText(child);
    }
    std::ranges::stable_sort(content.buttons, {}, [window](const MessageBoxButton& button) {
        return RectIn(GetDlgItem(window, button.id), window).left;
    });
    return content;
}

} // namespace

MessageBoxContent AwaitMessageBox(const std::wstring& caption, HWND sameProcess, unsigned deadline)
{
    DWORD processId = AnyProcess;
    if (sameProcess)
        GetWindowThreadProcessId(sameProcess, &processId);
    MessageBoxContent content;
    Await(
        [&] {
            HWND window = FindTopWindow(caption, processId);
            if (!window || !IsMessageBox(window) || !IsResponsive(window))
                return false;
            content = ReadMessageBox(window);
            return true;
        },
        deadline);
    return content;
}

bool AnswerMessageBox(HWND messageBox, int buttonId)
{
    HWND button = GetDlgItem(messageBox, buttonId);
    if (!button || !IsWindowVisible(button))
        return false;
    PostMessageW(button, BM_CLICK, 0, 0);
    return AwaitGone(messageBox);
}

} // namespace uidriver

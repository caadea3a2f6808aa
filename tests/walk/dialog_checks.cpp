#include "tests/walk/dialog_checks.h"

#include "tests/support/await.h"
#include "tests/support/control_actions.h"
#include "tests/support/control_state.h"
#include "tests/support/window_search.h"

#include <cstdio>

using namespace uidriver;

namespace walk
{

namespace
{

// Opening makes the windows of all pages, which takes long on a busy machine.
constexpr unsigned openingDeadline = 60000;

// Activation goes by way of the window manager.
constexpr unsigned focusDeadline = 5000;

BOOL CALLBACK CollectInputWindow(HWND window, LPARAM parameter)
{
    if (IsWindowVisible(window) && IsWindowEnabled(window) && ClassOf(window) == L"#32770")
        reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(window);
    return TRUE;
}

BOOL CALLBACK DescribeWindow(HWND window, LPARAM parameter)
{
    if (IsWindowVisible(window))
        *reinterpret_cast<std::string*>(parameter) +=
            "\n  " + NameOf(window) + (IsWindowEnabled(window) ? "" : " (disabled)");
    return TRUE;
}

/// Whether the window lies in the other one or, as drop-down lists and calendars do, belongs to it.
bool BelongsTo(HWND window, HWND other)
{
    while (window && window != other) {
        const bool isChild = (GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD) != 0;
        window = isChild ? GetParent(window) : GetWindow(window, GW_OWNER);
    }
    return window == other;
}

std::string FaultOf(HWND focus, HWND inputWindow)
{
    if (!focus)
        return "no control has the focus";
    if (!BelongsTo(focus, inputWindow))
        return "the focus is outside of the window that takes input: " + NameOf(focus);
    if (!IsShown(focus))
        return "the focus is hidden: " + NameOf(focus);
    if (!IsEnabled(focus))
        return "the focus is disabled: " + NameOf(focus);
    return "";
}

} // namespace

std::vector<HWND> InputWindows(DWORD thread)
{
    std::vector<HWND> windows;
    EnumThreadWindows(thread, CollectInputWindow, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::string DescribeWindows(DWORD thread)
{
    std::string description;
    EnumThreadWindows(thread, DescribeWindow, reinterpret_cast<LPARAM>(&description));
    return description;
}

HWND AwaitInputWindow(DWORD thread, const std::function<bool()>& ended)
{
    std::vector<HWND> windows;
    // One that is about to close answers no more.
    const auto isThere = [&] {
        windows = InputWindows(thread);
        return ended() || (windows.size() == 1 && Settle(windows[0]) && InputWindows(thread) == windows);
    };
    if (!Await(isThere, openingDeadline) || ended())
        return nullptr;
    return windows[0];
}

std::string FocusFault(HWND inputWindow)
{
    std::string fault;
    Await(
        [&] {
            fault = FaultOf(FocusIn(inputWindow), inputWindow);
            if (!fault.empty() && IsWindow(inputWindow) && GetForegroundWindow() != inputWindow)
                SetForegroundWindow(inputWindow);
            return fault.empty() || !IsWindow(inputWindow);
        },
        focusDeadline);
    return IsWindow(inputWindow) ? fault : "";
}

std::string Printable(const std::wstring& text)
{
    constexpr std::size_t longest = 80;
    std::string printable;
    for (const wchar_t character : text.substr(0, longest)) {
        char escaped[8] = {};
        if (character >= 0x20 && character < 0x7F)
            printable += static_cast<char>(character);
        else if (std::snprintf(escaped, sizeof escaped, "\\u%04X", character) > 0)
            printable += escaped;
    }
    return text.size() > longest ? printable + "... (" + std::to_string(text.size()) + " characters)"
                                 : printable;
}

std::string NameOf(HWND control)
{
    std::string name = Printable(ClassOf(control)) + " " + std::to_string(GetDlgCtrlID(control));
    wchar_t text[64] = {};
    InternalGetWindowText(control, text, static_cast<int>(std::size(text)));
    if (*text)
        name += " \"" + Printable(text) + "\"";
    return name;
}

} // namespace walk

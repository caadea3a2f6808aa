#include "tests/support/window_search.h"

namespace uidriver
{

namespace
{

constexpr const wchar_t* DialogClass = L"#32770";

struct Search {
    const std::wstring& caption;
    DWORD processId;
    HWND found;
};

BOOL CALLBACK CompareWindow(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    if (!IsWindowVisible(window) || (search.processId != AnyProcess && search.processId != processId))
        return TRUE;
    // InternalGetWindowText does not call the window procedure, so it cannot hang.
    wchar_t caption[256] = {};
    InternalGetWindowText(window, caption, static_cast<int>(std::size(caption)));
    if (search.caption != caption)
        return TRUE;
    search.found = window;
    return FALSE;
}

HWND FindInChildDialogs(HWND window, int id, bool visible)
{
    for (HWND child : Children(window)) {
        if (ClassOf(child) != DialogClass || (IsWindowVisible(child) != FALSE) != visible)
            continue;
        if (HWND found = FindControl(child, id))
            return found;
    }
    return nullptr;
}

} // namespace

HWND FindTopWindow(const std::wstring& caption, DWORD processId)
{
    Search search{caption, processId, nullptr};
    EnumWindows(CompareWindow, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND AwaitTopWindow(const std::wstring& caption, DWORD processId, unsigned deadline)
{
    HWND window = nullptr;
    const bool found = Await(
        [&] {
            window = FindTopWindow(caption, processId);
            return window != nullptr && IsResponsive(window, deadline);
        },
        deadline);
    return found ? window : nullptr;
}

bool AwaitGone(HWND window, unsigned deadline)
{
    return Await([&] { return !IsWindow(window); }, deadline);
}

bool IsResponsive(HWND window, unsigned deadline)
{
    DWORD_PTR result = 0;
    return SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, deadline, &result) != 0;
}

std::vector<HWND> Children(HWND window)
{
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

std::wstring ClassOf(HWND window)
{
    wchar_t name[256] = {};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return name;
}

HWND FindControl(HWND window, int id)
{
    for (HWND child : Children(window)) {
        if (GetDlgCtrlID(child) == id && ClassOf(child) != DialogClass)
            return child;
    }
    if (HWND found = FindInChildDialogs(window, id, true))
        return found;
    return FindInChildDialogs(window, id, false);
}

HWND AwaitControl(HWND window, int id, unsigned deadline)
{
    HWND control = nullptr;
    Await(
        [&] {
            control = FindControl(window, id);
            return control != nullptr;
        },
        deadline);
    return control;
}

HWND VisiblePage(HWND dialog)
{
    for (HWND child : Children(dialog)) {
        if (ClassOf(child) == DialogClass && IsWindowVisible(child) && !GetDlgItem(child, CategoryListId))
            return child;
    }
    return nullptr;
}

HWND FocusIn(HWND window)
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
    return info.hwndFocus;
}

RECT RectIn(HWND control, HWND window)
{
    RECT rect = {};
    GetWindowRect(control, &rect);
    MapWindowPoints(HWND_DESKTOP, window, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

} // namespace uidriver

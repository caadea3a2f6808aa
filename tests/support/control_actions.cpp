#include "tests/support/control_actions.h"

#include "tests/support/control_state.h"
#include "tests/support/window_search.h"

#include <atomic>

namespace uidriver
{

namespace
{

// A marker in the message queue: WM_NULL, identified by its first parameter; the
// second one is the event to set.
constexpr WPARAM Marker = 0x6F764D4B;

LRESULT CALLBACK SeeMarker(int code, WPARAM removed, LPARAM parameter)
{
    const auto& message = *reinterpret_cast<const MSG*>(parameter);
    if (code == HC_ACTION && removed == PM_REMOVE && message.message == WM_NULL && message.wParam == Marker)
        SetEvent(reinterpret_cast<HANDLE>(message.lParam));
    return CallNextHookEx(nullptr, code, removed, parameter);
}

// The key whose release PressKey waits for; 0 once the thread has retrieved it.
std::atomic<WPARAM> releasedKey = 0;

LRESULT CALLBACK SeeKeyRelease(int code, WPARAM removed, LPARAM parameter)
{
    const auto& message = *reinterpret_cast<const MSG*>(parameter);
    const bool keyUp = message.message == WM_KEYUP || message.message == WM_SYSKEYUP;
    if (code == HC_ACTION && removed == PM_REMOVE && keyUp && message.wParam == releasedKey)
        releasedKey = 0;
    return CallNextHookEx(nullptr, code, removed, parameter);
}

void Notify(HWND control, WORD code)
{
    const auto id = static_cast<WORD>(GetDlgCtrlID(control));
    Send(GetParent(control), WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
}

// The edit control inside a combo box, or the control itself.
HWND EditOf(HWND control)
{
    HWND inner =
        ClassOf(control) == L"ComboBox" ? FindWindowExW(control, nullptr, L"Edit", nullptr) : nullptr;
    return inner ? inner : control;
}

INPUT KeyInput(WORD virtualKey, bool up)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    return input;
}

} // namespace

bool Settle(HWND window, unsigned deadline)
{
    DWORD processId = 0;
    const DWORD threadId = GetWindowThreadProcessId(window, &processId);
    if (threadId == 0)
        return true; // destroyed, together with everything posted to it
    if (processId != GetCurrentProcessId())
        return IsResponsive(window, deadline);
    HANDLE seen = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HHOOK hook = SetWindowsHookExW(WH_GETMESSAGE, SeeMarker, nullptr, threadId);
    PostThreadMessageW(threadId, WM_NULL, Marker, reinterpret_cast<LPARAM>(seen));
    // The marker is retrieved after the messages before it were handled. If the
    // window is destroyed meanwhile, the loop that would retrieve it may end.
    const bool settled = Await(
        [&] { return WaitForSingleObject(seen, 0) == WAIT_OBJECT_0 || !IsWindow(window); }, deadline, seen);
    UnhookWindowsHookEx(hook);
    CloseHandle(seen);
    return settled;
}

void Focus(HWND control)
{
    HWND dialog = GetAncestor(control, GA_ROOT);
    PostMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    Await([&] { return FocusIn(control) == control; });
    Settle(dialog);
}

void SetText(HWND edit, const std::wstring& text)
{
    HWND target = EditOf(edit);
    Send(target, EM_SETSEL, 0, -1);
    Send(target, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

void TypeText(HWND edit, const std::wstring& text)
{
    HWND target = EditOf(edit);
    Send(target, EM_SETSEL, 0, -1);
    for (wchar_t character : text)
        PostMessageW(target, WM_CHAR, character, 1);
    Settle(target);
}

void Click(HWND button)
{
    PostMessageW(button, BM_CLICK, 0, 0);
    Settle(button);
}

void ClickAt(HWND window, POINT point, bool doubleClick)
{
    const LPARAM position = MAKELPARAM(point.x, point.y);
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, position);
    PostMessageW(window, WM_LBUTTONUP, 0, position);
    if (doubleClick) {
        PostMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, position);
        PostMessageW(window, WM_LBUTTONUP, 0, position);
    }
    Settle(window);
}

void PostKey(HWND window, WORD virtualKey)
{
    HWND target = FocusIn(window);
    if (!target)
        target = window;
    const auto scanCode = static_cast<LPARAM>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC)) << 16;
    constexpr LPARAM released = 0xC0000000;
    PostMessageW(target, WM_KEYDOWN, virtualKey, scanCode | 1);
    PostMessageW(target, WM_KEYUP, virtualKey, released | scanCode | 1);
    Settle(window);
}

bool BringToForeground(HWND window)
{
    HWND root = GetAncestor(window, GA_ROOT);
    return Await([&] { return GetForegroundWindow() == root || (SetForegroundWindow(root), false); });
}

bool PressKey(HWND window, WORD virtualKey, WORD modifier)
{
    if (!BringToForeground(window))
        return false;
    INPUT inputs[4] = {};
    UINT count = 0;
    if (modifier)
        inputs[count++] = KeyInput(modifier, false);
    inputs[count++] = KeyInput(virtualKey, false);
    inputs[count++] = KeyInput(virtualKey, true);
    if (modifier)
        inputs[count++] = KeyInput(modifier, true);
    // Posted messages overtake keyboard input, so a marker alone is not sufficient.
    releasedKey = inputs[count - 1].ki.wVk;
    HHOOK hook =
        SetWindowsHookExW(WH_GETMESSAGE, SeeKeyRelease, nullptr, GetWindowThreadProcessId(window, nullptr));
    const bool pressed = SendInput(count, inputs, sizeof(INPUT)) == count &&
                         Await([&] { return releasedKey == 0 || !IsWindow(window); });
    UnhookWindowsHookEx(hook);
    Settle(window);
    return pressed;
}

void SelectComboEntry(HWND comboBox, int index)
{
    Send(comboBox, CB_SETCURSEL, static_cast<WPARAM>(index));
    Notify(comboBox, CBN_SELENDOK);
    Notify(comboBox, CBN_SELCHANGE);
}

void SelectListBoxEntry(HWND listBox, int index)
{
    Send(listBox, LB_SETCURSEL, static_cast<WPARAM>(index));
    Notify(listBox, LBN_SELCHANGE);
}

void Resize(HWND window, int width, int height)
{
    SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    Settle(window);
}

} // namespace uidriver

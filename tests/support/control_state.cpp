#include "tests/support/control_state.h"

#include "tests/support/await.h"

#include <commctrl.h>
#include <string_view>

namespace uidriver
{

namespace
{

std::vector<std::wstring> Entries(HWND control, UINT countMessage, UINT lengthMessage, UINT textMessage)
{
    std::vector<std::wstring> texts;
    const auto count = Send(control, countMessage);
    for (LRESULT index = 0; index < count; ++index) {
        const auto length = Send(control, lengthMessage, static_cast<WPARAM>(index));
        if (length < 0)
            break;
        std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
        Send(control, textMessage, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
        text.resize(static_cast<std::size_t>(length));
        texts.push_back(std::move(text));
    }
    return texts;
}

} // namespace

LRESULT Send(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    DWORD_PTR result = 0;
    SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, DefaultDeadline, &result);
    return static_cast<LRESULT>(result);
}

std::wstring GetText(HWND control)
{
    const auto length = static_cast<std::size_t>(Send(control, WM_GETTEXTLENGTH));
    std::wstring text(length + 1, L'\0');
    const auto copied = Send(control, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(copied));
    return text;
}

int CheckState(HWND button)
{
    return static_cast<int>(Send(button, BM_GETCHECK));
}

bool IsEnabled(HWND control)
{
    for (HWND window = control; window; window = GetAncestor(window, GA_PARENT)) {
        if (!IsWindowEnabled(window))
            return false;
        if (!(GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD))
            break;
    }
    return true;
}

bool IsShown(HWND control)
{
    return IsWindowVisible(control) != FALSE;
}

// The class's procedure is in the library of its version, which has a folder of its
// own, named after the version.
bool IsVersionSix(HWND control)
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(GetClassLongPtrW(control, GCLP_WNDPROC)), &module);
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(module, path, MAX_PATH);
    CharLowerW(path);
    const std::wstring_view library = path;
    return library.find(L"microsoft.windows.common-controls_6595b64144ccf1df_6.0.") != library.npos &&
           library.ends_with(L"\\comctl32.dll");
}

int ComboSelection(HWND comboBox)
{
    return static_cast<int>(Send(comboBox, CB_GETCURSEL));
}

std::vector<std::wstring> ComboTexts(HWND comboBox)
{
    return Entries(comboBox, CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT);
}

std::vector<std::wstring> ListBoxTexts(HWND listBox)
{
    return Entries(listBox, LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT);
}

int ListBoxSelection(HWND listBox)
{
    return static_cast<int>(Send(listBox, LB_GETCURSEL));
}

int TrackbarPosition(HWND trackbar)
{
    return static_cast<int>(Send(trackbar, TBM_GETPOS));
}

int SpinPosition(HWND upDown)
{
    return static_cast<int>(Send(upDown, UDM_GETPOS32));
}

} // namespace uidriver

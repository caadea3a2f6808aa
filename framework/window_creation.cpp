#include "framework/exceptions.h"
#include "framework/module_state.h"
#include "framework/thread_state.h"

#include <cwchar>
#include <set>
#include <string>
#include <utility>

namespace
{
// When a thread creates its first window, the system also creates its input method
// window. The hook must not bind that one.
bool IsInputMethodWindow(HWND window)
{
    if ((::GetClassLongPtrW(window, GCL_STYLE) & CS_IME) != 0)
        return true;
    return AfxIsOfClass(window, L"ime");
}

std::set<std::wstring>& RegisteredClasses()
{
    static std::set<std::wstring> classes;
    return classes;
}
} // namespace

LRESULT CALLBACK CCreationHook::HookProc(int code, WPARAM wParam, LPARAM lParam)
{
    AFX_THREAD_STATE& state = AfxGetThreadState();
    const auto created = reinterpret_cast<HWND>(wParam);
    if (code != HCBT_CREATEWND || state.creation == nullptr || IsInputMethodWindow(created))
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    CCreationHook* const creation = std::exchange(state.creation, nullptr);
    if (!creation->Meet(created))
        return 1;
    const LRESULT result = ::CallNextHookEx(nullptr, code, wParam, lParam);
    // Otherwise the hook would run for every control of a dialog.
    creation->Unhook();
    return result;
}

CCreationHook::CCreationHook(CWnd* window)
    : m_window(window), m_pending(AfxGetThreadState().creation, this),
      m_hook(::SetWindowsHookExW(WH_CBT, &HookProc, nullptr, ::GetCurrentThreadId()))
{
}

CCreationHook::~CCreationHook()
{
    Unhook();
}

void CCreationHook::Unhook() noexcept
{
    if (m_hook != nullptr)
        ::UnhookWindowsHookEx(std::exchange(m_hook, nullptr));
}

bool CCreationHook::Meet(HWND window) noexcept
{
    // No exception may unwind through the system. Returning false makes the creation
    // fail instead.
    try {
        m_bound = m_window->Bind(window);
    } catch (...) {
        m_failure = std::current_exception();
    }
    return m_bound;
}

bool CCreationHook::Finish(HWND created) const
{
    if (m_bound)
        return true;
    if (created != nullptr)
        ::DestroyWindow(created);
    if (m_failure != nullptr) {
        try {
            std::rethrow_exception(m_failure);
        } catch (...) {
            AfxReportCurrentException();
        }
    }
    return false;
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, int x, int y, int width,
                    int height, HWND parent, HMENU menuOrId)
{
    if (m_hWnd != nullptr)
        return FALSE;
    if (className == nullptr)
        className = AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW));
    {
        const CCreationHook hook(this);
        const HWND created = ::CreateWindowExW(exStyle, className, text, style, x, y, width, height, parent,
                                               menuOrId, AfxGetInstanceHandle(), nullptr);
        if (hook.Finish(created)) {
            AfxGetThreadState().controls.erase(parent);
            return created != nullptr;
        }
    }
    // The window was never created, but the object still expects PostNcDestroy.
    PostNcDestroy();
    return FALSE;
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, const RECT& rectangle,
                    CWnd* parent, UINT id)
{
    const CRect r(rectangle);
    return CreateEx(exStyle, className, text, style, r.left, r.top, r.Width(), r.Height(),
                    AfxSafeHwnd(parent), reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)));
}

BOOL CWnd::Create(LPCWSTR className, LPCWSTR text, DWORD style, const RECT& rectangle, CWnd* parent, UINT id)
{
    return CreateEx(0, className, text, style | WS_CHILD, rectangle, parent, id);
}

BOOL CWnd::DestroyWindow()
{
    if (m_hWnd == nullptr)
        return FALSE;
    const HWND window = m_hWnd;
    const bool permanent = FromHandlePermanent(window) == this;
    const BOOL destroyed = ::DestroyWindow(window);
    // A subclassed window has already released its object, which may be deleted by now.
    // An object that was only attached is still bound.
    if (permanent && FromHandlePermanent(window) == this)
        Detach();
    return destroyed;
}

LPCWSTR AfxRegisterWndClass(UINT style, HCURSOR cursor, HBRUSH background, HICON icon)
{
    const HINSTANCE instance = AfxGetInstanceHandle();
    wchar_t name[96];
    std::swprintf(name, std::size(name), L"Afx:%p:%x:%p:%p:%p", static_cast<void*>(instance), style,
                  static_cast<void*>(cursor), static_cast<void*>(background), static_cast<void*>(icon));
    WNDCLASSW description{};
    if (!::GetClassInfoW(instance, name, &description)) {
        description = {};
        description.style = style;
        description.lpfnWndProc = &::DefWindowProcW;
        description.hInstance = instance;
        description.hIcon = icon;
        description.hCursor = cursor;
        description.hbrBackground = background;
        description.lpszClassName = name;
        if (::RegisterClassW(&description) == 0)
            return nullptr;
    }
    return RegisteredClasses().insert(name).first->c_str();
}

void AfxUnregisterWndClasses()
{
    for (const std::wstring& name : RegisteredClasses())
        ::UnregisterClassW(name.c_str(), AfxGetInstanceHandle());
    RegisteredClasses().clear();
}

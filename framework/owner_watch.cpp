#include "framework/owner_watch.h"

#include "framework/thread_state.h"

COwnerWatch::COwnerWatch(HWND dialog) : m_dialog(dialog), m_outer(AfxGetThreadState().ownerWatches)
{
    AfxGetThreadState().ownerWatches = this;
    const HWND owner = ::GetWindow(dialog, GW_OWNER);
    const DWORD thread = ::GetCurrentThreadId();
    if (owner != nullptr && CWnd::FromHandlePermanent(owner) == nullptr &&
        ::GetWindowThreadProcessId(owner, nullptr) == thread)
        m_hook = ::SetWindowsHookExW(WH_CBT, &HookProc, nullptr, thread);
}

COwnerWatch::~COwnerWatch()
{
    if (m_hook != nullptr)
        ::UnhookWindowsHookEx(m_hook);
    AfxGetThreadState().ownerWatches = m_outer;
}

LRESULT CALLBACK COwnerWatch::HookProc(int code, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = ::CallNextHookEx(nullptr, code, wParam, lParam);
    // Another hook may prevent the destruction.
    if (code != HCBT_DESTROYWND || result != 0)
        return result;
    // The hook runs before the system collects the windows that it destroys with their owner.
    for (const COwnerWatch* watch = AfxGetThreadState().ownerWatches; watch != nullptr;
         watch = watch->m_outer) {
        if (watch->m_hook != nullptr &&
            ::GetWindow(watch->m_dialog, GW_OWNER) == reinterpret_cast<HWND>(wParam))
            ::SetWindowLongPtrW(watch->m_dialog, GWLP_HWNDPARENT, 0);
    }
    return result;
}

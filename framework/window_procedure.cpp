#include "framework/activation_context.h"
#include "framework/application.h"
#include "framework/exceptions.h"
#include "framework/thread_state.h"

#include <utility>

// The path of a message: AfxWndProc -> WindowProc -> OnWndMsg -> OnCommand or
// OnNotify -> OnCmdMsg -> the handler in the map.

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
END_MESSAGE_MAP()

namespace
{
/// The result of a message whose handler threw an exception.
LRESULT ResultAfterException(const MSG& message)
{
    switch (message.message) {
    case WM_CREATE:
        return -1;
    case WM_PAINT:
        // Otherwise the system would send WM_PAINT again at once, and it would fail again.
        ::ValidateRect(message.hwnd, nullptr);
        return 0;
    case WM_COMMAND:
        return TRUE;
    default:
        return 0;
    }
}

bool IsExchangeLocked(HWND window)
{
    for (const AFX_EXCHANGE_LOCK* lock = AfxGetThreadState().exchangeLocks; lock != nullptr;
         lock = lock->outer) {
        if (lock->window == window)
            return true;
    }
    return false;
}
} // namespace

LRESULT CALLBACK AfxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    CWnd* const object = CWnd::FromHandlePermanent(window);
    if (object == nullptr)
        return ::DefWindowProcW(window, message, wParam, lParam);
    const CActivationScope activation;
    MSG current{};
    current.hwnd = window;
    current.message = message;
    current.wParam = wParam;
    current.lParam = lParam;
    const CRestoreValue scope(AfxGetThreadState().currentMessage, current);
    LRESULT result = 0;
    // The system calls this function: no exception may leave it.
    try {
        result = object->WindowProc(message, wParam, lParam);
    } catch (...) {
        result = ResultAfterException(current);
        AfxReportCurrentException();
    }
    if (message == WM_NCDESTROY && CWnd::FromHandlePermanent(window) == object) {
        try {
            object->FinishNcDestroy();
        } catch (...) {
            AfxReportCurrentException();
        }
    }
    return result;
}

void CWnd::FinishNcDestroy()
{
    CWinApp* const application = AfxGetApp();
    if (application != nullptr && application->m_pMainWnd == this)
        application->m_pMainWnd = nullptr;
    // The window was destroyed from outside while its modal loop runs: end the loop here,
    // because no window is left to wake it.
    if (std::exchange(m_continueModal, false))
        ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0);
    UnsubclassWindow();
    PostNcDestroy();
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    return result;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        *result = 1;
        return TRUE;
    }
    if (message == WM_NOTIFY) {
        const auto* header = reinterpret_cast<const NMHDR*>(lParam);
        return header->hwndFrom != nullptr && OnNotify(wParam, lParam, result);
    }
    const AFX_MSGMAP_ENTRY* const entry = FindMessageEntry(message, 0, 0);
    if (entry == nullptr)
        return FALSE;
    AFX_HANDLER_CALL call;
    call.wParam = wParam;
    call.lParam = lParam;
    entry->handler(*this, call);
    *result = call.result;
    return call.handled;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT id = LOWORD(wParam);
    const bool fromControl = lParam != 0;
    if (fromControl && IsExchangeLocked(m_hWnd))
        return TRUE;
    // Controls without an id of their own are not handled.
    if (id == 0)
        return FALSE;
    return OnCmdMsg(id, fromControl ? HIWORD(wParam) : CN_COMMAND, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* result)
{
    if (IsExchangeLocked(m_hWnd))
        return TRUE;
    auto* const header = reinterpret_cast<NMHDR*>(lParam);
    return OnCmdMsg(static_cast<UINT>(header->idFrom), static_cast<int>(header->code), header, result);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_superWndProc == nullptr)
        return ::DefWindowProcW(m_hWnd, message, wParam, lParam);
    return ::CallWindowProcW(m_superWndProc, m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG& current = AfxGetThreadState().currentMessage;
    return DefWindowProc(current.message, current.wParam, current.lParam);
}

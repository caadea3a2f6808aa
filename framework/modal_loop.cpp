#include "framework/dialog.h"
#include "framework/exceptions.h"
#include "framework/thread_state.h"

#include <utility>

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

BOOL CWnd::PreTranslateInput(MSG* message)
{
    const bool key = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    const bool mouse = message->message >= WM_MOUSEFIRST && message->message <= WM_MOUSELAST;
    return (key || mouse) && ::IsDialogMessageW(m_hWnd, message);
}

BOOL CWnd::WalkPreTranslateTree(HWND stop, MSG* message)
{
    for (HWND window = message->hwnd; window != nullptr; window = ::GetParent(window)) {
        CWnd* const object = FromHandlePermanent(window);
        if (object != nullptr && object->PreTranslateMessage(message))
            return TRUE;
        if (window == stop)
            break;
    }
    return FALSE;
}

void CWnd::EndModalLoop(int result)
{
    m_nModalResult = result;
    // A loop that waits for a message has to be woken.
    if (std::exchange(m_continueModal, false))
        PostMessage(WM_NULL);
}

namespace
{
/// Handles one message as a modal loop over the window does.
void Dispatch(HWND modalWindow, MSG& message)
{
    // The loop is called from handlers further out; a failure here is not
    // theirs, and one message's failure does not end the dialog.
    try {
        if (CWnd::WalkPreTranslateTree(modalWindow, &message))
            return;
    } catch (...) {
        AfxReportCurrentException();
        return;
    }
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
}
} // namespace

int CWnd::RunModalLoop()
{
    const HWND window = m_hWnd;
    AFX_TEMP_MAPS& temporary = AfxGetThreadState().temporary;
    // Objects asked for before the loop belong to handlers that still wait for it.
    const AFX_TEMP_MAPS::Mark mark = temporary.GetMark();
    const HWND owner = ::GetWindow(window, GW_OWNER);
    m_continueModal = true;
    m_nModalResult = -1;
    if (!IsWindowVisible())
        ShowWindow(SW_SHOWNORMAL);
    ::UpdateWindow(window);
    bool idle = true;
    LPARAM idleCount = 0;
    while (m_continueModal) {
        MSG message;
        if (idle && !::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) {
            temporary.DeleteFrom(mark);
            if (idleCount == 0 && owner != nullptr && (GetStyle() & DS_NOIDLEMSG) == 0)
                ::SendMessageW(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(window));
            idle = SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, idleCount++) != 0;
            continue;
        }
        const BOOL got = ::GetMessageW(&message, nullptr, 0, 0);
        if (got <= 0) {
            EndModalLoop(IDCANCEL);
            if (got == 0)
                ::PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        Dispatch(window, message);
        idle = true;
        idleCount = 0;
    }
    if (!::IsWindow(window) && m_nModalResult == -1)
        m_nModalResult = IDCANCEL;
    return m_nModalResult;
}

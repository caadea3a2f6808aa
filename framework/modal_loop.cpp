#include "framework/activation_context.h"
#include "framework/application.h"
#include "framework/dialog.h"
#include "framework/exceptions.h"
#include "framework/focus.h"
#include "framework/thread_state.h"

#include <optional>
#include <utility>

namespace
{
/// The parent of a child window, the owner of any other; null for none.
HWND ParentOrOwner(HWND window)
{
    const bool isChild = (::GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD) != 0;
    return isChild ? ::GetParent(window) : ::GetWindow(window, GW_OWNER);
}
} // namespace

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

BOOL CWnd::PreTranslateInput(MSG* message)
{
    const bool key = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    const bool mouse = message->message >= WM_MOUSEFIRST && message->message <= WM_MOUSELAST;
    if (!key && !mouse)
        return FALSE;
    const HWND lost = AfxRepairFocus(m_hWnd);
    if (key) {
        // Discard input for a control that is no longer visible or enabled.
        if (lost != nullptr && lost == message->hwnd)
            return TRUE;
        // IsDialogMessage starts its search for a mnemonic at the message's window, too.
        if (!AfxCanHoldFocus(message->hwnd))
            return FALSE;
    }
    return ::IsDialogMessageW(m_hWnd, message);
}

BOOL CWnd::WalkPreTranslateTree(HWND stop, MSG* message)
{
    for (HWND window = message->hwnd; window != nullptr; window = ParentOrOwner(window)) {
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
    // Wakes a loop that is waiting for a message.
    if (std::exchange(m_continueModal, false))
        PostMessage(WM_NULL);
}

namespace
{
/// True if the window has a permanent object, or if a parent or owner of it has.
bool IsOwn(HWND window)
{
    while (window != nullptr && CWnd::FromHandlePermanent(window) == nullptr)
        window = ParentOrOwner(window);
    return window != nullptr;
}

/// Processes one message, with the module's activation context if the message is for one of the
/// module's own windows. An exception is reported here: it must not reach the handlers that run
/// the loop, and one failed message must not end the dialog.
template <class Step>
void GuardedStep(bool own, Step step)
{
    std::optional<CActivationScope> activation;
    if (own)
        activation.emplace();
    try {
        step();
    } catch (...) {
        AfxReportCurrentException();
    }
}

void Dispatch(MSG& message)
{
    if (CWnd::WalkPreTranslateTree(AfxSafeHwnd(AfxGetMainWnd()), &message))
        return;
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
}

/// Posts a message to the focused window if the focus has moved since the last call. An inner dialog
/// handles its own keys and clicks; without this message the windows that own it would notice the
/// new focus only when another message arrives.
/// @return true if a message was posted.
bool AnnounceFocus(HWND& known)
{
    const HWND before = std::exchange(known, ::GetFocus());
    return known != nullptr && known != before && ::PostMessageW(known, WM_NULL, 0, 0);
}
} // namespace

int CWnd::RunModalLoop()
{
    const HWND window = m_hWnd;
    const CActivationPause hostMayRun;
    AFX_TEMP_MAPS& temporary = AfxGetThreadState().temporary;
    // Objects requested before the loop belong to handlers that are still running.
    const AFX_TEMP_MAPS::Mark mark = temporary.GetMark();
    const HWND owner = ::GetWindow(window, GW_OWNER);
    m_continueModal = true;
    m_nModalResult = -1;
    if (!IsWindowVisible())
        ShowWindow(SW_SHOWNORMAL);
    ::UpdateWindow(window);
    std::optional<int> quitCode;
    HWND focus = nullptr;
    bool idle = true;
    LPARAM idleCount = 0;
    while (m_continueModal) {
        MSG message;
        if (idle && !::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) {
            temporary.DeleteFrom(mark);
            AfxRepairFocus(window);
            if (AnnounceFocus(focus))
                continue;
            if (idleCount == 0 && owner != nullptr && (GetStyle() & DS_NOIDLEMSG) == 0)
                ::SendMessageW(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(window));
            idle = SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, idleCount++) != 0;
            continue;
        }
        const BOOL got = ::GetMessageW(&message, nullptr, 0, 0);
        if (got < 0) {
            EndModalLoop(IDCANCEL);
            break;
        }
        if (got == 0)
            quitCode = static_cast<int>(message.wParam);
        GuardedStep(got == 0 || IsOwn(message.hwnd), [&] { got == 0 ? OnQuit() : Dispatch(message); });
        idle = true;
        idleCount = 0;
    }
    if (quitCode)
        ::PostQuitMessage(*quitCode);
    if (m_nModalResult == -1 && !::IsWindow(window))
        m_nModalResult = IDCANCEL;
    return m_nModalResult;
}

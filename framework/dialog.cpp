#include "framework/dialog.h"

#include "framework/application.h"
#include "framework/dialog_template.h"
#include "framework/exceptions.h"
#include "framework/focus.h"
#include "framework/modal_doors.h"
#include "framework/modal_owner.h"
#include "framework/owner_watch.h"
#include "framework/thread_state.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_MESSAGE(WM_CLOSE, &CDialog::OnClose)
    ON_MESSAGE(WM_ACTIVATE, &CDialog::OnFocusRestored)
    ON_MESSAGE(WM_SETFOCUS, &CDialog::OnFocusRestored)
    ON_MESSAGE(WM_NEXTDLGCTL, &CDialog::OnNextDlgCtl)
    ON_MESSAGE(WM_SYSCOLORCHANGE, &CDialog::OnSystemChange)
    ON_MESSAGE(WM_SETTINGCHANGE, &CDialog::OnSystemChange)
    ON_MESSAGE(WM_THEMECHANGED, &CDialog::OnSystemChange)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

namespace
{
// All messages reach the object through its window procedure. The system's dialog
// procedure must exist all the same, because WM_INITDIALOG is not sent without it.
INT_PTR CALLBACK AfxDlgProc(HWND, UINT message, WPARAM, LPARAM)
{
    return message == WM_INITDIALOG;
}

bool IsMultiLineEdit(HWND window)
{
    return AfxIsOfClass(window, WC_EDITW) && (::GetWindowLongPtrW(window, GWL_STYLE) & ES_MULTILINE) != 0;
}

/// True if a WM_COMMAND comes from a push button or, with a null parameter, from a command.
bool IsCommandSource(LPARAM control)
{
    constexpr LRESULT pushButton = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;
    const auto window = reinterpret_cast<HWND>(control);
    return window == nullptr || (::SendMessageW(window, WM_GETDLGCODE, 0, 0) & pushButton) != 0;
}
} // namespace

CDialog::CDialog(UINT templateId, CWnd* parent) : m_nIDTemplate(templateId), m_pParentWnd(parent) {}

CDialog::~CDialog()
{
    // Now, while the object is still a CDialog, because its children send notifications.
    if (m_hWnd != nullptr)
        CDialog::DestroyWindow();
}

bool CDialog::CreateWindowFromTemplate(UINT templateId, HWND parent)
{
    // From here on EndDialog takes effect, although the modal loop has not started yet.
    m_continueModal = true;
    m_nModalResult = -1;
    bool bound = false;
    {
        const CCreationHook hook(this);
        const HWND created = ::CreateDialogParamW(AfxGetResourceHandle(), MAKEINTRESOURCEW(templateId),
                                                  parent, &AfxDlgProc, 0);
        bound = hook.Finish(created);
    }
    if (!bound)
        PostNcDestroy();
    else if (m_hWnd != nullptr && !m_continueModal)
        DestroyWindow(); // OnInitDialog ended the dialog
    return bound && m_hWnd != nullptr;
}

BOOL CDialog::Create(UINT templateId, CWnd* parent)
{
    m_nIDTemplate = templateId;
    m_pParentWnd = parent;
    const bool created =
        CreateWindowFromTemplate(templateId, AfxSafeHwnd(parent != nullptr ? parent : AfxGetMainWnd()));
    m_continueModal = false;
    return created;
}

INT_PTR CDialog::DoModal()
{
    if (CModalHook* const hook = AfxGetModalHook()) {
        if (const std::optional<INT_PTR> answer = hook->OnModalDialog(*this))
            return *answer;
    }
    {
        // Reset on every return path, because the object may be run again.
        const CRestoreValue modal(m_modal, true);
        CModalOwner owner(AfxGetModalOwner(AfxSafeHwnd(m_pParentWnd)));
        if (CreateWindowFromTemplate(m_nIDTemplate, owner.GetHandle())) {
            const COwnerWatch watch(m_hWnd);
            RunModalLoop();
        }
        owner.Release(m_hWnd);
    }
    DestroyWindow();
    return m_nModalResult;
}

void CDialog::EndDialog(int result)
{
    EndModalLoop(result);
    // A modal dialog must stay visible until its owner is enabled again. Hidden earlier,
    // it would make the system activate another program's window.
    if (!m_modal)
        ::EndDialog(m_hWnd, result);
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    // Not from the system's dialog procedure: an exception from OnInitDialog must not
    // unwind through the system's stack frames.
    try {
        return Initialise();
    } catch (...) {
        // A half-initialised dialog must not be used: saving values that it has not read
        // would destroy the file.
        AfxReportCurrentException();
        if (m_hWnd != nullptr)
            EndDialog(-1);
        return FALSE;
    }
}

BOOL CDialog::Initialise()
{
    ForgetControls(); // the template's controls were not complete before
    CRect before;
    GetWindowRect(before);
    const BOOL setFocus = OnInitDialog();
    CRect after;
    if (m_hWnd != nullptr && m_continueModal && (GetStyle() & WS_CHILD) == 0 &&
        AfxIsTemplateWithoutPlace(m_nIDTemplate)) {
        GetWindowRect(after);
        // Skipped if the dialog has positioned itself.
        if (before.TopLeft() == after.TopLeft())
            CenterWindow();
    }
    return setFocus;
}

BOOL CDialog::OnInitDialog()
{
    if (!UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

HWND CDialog::FocusAfterLosing(HWND lost) const
{
    return AfxNextTabStop(lost);
}

LRESULT CDialog::OnFocusRestored(WPARAM, LPARAM)
{
    // The system restores the focus to the control that had it, even if that is now hidden or disabled.
    const LRESULT result = Default();
    AfxRepairFocus(m_hWnd);
    return result;
}

LRESULT CDialog::OnNextDlgCtl(WPARAM wParam, LPARAM lParam)
{
    // With lParam 0 the system searches from the focus onward; otherwise wParam is the control.
    AfxRepairFocus(m_hWnd);
    if (LOWORD(lParam) != 0 && wParam != 0 && !AfxCanHoldFocus(reinterpret_cast<HWND>(wParam)))
        return 0;
    return Default();
}

bool CDialog::YieldToModalWindow() const
{
    const HWND root = ::GetAncestor(m_hWnd, GA_ROOT);
    if (::IsWindowEnabled(root))
        return false;
    AfxBringForward(root);
    return true;
}

BOOL CDialog::OnCommand(WPARAM wParam, LPARAM lParam)
{
    // The system withholds user input from a disabled window, but not messages from other programs.
    if (HIWORD(wParam) == BN_CLICKED && IsCommandSource(lParam) && YieldToModalWindow())
        return TRUE;
    return CWnd::OnCommand(wParam, lParam);
}

LRESULT CDialog::OnClose(WPARAM, LPARAM)
{
    return YieldToModalWindow() ? 0 : Default();
}

LRESULT CDialog::OnSystemChange(WPARAM wParam, LPARAM lParam)
{
    // The system sends changes of colours and settings to top-level windows only. It sends
    // a theme change to every window; handling that twice does no harm.
    const UINT message = AfxGetThreadState().currentMessage.message;
    const LRESULT result = Default();
    if ((GetStyle() & WS_CHILD) == 0) {
        SendMessageToDescendants(m_hWnd, message, wParam, lParam);
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    }
    return result;
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

bool CDialog::IsChildPage() const
{
    return (GetStyle() & WS_CHILD) != 0 && (GetExStyle() & WS_EX_CONTROLPARENT) != 0;
}

BOOL CDialog::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    // Messages of dialogs that this one owns arrive here too. Only their own dialog may use them
    // for navigation.
    if (message->hwnd != m_hWnd && !::IsChild(m_hWnd, message->hwnd))
        return FALSE;
    // A multi-line edit closes its dialog on Escape. On a child dialog it would close
    // only that child; Escape has to close the outermost dialog.
    if (!IsChildPage() && message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE &&
        IsMultiLineEdit(message->hwnd)) {
        const HWND cancel = ::GetDlgItem(m_hWnd, IDCANCEL);
        if (cancel == nullptr || ::IsWindowEnabled(cancel)) {
            SendMessage(WM_COMMAND, IDCANCEL, 0);
            return TRUE;
        }
    }
    return PreTranslateInput(message);
}

BOOL CDialog::PreTranslateInput(MSG* message)
{
    // A child dialog that is a control parent leaves keyboard navigation to its outer
    // dialog. If it called IsDialogMessage itself, Tab would cycle within the child
    // and mnemonics would find only the child's controls. The call of the outermost
    // dialog treats the controls of both as one sequence.
    if (IsChildPage())
        return FALSE;
    return CWnd::PreTranslateInput(message);
}

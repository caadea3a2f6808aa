#include "framework/modal_doors.h"

#include "framework/application.h"
#include "framework/exceptions.h"
#include "framework/thread_state.h"

#include <utility>

namespace
{
CModalHook* modalHook = nullptr;

/// The path of the module's file.
ov::Text ModuleName()
{
    wchar_t path[MAX_PATH] = L"";
    ::GetModuleFileNameW(AfxGetInstanceHandle(), path, MAX_PATH);
    const ov::Text file = FromWide(path);
    const std::size_t start = file.find_last_of(u"\\/") + 1;
    return file.substr(start, file.rfind(u'.') - start);
}
} // namespace

std::optional<int> CModalHook::OnMessageBox(HWND, const ov::Text&, const ov::Text&, UINT)
{
    return std::nullopt;
}

std::optional<CPathAnswer> CModalHook::OnFileDialog(const CFileDialogRequest&)
{
    return std::nullopt;
}

std::optional<CPathAnswer> CModalHook::OnFolderBrowser(const CFolderBrowserRequest&)
{
    return std::nullopt;
}

std::optional<INT_PTR> CModalHook::OnModalDialog(CDialog&)
{
    return std::nullopt;
}

CModalHook* AfxSetModalHook(CModalHook* hook)
{
    return std::exchange(modalHook, hook);
}

CModalHook* AfxGetModalHook()
{
    return modalHook;
}

namespace
{
/// Searches a thread's top-level windows for one that is visible and enabled.
struct ModalSearch {
    HWND owner; ///< its direct or indirect owner; null for any
    HWND found = nullptr;
};

bool IsOwnedBy(HWND window, HWND owner)
{
    while (window != nullptr && window != owner)
        window = ::GetWindow(window, GW_OWNER);
    return window == owner;
}

BOOL CALLBACK FindModalWindow(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<ModalSearch*>(parameter);
    // Tool windows are tooltips and the drop-down lists of combo boxes.
    const bool isTool = (::GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) != 0;
    if (isTool || !::IsWindowVisible(window) || !::IsWindowEnabled(window) ||
        (search.owner != nullptr && !IsOwnedBy(window, search.owner)))
        return TRUE;
    search.found = window;
    return FALSE;
}

HWND FindModalWindow(HWND dialog, HWND owner)
{
    ModalSearch search{owner};
    ::EnumThreadWindows(::GetWindowThreadProcessId(dialog, nullptr), &FindModalWindow,
                        reinterpret_cast<LPARAM>(&search));
    return search.found;
}
} // namespace

HWND AfxGetModalTop(HWND dialog)
{
    if (::IsWindowEnabled(dialog))
        return dialog;
    if (const HWND owned = FindModalWindow(dialog, dialog))
        return owned;
    // A message box without an owner disables all windows of the thread.
    const HWND unowned = FindModalWindow(dialog, nullptr);
    return unowned != nullptr ? unowned : dialog;
}

void AfxBringForward(HWND dialog)
{
    // A minimised owner hides the windows that it owns.
    for (HWND window = dialog; window != nullptr; window = ::GetWindow(window, GW_OWNER)) {
        if (::IsIconic(window))
            ::ShowWindow(window, SW_RESTORE);
    }
    ::SetForegroundWindow(AfxGetModalTop(dialog));
}

HWND AfxGetModalOwner(HWND given)
{
    if (::IsWindow(given))
        return ::GetAncestor(given, GA_ROOT);
    if (const HWND main = AfxSafeHwnd(AfxGetMainWnd()); ::IsWindow(main))
        return AfxGetModalTop(::GetAncestor(main, GA_ROOT));
    const HWND active = ::GetActiveWindow();
    return active != nullptr ? ::GetAncestor(active, GA_ROOT) : nullptr;
}

int AfxShowMessageBox(HWND owner, const ov::Text& text, const ov::Text& caption, UINT type)
{
    // The system disables exactly the window that is passed as the owner. With a child
    // window such as a page, the dialog around it would stay usable.
    if (owner != nullptr)
        owner = ::GetAncestor(owner, GA_ROOT);
    if (modalHook != nullptr) {
        if (const std::optional<int> answer = modalHook->OnMessageBox(owner, text, caption, type))
            return *answer;
    }
    if (owner != nullptr)
        return ::MessageBoxW(owner, Wide(text), Wide(caption), type);
    // Without an owner to disable, the system would leave all windows of the thread enabled.
    // While such a box closes, they are all still disabled and none of them can become the
    // active one; whether the keyboard comes back would depend on the window manager.
    const HWND active = ::GetActiveWindow();
    const int answer = ::MessageBoxW(nullptr, Wide(text), Wide(caption), type | MB_TASKMODAL);
    if (::IsWindowEnabled(active))
        ::SetActiveWindow(active);
    return answer;
}

int CWinApp::DoMessageBox(const ov::Text& text, UINT type)
{
    return AfxShowMessageBox(AfxGetModalOwner(nullptr), text, ModuleName(), type);
}

int AfxMessageBox(const ov::Text& text, UINT type)
{
    if (CWinApp* const application = AfxGetApp())
        return application->DoMessageBox(text, type);
    return AfxShowMessageBox(AfxGetModalOwner(nullptr), text, ModuleName(), type);
}

namespace
{
void ReportException(const char* what)
{
    AFX_THREAD_STATE& state = AfxGetThreadState();
    // A handler that fails repeatedly, for example on a timer, must not fill the screen
    // with message boxes: while one is open, further exceptions are not shown.
    if (state.reportingException)
        return;
    const CRestoreValue reporting(state.reportingException, true);
    AfxMessageBox(ov::TextFromUtf8(what), MB_OK | MB_ICONSTOP);
}
} // namespace

void AfxReportCurrentException() noexcept
{
    try {
        try {
            throw;
        } catch (const CUserException&) {
            return;
        } catch (const std::exception& exception) {
            ReportException(exception.what());
        } catch (...) {
            ReportException("An unexpected error has occurred.");
        }
    } catch (...) {
        // Even the message box failed; nothing else can be shown.
        ::OutputDebugStringW(L"An error could not be reported.\n");
    }
}

#include "framework/modal_doors.h"

#include "framework/application.h"
#include "framework/exceptions.h"
#include "framework/thread_state.h"

#include <utility>

namespace
{
CModalHook* modalHook = nullptr;

/// The name of the module's file.
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

HWND AfxGetModalOwner(HWND given)
{
    if (::IsWindow(given))
        return ::GetAncestor(given, GA_ROOT);
    if (const HWND main = AfxSafeHwnd(AfxGetMainWnd()); ::IsWindow(main))
        return ::GetLastActivePopup(::GetAncestor(main, GA_ROOT));
    const HWND active = ::GetActiveWindow();
    return active != nullptr ? ::GetAncestor(active, GA_ROOT) : nullptr;
}

int AfxShowMessageBox(HWND owner, const ov::Text& text, const ov::Text& caption, UINT type)
{
    // The system disables exactly the window that it is given: over a child
    // window, a page say, the dialog around it could be worked with meanwhile.
    if (owner != nullptr)
        owner = ::GetAncestor(owner, GA_ROOT);
    if (modalHook != nullptr) {
        if (const std::optional<int> answer = modalHook->OnMessageBox(owner, text, caption, type))
            return *answer;
    }
    return ::MessageBoxW(owner, Wide(text), Wide(caption), type);
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
    // A handler that fails again and again, on a timer say, must not bury the
    // screen in boxes: while one is open the next ones are passed over.
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
        // Even telling failed; there is nobody left to tell.
        ::OutputDebugStringW(L"An error could not be reported.\n");
    }
}

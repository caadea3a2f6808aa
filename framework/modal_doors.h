#pragma once

#include "base/text.h"
#include "framework/windows_api.h"

#include <optional>

class CDialog;

/// The arguments of a file chooser.
struct CFileDialogRequest {
    bool open;                 ///< false: for a name to save under
    ov::Text defaultExtension; ///< appended to a name without an extension; given without a dot
    ov::Text fileName;         ///< the initial name
    DWORD flags;               ///< OFN_*
    ov::Text filter;           ///< "Text (*.x)|*.x||", or empty
    ov::Text title;            ///< empty: the system's title
    HWND owner;
};

/// The arguments of a folder browser.
struct CFolderBrowserRequest {
    ov::Text title;
    UINT flags; ///< BIF_*
    HWND owner;
};

/// What the user chose. The path is empty if the user cancelled.
struct CPathAnswer {
    ov::Text path;
};

/// Called before every modal door of the program opens. Each operation either answers
/// in place of the user, or returns nothing to let the real door open.
class CModalHook
{
  public:
    CModalHook() = default;
    CModalHook(const CModalHook&) = delete;
    CModalHook& operator=(const CModalHook&) = delete;
    virtual ~CModalHook() = default;

    /// Returns the chosen button: IDOK, IDYES, ...
    virtual std::optional<int> OnMessageBox(HWND owner, const ov::Text& text, const ov::Text& caption,
                                            UINT type);
    virtual std::optional<CPathAnswer> OnFileDialog(const CFileDialogRequest& request);
    virtual std::optional<CPathAnswer> OnFolderBrowser(const CFolderBrowserRequest& request);
    /// Returns the result for DoModal; the dialog is then not created.
    virtual std::optional<INT_PTR> OnModalDialog(CDialog& dialog);
};

/// Sets the hook of the process; null for none. Returns the previous one.
CModalHook* AfxSetModalHook(CModalHook* hook);
CModalHook* AfxGetModalHook();

/// The window that a modal door opens over: the given window's top-level
/// ancestor if it is a window, else the application's main window, else the calling
/// thread's active window (so that the door is modal to the host), else null.
HWND AfxGetModalOwner(HWND given);

/// The window that takes the user's input: the dialog itself while it is enabled, otherwise the
/// modal window that disables it.
HWND AfxGetModalTop(HWND dialog);

/// Restores the dialog and its owners if minimised, and brings AfxGetModalTop to the foreground.
void AfxBringForward(HWND dialog);

/// Shows a message box. All message boxes go through this function. Returns the button pressed.
/// For a child window its top-level window is the owner. If `owner` is null, the box has no
/// owner, and no window of the calling thread takes input while it is open.
int AfxShowMessageBox(HWND owner, const ov::Text& text, const ov::Text& caption, UINT type);
/// Shows a message box of the application; see CWinApp::DoMessageBox.
int AfxMessageBox(const ov::Text& text, UINT type = MB_OK);

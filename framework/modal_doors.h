#pragma once

#include "base/text.h"
#include "framework/windows_api.h"

#include <optional>

class CDialog;

/// What a file chooser is about to ask.
struct CFileDialogRequest {
    bool open;                 ///< false: a name to save under
    ov::Text defaultExtension; ///< appended to a name without one; without a dot
    ov::Text fileName;         ///< shown at first
    DWORD flags;               ///< OFN_*
    ov::Text filter;           ///< "Text (*.x)|*.x||", or empty
    ov::Text title;            ///< empty: the system's
    HWND owner;
};

/// What a folder browser is about to ask.
struct CFolderBrowserRequest {
    ov::Text title;
    UINT flags; ///< BIF_*
    HWND owner;
};

/// What the user chose; an empty path means cancelled.
struct CPathAnswer {
    ov::Text path;
};

/// Stands before every modal door of the program. Each operation either answers
/// in the user's place, or returns nothing and so lets the real door open.
class CModalHook
{
  public:
    CModalHook() = default;
    CModalHook(const CModalHook&) = delete;
    CModalHook& operator=(const CModalHook&) = delete;
    virtual ~CModalHook() = default;

    /// The answer is a button: IDOK, IDYES, ...
    virtual std::optional<int> OnMessageBox(HWND owner, const ov::Text& text, const ov::Text& caption,
                                            UINT type);
    virtual std::optional<CPathAnswer> OnFileDialog(const CFileDialogRequest& request);
    virtual std::optional<CPathAnswer> OnFolderBrowser(const CFolderBrowserRequest& request);
    /// The answer is what DoModal returns; the dialog is then not created.
    virtual std::optional<INT_PTR> OnModalDialog(CDialog& dialog);
};

/// Sets the process's one hook, null for none; the previous one.
CModalHook* AfxSetModalHook(CModalHook* hook);
CModalHook* AfxGetModalHook();

/// The window that a modal door opens over: the given window's top-level
/// ancestor if it is a window, else the application's main window, else the calling thread's
/// active window (so that the door is modal to the host), else null.
HWND AfxGetModalOwner(HWND given);

/// Of the dialog and what has opened over it, the window that takes the user's input: the dialog
/// itself while it is enabled, else the modal window that disables it.
HWND AfxGetModalTop(HWND dialog);

/// Restores the dialog and its owners from being minimised and brings AfxGetModalTop to the foreground.
void AfxBringForward(HWND dialog);

/// The one door to message boxes; the button that was pressed. A child window
/// stands for its top-level window. With null the box has no owner; while it is
/// open, no window of the calling thread takes input.
int AfxShowMessageBox(HWND owner, const ov::Text& text, const ov::Text& caption, UINT type);
/// A message box of the application, see CWinApp::DoMessageBox.
int AfxMessageBox(const ov::Text& text, UINT type = MB_OK);

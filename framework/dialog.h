#pragma once

#include "framework/window.h"

/// Sent to a modal dialog whenever its message queue becomes empty. wParam is
/// MSGF_DIALOGBOX; lParam counts the calls since the last message. A handler
/// returns non-zero to be called once more.
constexpr UINT WM_KICKIDLE = 0x036A;

/// A dialog created from a template in the module's resources.
class CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)
    /// A dialog for Create, which makes it modeless.
    CDialog() = default;
    /// A dialog for DoModal, modal to the parent's top-level window.
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    ~CDialog() override;

    /// Creates the dialog's window without a modal loop. Without a parent, the
    /// application's main window owns it. FALSE if the window could not be created,
    /// or if OnInitDialog ended the dialog or failed.
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
    /// Runs the dialog and returns the argument of EndDialog; -1 if the dialog could
    /// not be created or initialised, IDCANCEL if WM_QUIT ended it.
    virtual INT_PTR DoModal();
    /// Ends a modal dialog, hides a modeless one.
    void EndDialog(int result);

    BOOL PreTranslateMessage(MSG* message) override;

    /// The control that gets the focus when `lost`, a focused window inside the dialog, is about to be
    /// hidden or disabled; null for none. By default it is the next tab stop.
    virtual HWND FocusAfterLosing(HWND lost) const;

    UINT m_nIDTemplate = 0;

  protected:
    DECLARE_MESSAGE_MAP()

    /// Initialises the dialog before it is shown: transfers the members into the
    /// controls. FALSE if it has set the focus itself. An exception is reported
    /// and ends the dialog with -1.
    virtual BOOL OnInitDialog();
    /// Transfers the controls into the members and ends the dialog with IDOK, unless
    /// a value was rejected.
    virtual void OnOK();
    virtual void OnCancel();
    BOOL PreTranslateInput(MSG* message) override;
    /// While a modal window is open over the dialog's top-level window, commands and clicks on push
    /// buttons are not handled; they bring that window to the front.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    CWnd* m_pParentWnd = nullptr;

  private:
    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    LRESULT OnFocusRestored(WPARAM wParam, LPARAM lParam);
    LRESULT OnNextDlgCtl(WPARAM wParam, LPARAM lParam);
    LRESULT OnClose(WPARAM wParam, LPARAM lParam);
    LRESULT OnSystemChange(WPARAM wParam, LPARAM lParam);
    BOOL Initialise();
    bool CreateWindowFromTemplate(UINT templateId, HWND parent);
    bool IsChildPage() const;
    bool YieldToModalWindow() const;

    bool m_modal = false;
};

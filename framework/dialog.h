#pragma once

#include "framework/window.h"

/// Sent to a modal dialog whenever its message queue has run empty: wParam is
/// MSGF_DIALOGBOX, lParam counts the calls since the last message. A handler
/// returns non-zero to be called once more.
constexpr UINT WM_KICKIDLE = 0x036A;

/// A dialog made from a template of the module's resources.
class CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)
    /// A dialog that Create makes modeless.
    CDialog() = default;
    /// A dialog that DoModal makes modal over the parent's top-level window.
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    ~CDialog() override;

    /// Makes the dialog's window without a loop. Without a parent it belongs to
    /// the application's main window. FALSE when it could not be made, ended
    /// itself in OnInitDialog or failed there.
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
    /// Runs the dialog and returns what EndDialog was given; -1 when the dialog
    /// could not be made or initialised, IDCANCEL when WM_QUIT ended it.
    virtual INT_PTR DoModal();
    /// Ends a modal dialog, hides a modeless one.
    void EndDialog(int result);

    BOOL PreTranslateMessage(MSG* message) override;

    /// The control that gets the focus when `lost`, a window inside the dialog, had it and is being
    /// hidden or disabled; null for none. The next tab stop unless overridden.
    virtual HWND FocusAfterLosing(HWND lost) const;

    UINT m_nIDTemplate = 0;

  protected:
    DECLARE_MESSAGE_MAP()

    /// Prepares the dialog before it is seen: moves the members into the
    /// controls. FALSE when it has set the focus itself. An exception is reported
    /// and ends the dialog with -1.
    virtual BOOL OnInitDialog();
    /// Moves the controls into the members and ends with IDOK, unless a value
    /// was refused.
    virtual void OnOK();
    virtual void OnCancel();
    BOOL PreTranslateInput(MSG* message) override;
    /// While a modal window is open over the dialog's top-level window, commands and pressed push
    /// buttons are not handled: they bring that window forward.
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

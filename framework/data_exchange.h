#pragma once

#include "base/text.h"
#include "framework/window.h"

/// One call of DoDataExchange: its direction, and the control that failed.
class CDataExchange
{
  public:
    CDataExchange(CWnd* window, BOOL saveAndValidate);

    BOOL m_bSaveAndValidate; ///< TRUE: from the controls into the members
    CWnd* m_pDlgWnd;         ///< the window that holds the controls

    /// Returns the control. Throws std::runtime_error if the window has none with this id.
    HWND PrepareCtrl(int id);
    /// The same for an edit control; Fail selects its text.
    HWND PrepareEditCtrl(int id);
    /// Rejects a value after the user has seen a message: the control prepared last
    /// gets the focus and the exchange ends. UpdateData returns FALSE.
    [[noreturn]] void Fail();

  private:
    HWND m_lastControl = nullptr;
    bool m_lastIsEdit = false;
};

/// Attaches the object to its control, once.
void DDX_Control(CDataExchange* exchange, int id, CWnd& control);
/// A text of any length.
void DDX_Text(CDataExchange* exchange, int id, ov::Text& text);
/// A check box: BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
void DDX_Check(CDataExchange* exchange, int id, int& value);
/// The index of the checked button in the group that begins with the given button
/// (the one with WS_GROUP); -1 if none is checked. The group consists of buttons that
/// CWnd::GetControls returns.
void DDX_Radio(CDataExchange* exchange, int id, int& value);
/// The index of the selected entry of a combo box; -1 for none, and for an index
/// out of range.
void DDX_CBIndex(CDataExchange* exchange, int id, int& index);

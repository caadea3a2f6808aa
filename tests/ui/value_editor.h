/// The list editor, opened by the "..." buttons of lists.
#pragma once

#include "tests/ui/dialog_session.h"

#include <commctrl.h>

/// Presses the "..." button.
/// @return the list editor; null if it does not appear.
inline HWND OpenValueEditor(HWND button)
{
    uidriver::Click(button);
    return uidriver::AwaitTopWindow(L"Multi-Entry Values", GetCurrentProcessId());
}

inline std::vector<std::wstring> ValueEditorRows(HWND editor)
{
    return uidriver::ListViewTexts(GetDlgItem(editor, IDC_CONFIG_SETTING_LIST));
}

/// Selects only this row and waits until the dialog has handled that.
inline void SelectOnly(HWND list, int row)
{
    LVITEMW none = {};
    none.stateMask = LVIS_SELECTED;
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&none));
    EXPECT_TRUE(uidriver::SelectListViewRow(list, row));
    uidriver::Settle(list);
}

/// Types a value and inserts it at the end.
inline void InsertValue(HWND editor, const std::wstring& value)
{
    uidriver::TypeText(GetDlgItem(editor, IDC_CONFIG_SETTING_VALUE), value);
    uidriver::Click(GetDlgItem(editor, IDC_CONFIG_SETTING_INSERT));
}

/// Closes the editor with IDOK or IDCANCEL and waits until the dialog has taken over its text.
inline void CloseValueEditor(HWND editor, int button)
{
    HWND dialog = GetWindow(editor, GW_OWNER);
    uidriver::Click(GetDlgItem(editor, button));
    EXPECT_TRUE(uidriver::AwaitGone(editor));
    uidriver::Settle(dialog);
}

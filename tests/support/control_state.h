/// Reads what controls show. Works across threads and processes; a window that
/// does not respond within the default deadline gives empty results.
#pragma once

#include <windows.h>
#include <string>
#include <vector>

namespace uidriver
{

/// Sends a message with the default deadline.
/// @return the message's result; 0 if the window did not respond.
LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

/// The control's present text.
std::wstring GetText(HWND control);

/// BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE of a button.
int CheckState(HWND button);
inline bool IsChecked(HWND button)
{
    return CheckState(button) == BST_CHECKED;
}

/// Whether the control and all its parent windows are enabled or visible.
bool IsEnabled(HWND control);
bool IsShown(HWND control);

/// Whether the control's class belongs to version 6 of the common controls. Only for
/// controls of this process.
bool IsVersionSix(HWND control);

/// The index of the combo box's selection; -1 if nothing is selected.
int ComboSelection(HWND comboBox);
/// The combo box's entries, in display order.
std::vector<std::wstring> ComboTexts(HWND comboBox);

/// The list box's entries and its selection (-1 for none).
std::vector<std::wstring> ListBoxTexts(HWND listBox);
int ListBoxSelection(HWND listBox);

/// The position of a track bar or an up-down control.
int TrackbarPosition(HWND trackbar);
int SpinPosition(HWND upDown);

} // namespace uidriver

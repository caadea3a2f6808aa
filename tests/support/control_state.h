/// Reading what controls show. Works across threads and processes; a window
/// that does not answer within the default deadline gives empty results.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace uidriver
{

/// Sends a message, giving up at the default deadline.
/// @return the message's result, 0 when it was not answered.
LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

/// The control's text as it stands.
std::wstring GetText(HWND control);

/// BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE of a button.
int CheckState(HWND button);
inline bool IsChecked(HWND button)
{
    return CheckState(button) == BST_CHECKED;
}

/// Whether the control and every window above it are enabled or visible.
bool IsEnabled(HWND control);
bool IsShown(HWND control);

/// Whether the control's class comes from version 6 of the common controls; for
/// controls of this process.
bool IsVersionSix(HWND control);

/// The index of the combo box's selection, -1 when nothing is selected.
int ComboSelection(HWND comboBox);
/// The combo box's entries, in the order in which it lists them.
std::vector<std::wstring> ComboTexts(HWND comboBox);

/// The list box's entries and its selection (-1 for none).
std::vector<std::wstring> ListBoxTexts(HWND listBox);
int ListBoxSelection(HWND listBox);

/// Position of a trackbar or an up-down control.
int TrackbarPosition(HWND trackbar);
int SpinPosition(HWND upDown);

} // namespace uidriver

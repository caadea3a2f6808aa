/// Doing to controls what a person does. Clicks and keys go through the queue
/// of the window's thread, so that the dialog's own message loop and its
/// pre-translation see them.
#pragma once

#include "tests/support/await.h"

#include <windows.h>

#include <string>

namespace uidriver
{

/// Returns when the window's thread has fetched everything that was posted
/// before this call and has come back for more (also from within a modal loop
/// that a handler opened). Only for a thread of this process; for a window of
/// another process it merely waits until the window answers.
bool Settle(HWND window, unsigned deadline = DefaultDeadline);

/// Gives the control the keyboard focus as a dialog does, and settles.
void Focus(HWND control);

/// Replaces the whole text of an edit control (also the one of a combo box) as
/// pasting over a full selection would: the parent gets its notifications, and
/// the style bits for numbers and reading only are not asked.
void SetText(HWND edit, const std::wstring& text);

/// Selects the whole text of an edit control and types the characters, which
/// the control may refuse as it would a person's.
void TypeText(HWND edit, const std::wstring& text);

/// Presses a button, a check box or a radio button, and settles. Returns also
/// when the press opened a modal dialog.
void Click(HWND button);

/// Presses and releases the left mouse button at a point in client coordinates.
void ClickAt(HWND window, POINT point, bool doubleClick = false);

/// Presses and releases a key in the focused window of the window's thread,
/// without modifiers, and settles. Needs no foreground window.
void PostKey(HWND window, WORD virtualKey);

/// Brings the window to the foreground. False when the system refuses.
bool BringToForeground(HWND window);

/// Presses a key on the keyboard itself with modifiers held (VK_SHIFT,
/// VK_CONTROL or VK_MENU; 0 for none), the window being in the foreground.
/// Only for a window of this process.
/// @return false when the window could not be brought there.
bool PressKey(HWND window, WORD virtualKey, WORD modifier = 0);

/// Chooses an entry of a combo box or a list box by index and notifies the
/// parent as a person's choice does.
void SelectComboEntry(HWND comboBox, int index);
void SelectListBoxEntry(HWND listBox, int index);

/// Sets the window's outer size in pixels and waits for the layout.
void Resize(HWND window, int width, int height);

} // namespace uidriver

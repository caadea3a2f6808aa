/// Operates controls as a user does. Clicks and keys go through the message queue
/// of the window's thread, so that the dialog's own message loop and its
/// pre-translation handle them.
#pragma once

#include "tests/support/await.h"

#include <windows.h>
#include <string>

namespace uidriver
{

/// Returns when the window's thread has retrieved everything that was posted
/// before this call and waits for more (also from within a modal loop that a
/// handler started). Only for a thread of this process; for a window of another
/// process it merely waits until the window responds.
bool Settle(HWND window, unsigned deadline = DefaultDeadline);

/// Gives the control the keyboard focus as a dialog does, and settles.
void Focus(HWND control);

/// Replaces the whole text of an edit (also that of a combo box) as pasting over
/// a full selection would: the parent gets its notifications, and the styles for
/// digits only and read-only are ignored.
void SetText(HWND edit, const std::wstring& text);

/// Selects the whole text of an edit and types the characters, which the
/// control may refuse as when a user types.
void TypeText(HWND edit, const std::wstring& text);

/// Presses a button, a check box or a radio button, and settles. Also returns
/// if the press opened a modal dialog.
void Click(HWND button);

/// Presses and releases the left mouse button at a point in client coordinates.
void ClickAt(HWND window, POINT point, bool doubleClick = false);

/// Presses and releases a key in the focused window of the window's thread,
/// without modifiers, and settles. Needs no foreground window.
void PostKey(HWND window, WORD virtualKey);

/// Brings the window to the foreground. False if the system refuses.
bool BringToForeground(HWND window);

/// Presses a key on the simulated keyboard while a modifier is held (VK_SHIFT,
/// VK_CONTROL or VK_MENU; 0 for none), with the window in the foreground.
/// Only for a window of this process.
/// @return false if the window could not be brought to the foreground.
bool PressKey(HWND window, WORD virtualKey, WORD modifier = 0);

/// Chooses an entry of a combo box or a list box by index and notifies the
/// parent, as when a user chooses it.
void SelectComboEntry(HWND comboBox, int index);
void SelectListBoxEntry(HWND listBox, int index);

/// Sets the window's outer size in pixels and waits for the layout.
void Resize(HWND window, int width, int height);

} // namespace uidriver

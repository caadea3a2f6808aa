/// Finds windows and controls, in this process or in another one.
#pragma once

#include "tests/support/await.h"

#include <windows.h>
#include <string>
#include <vector>

namespace uidriver
{

/// Matches any process.
constexpr DWORD AnyProcess = 0;

/// The visible top-level window with this caption; null if there is none.
HWND FindTopWindow(const std::wstring& caption, DWORD processId = AnyProcess);

/// Waits until the window is visible and responds to messages; null at the deadline.
HWND AwaitTopWindow(const std::wstring& caption, DWORD processId = AnyProcess,
                    unsigned deadline = DefaultDeadline);

/// Waits until the window is gone.
bool AwaitGone(HWND window, unsigned deadline = DefaultDeadline);

/// Whether the window's thread responds to messages within the deadline.
bool IsResponsive(HWND window, unsigned deadline = DefaultDeadline);

/// The window's direct children, in tab (Z) order.
std::vector<HWND> Children(HWND window);

/// The window's class name.
std::wstring ClassOf(HWND window);

/// The control with this id: first among the window's own children, then in its
/// visible child dialogs, then in its hidden ones, because child dialogs use the
/// same ids. Null if there is none.
HWND FindControl(HWND window, int id);

/// FindControl, but waits until the control exists.
HWND AwaitControl(HWND window, int id, unsigned deadline = DefaultDeadline);

/// The id of the list in the category pane, which distinguishes the pane from
/// the pages.
constexpr int CategoryListId = 1504;

/// The page that the dialog shows: its only visible child dialog besides the
/// category pane. Null if no page is visible.
HWND VisiblePage(HWND dialog);

/// The window with the keyboard focus in the given window's thread.
HWND FocusIn(HWND window);

/// The rectangle of a control in the client coordinates of another window.
RECT RectIn(HWND control, HWND window);

} // namespace uidriver

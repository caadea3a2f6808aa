/// Finding windows and controls, in this process or in another one.
#pragma once

#include "tests/support/await.h"

#include <windows.h>

#include <string>
#include <vector>

namespace uidriver
{

/// Any process, where a process id is asked for.
constexpr DWORD AnyProcess = 0;

/// The visible top-level window with this caption; null when there is none.
HWND FindTopWindow(const std::wstring& caption, DWORD processId = AnyProcess);

/// Waits until the window is visible and answers messages; null at the deadline.
HWND AwaitTopWindow(const std::wstring& caption, DWORD processId = AnyProcess,
                    unsigned deadline = DefaultDeadline);

/// Waits until the window is gone.
bool AwaitGone(HWND window, unsigned deadline = DefaultDeadline);

/// Whether the window's thread answers messages within the deadline.
bool IsResponsive(HWND window, unsigned deadline = DefaultDeadline);

/// The window's direct children, in tab (z) order.
std::vector<HWND> Children(HWND window);

/// The window's class name.
std::wstring ClassOf(HWND window);

/// The control with this id: among the window's own children first, then in
/// its visible child dialogs, then in its hidden ones, since numbers recur
/// from one child dialog to the next. Null when there is none.
HWND FindControl(HWND window, int id);

/// As FindControl, waiting until the control exists.
HWND AwaitControl(HWND window, int id, unsigned deadline = DefaultDeadline);

/// The id of the dialog's category list, which tells the category pane from
/// the pages.
constexpr int CategoryListId = 1504;

/// The page that the dialog shows: its one visible child dialog besides the
/// category pane. Null when no page is visible.
HWND VisiblePage(HWND dialog);

/// The window of the given window's thread that has the keyboard focus.
HWND FocusIn(HWND window);

/// The rectangle of a control in the client coordinates of another window.
RECT RectIn(HWND control, HWND window);

} // namespace uidriver

/// What must hold of the dialog's windows whenever they wait for the user.
#pragma once

#include <windows.h>
#include <functional>
#include <string>
#include <vector>

namespace walk
{

/// The visible dialogs and message boxes of the thread that take input.
std::vector<HWND> InputWindows(DWORD thread);

/// For the log: the visible dialogs and message boxes of the thread, and which of them are disabled.
std::string DescribeWindows(DWORD thread);

/// Waits until exactly one of them is there and answers.
/// @return that window; null when it does not come to that, or when `ended` holds.
HWND AwaitInputWindow(DWORD thread, const std::function<bool()>& ended);

/// Empty when the keyboard focus is visible, enabled and within the window that takes input;
/// otherwise what is wrong with it. Waits for the focus to get there.
std::string FocusFault(HWND inputWindow);

/// For the log: the control by its class, id and text.
std::string NameOf(HWND control);

/// Wide text for the log, with escapes for what is not printable ASCII.
std::string Printable(const std::wstring& text);

} // namespace walk

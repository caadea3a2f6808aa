/// Reads and answers message boxes.
#pragma once

#include "tests/support/await.h"

#include <windows.h>
#include <string>
#include <vector>

namespace uidriver
{

struct MessageBoxButton {
    int id; ///< IDOK, IDYES, ...
    std::wstring text;
};

struct MessageBoxContent {
    HWND window = nullptr; ///< null: no box was found
    std::wstring caption;
    std::wstring text;
    std::vector<MessageBoxButton> buttons; ///< the visible ones, from left to right
    explicit operator bool() const { return window != nullptr; }
};

/// Waits for a visible message box with this caption in the process of the given
/// window (null: in any process) and reads it.
MessageBoxContent AwaitMessageBox(const std::wstring& caption, HWND sameProcess = nullptr,
                                  unsigned deadline = DefaultDeadline);

/// Presses the button with this id (IDYES, ...) and waits until the box is gone.
/// @return false if there is no such button or the box stays open.
bool AnswerMessageBox(HWND messageBox, int buttonId);

} // namespace uidriver

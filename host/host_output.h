/// Where the launcher's texts go: to the console or the file that the caller
/// has given, else into a message box.
#pragma once

#include <string>

/// Lets go of a console that Windows has opened for this process alone, as it
/// does for a start from a folder or a shortcut: the dialog is the window that
/// the user asked for. Call once, first.
void DropOwnConsole();

/// Says something that was asked for (stdout, or an information box).
void ShowText(const std::wstring& text);

/// Says what went wrong (stderr, or a box with the warning icon).
void ShowError(const std::wstring& text);

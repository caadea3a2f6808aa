/// What the controls of all pages show, to compare two dialogs on the same file.
#pragma once

#include <windows.h>
#include <map>
#include <string>

namespace walk
{

/// Of each control, named "page/control", what it shows and whether it can be used.
using ShownValues = std::map<std::string, std::wstring>;

/// Of all pages, also of the hidden ones.
ShownValues ValuesOf(HWND dialog);

/// Removes all values of the page that has the control.
void ForgetPageOf(int control, ShownValues& values);

/// Empty when the later values are the earlier ones; otherwise a line for each control that
/// differs. A text that no file brings back is not compared, nor is its page's look.
std::string DifferenceAfterSave(const ShownValues& earlier, const ShownValues& later);

/// Whether a file brings the text back as it is: without quotes, "#", blanks at its ends, line
/// breaks, and empty entries of lists.
bool ComesBack(const std::wstring& text);

} // namespace walk

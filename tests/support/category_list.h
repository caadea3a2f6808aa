/// The list view in the category pane of the Preferences dialog, in this process
/// or in another one.
#pragma once

#include <windows.h>
#include <string>
#include <vector>

namespace uidriver
{

/// The texts of a list view's column, from top to bottom.
std::vector<std::wstring> ListViewTexts(HWND listView, int column = 0);

/// The index of a list view's selected row; -1 for none.
int ListViewSelection(HWND listView);

/// The item data of a row; -1 if it cannot be read.
LPARAM ListViewData(HWND listView, int row);

/// Selects and focuses a row of a list view and scrolls it into view. The list's
/// owner is notified as by a click.
/// @return whether the row is selected afterwards.
bool SelectListViewRow(HWND listView, int row);

/// Selects the category with this title in the dialog and waits for its page.
/// @return the visible page; null if there is no such category or page.
HWND SelectCategory(HWND dialog, const std::wstring& title);

} // namespace uidriver

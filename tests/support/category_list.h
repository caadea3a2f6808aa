/// The category list (a list view) of the Preferences dialog, in this process
/// or in another one.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace uidriver
{

/// The texts of a list view's column, from top to bottom.
std::vector<std::wstring> ListViewTexts(HWND listView, int column = 0);

/// The index of a list view's selected row, -1 for none.
int ListViewSelection(HWND listView);

/// The item data of a row; -1 when it cannot be read.
LPARAM ListViewData(HWND listView, int row);

/// Selects a row of a list view, also as the focused one, and brings it into
/// view; the list's owner is notified as by a click.
/// @return whether the row is selected afterwards.
bool SelectListViewRow(HWND listView, int row);

/// Selects the category with this title in the dialog and waits for its page.
/// @return the visible page; null when no such category or page came up.
HWND SelectCategory(HWND dialog, const std::wstring& title);

} // namespace uidriver

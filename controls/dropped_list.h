#pragma once

#include "framework/afxwin.h"

#include <vector>

/// Makes an open drop-down list at least as wide as its longest entry.
void FitDroppedWidth(HWND comboBox);

/// Closes the drop-down lists and calendars that combo boxes and date pickers among the controls have
/// open.
void CloseDropped(const std::vector<HWND>& controls);

#pragma once

#include "framework/afxwin.h"

/// Makes a drop-down list, while it is open, at least as wide as its longest entry.
void FitDroppedWidth(HWND comboBox);

/// Closes the lists and calendars that combo boxes and date pickers of the dialog have open.
void CloseDropped(HWND dialog);

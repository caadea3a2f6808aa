/// The order in which a user reads a dialog's controls, computed from their positions.
#pragma once

#include <windows.h>
#include <vector>

/// The visible and enabled tab stops, row by row from the top and from left to right
/// in a row; those of a child dialog at the position of the child dialog.
std::vector<HWND> TabStopsInReadingOrder(HWND dialog);

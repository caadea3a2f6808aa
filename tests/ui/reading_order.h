/// The order in which the eye reads a dialog's controls, from where they lie.
#pragma once

#include <windows.h>

#include <vector>

/// The visible and enabled controls that Tab stops at, row by row from the top
/// and from left to right in a row; a child dialog's are read where it lies.
std::vector<HWND> TabStopsInReadingOrder(HWND dialog);

/// Walks through a window with Tab, and back with Shift+Tab.
#pragma once

#include <windows.h>
#include <functional>

/// Walks from `start` once around the window in both directions. Tab must stop at
/// every control that TabStopsInReadingOrder returns, in this order, at each
/// once. `look` is called with the focused control after each
/// press.
void ExpectTabCycle(HWND window, HWND start, const std::function<void(HWND)>& look = {});

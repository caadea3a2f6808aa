/// Walking through a window by Tab, and back by Shift and Tab.
#pragma once

#include <windows.h>

#include <functional>

/// From `start` once around the window and back to it, in both directions: Tab
/// has to stop at every control that TabStopsInReadingOrder names, in this
/// order, at each once. `look` is called with the focused control after each
/// press.
void ExpectTabCycle(HWND window, HWND start, const std::function<void(HWND)>& look = {});

#pragma once

#include "framework/windows_api.h"

// Resolutions are in pixels per inch; the usual one is 96. Functions that older
// versions of Windows lack are found at run time. Without them, every window has
// the resolution of the screen.

// Declared only for newer versions of Windows.
#ifndef WM_DPICHANGED_BEFOREPARENT
constexpr UINT WM_DPICHANGED_BEFOREPARENT = 0x02E2;
constexpr UINT WM_DPICHANGED_AFTERPARENT = 0x02E3;
#endif

/// The resolution at which the window is to be shown: that of its monitor, where
/// the process follows the monitors' resolutions.
UINT AfxGetWindowResolution(HWND window);

/// The resolution at which the system makes a dialog from its template and draws
/// the window's frame and scroll bars. It differs from AfxGetWindowResolution
/// only in processes with the first version of per-monitor awareness.
UINT AfxGetFrameResolution(HWND window);

/// GetSystemMetrics at a resolution, in pixels.
int AfxGetMetrics(int index, UINT resolution);

/// GetSystemMetrics for the frame and the scroll bars of the window, in pixels.
int AfxGetFrameMetrics(HWND window, int index);

/// Keeps the system from laying the dialog out when its resolution changes: its
/// own code does.
void AfxDisableDialogScaling(HWND dialog);

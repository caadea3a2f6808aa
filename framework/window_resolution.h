#pragma once

#include "framework/windows_api.h"

// Resolutions are in pixels per inch; the usual one is 96. Functions that older
// Windows versions lack are looked up at run time. Without them, every window has
// the resolution of the screen.

// Declared only for newer Windows versions.
#ifndef WM_DPICHANGED_BEFOREPARENT
constexpr UINT WM_DPICHANGED_BEFOREPARENT = 0x02E2;
constexpr UINT WM_DPICHANGED_AFTERPARENT = 0x02E3;
#endif

/// The resolution at which the window has to be shown: that of its monitor if the
/// process is per-monitor aware.
UINT AfxGetWindowResolution(HWND window);

/// The resolution at which the system creates a dialog from its template and draws
/// the window's frame and scroll bars. It differs from AfxGetWindowResolution
/// only in processes with per-monitor awareness version 1.
UINT AfxGetFrameResolution(HWND window);

/// GetSystemMetrics for a resolution, in pixels.
int AfxGetMetrics(int index, UINT resolution);

/// GetSystemMetrics for the frame and the scroll bars of the window, in pixels.
int AfxGetFrameMetrics(HWND window, int index);

/// Prevents the system from scaling the dialog when its resolution changes; the
/// dialog's own code does it.
void AfxDisableDialogScaling(HWND dialog);

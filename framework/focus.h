#pragma once

#include "framework/windows_api.h"

// The keyboard focus must never be on a control that cannot be used. The system does
// not ensure that: it hides and disables a focused control, it restores the focus of a
// reactivated dialog to a control that was hidden meanwhile, and IsDialogMessage searches
// for a mnemonic endlessly when it starts at such a control.

/// True if the window, and every window between it and its top-level window, is visible and enabled.
/// The top-level window itself counts as both: it is disabled while a modal window is open over it,
/// and hidden before it is first shown.
bool AfxCanHoldFocus(HWND window);

/// The first tab stop of the top-level window after `lost` in the tab order, continuing at the
/// beginning when the end is reached. Null if there is none. Skips `lost` itself, its child windows,
/// and everything hidden or disabled.
HWND AfxNextTabStop(HWND lost);

/// Call this before the child window is hidden or disabled. If the window or one of its child windows
/// has the focus, the focus moves to the control that CDialog::FocusAfterLosing returns.
void AfxReleaseFocus(HWND window);

/// If the focus is on a hidden or disabled control inside the window's top-level window, moves it as
/// AfxReleaseFocus does.
/// @return the window that had the focus; null if the focus did not move.
HWND AfxRepairFocus(HWND window);

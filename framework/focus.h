#pragma once

#include "framework/windows_api.h"

// The keyboard focus never lies on a control that cannot be used. The system does
// not see to that: it hides and disables a control that has the focus, gives a
// dialog that is activated again a focus on a control hidden meanwhile, and from
// such a control IsDialogMessage searches for a mnemonic without end.

/// Whether the window, and every window between it and its top-level window, is visible and enabled.
/// The top-level window itself counts as both: while a modal window is open over it, it is disabled,
/// and before it is first shown it is hidden.
bool AfxCanHoldFocus(HWND window);

/// The first tab stop of the top-level window that follows `lost` in the tab order, from the end on
/// again from the beginning; null when there is none. `lost` itself, what lies in it, and what is
/// hidden or disabled is passed over.
HWND AfxNextTabStop(HWND lost);

/// To be called before the child window is hidden or disabled: if it has the focus, or a window in it
/// has, the focus moves to where CDialog::FocusAfterLosing says.
void AfxReleaseFocus(HWND window);

/// If the focus lies inside the window's top-level window on what is hidden or disabled, moves it as
/// AfxReleaseFocus does.
/// @return the window that had the focus; null when nothing was wrong.
HWND AfxRepairFocus(HWND window);

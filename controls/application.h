#pragma once

#include "framework/windows_api.h"

class CFont;
class CToolTipControl;

// What the controls need of the application object, which lies above them: the
// application defines these, so that nothing here includes it.

/// The font that every dialog shares, at a resolution in pixels per inch. Made on
/// first request and kept by the application; null without a main window.
CFont* GetSharedDialogFont(UINT resolution);

/// The process-wide tooltip window and registry of help texts; null while there
/// is no such window.
CToolTipControl* GetToolTipControl();

/// The application's icon; null until it is loaded. It needs no destroying.
HICON GetApplicationIcon();

#pragma once

#include "framework/windows_api.h"

class CFont;
class CToolTipControl;

// Services of the application object that the controls need. app/ defines them,
// because this folder must not include the layers above it.

/// The font that all dialogs share, at a resolution in pixels per inch. Created on
/// first use and owned by the application; null without a main window.
CFont* GetSharedDialogFont(UINT resolution);

/// The tooltip window and registry of help texts of the process; null while the
/// window does not exist.
CToolTipControl* GetToolTipControl();

/// The application's icon; null until it is loaded. The caller must not destroy it.
HICON GetApplicationIcon();

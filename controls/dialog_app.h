#pragma once

#include "framework/afxwin.h"

class CToolTipControl;

/// The interface of the application object to the dialogs: it owns what all of them
/// share.
class CDialogApp : public CWinApp
{
    DECLARE_DYNAMIC(CDialogApp)

  public:
    /// The font that all dialogs share, at a resolution in pixels per inch. Created on
    /// first use and owned by the application; null without a main window.
    virtual CFont* GetDialogFont(UINT resolution) = 0;

    /// The tooltip window and registry of help texts of the process; null while the
    /// window does not exist.
    virtual CToolTipControl* GetTooltip() = 0;

    /// The icon that the tooltip window shows; null until it is loaded. The caller must
    /// not destroy it.
    virtual HICON GetTooltipIcon() = 0;
};

/// The application object of the module; null if it is not a CDialogApp.
CDialogApp* GetDialogApp();

// The same of the application object of the module; null without one.
CFont* GetSharedDialogFont(UINT resolution);
CToolTipControl* GetTooltipControl();
HICON GetApplicationIcon();

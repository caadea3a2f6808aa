#include "controls/dialog_app.h"

IMPLEMENT_DYNAMIC(CDialogApp, CWinApp)

CDialogApp* GetDialogApp()
{
    return DYNAMIC_DOWNCAST(CDialogApp, AfxGetApp());
}

CFont* GetSharedDialogFont(UINT resolution)
{
    CDialogApp* const app = GetDialogApp();
    return app != nullptr ? app->GetDialogFont(resolution) : nullptr;
}

CToolTipControl* GetTooltipControl()
{
    CDialogApp* const app = GetDialogApp();
    return app != nullptr ? app->GetTooltip() : nullptr;
}

HICON GetApplicationIcon()
{
    CDialogApp* const app = GetDialogApp();
    return app != nullptr ? app->GetTooltipIcon() : nullptr;
}

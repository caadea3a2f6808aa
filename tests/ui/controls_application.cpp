#include "tests/ui/controls_application.h"

CFont* sharedFont = nullptr;
HICON applicationIcon = nullptr;

CFont* GetSharedDialogFont(UINT)
{
    return sharedFont;
}

CToolTipControl* GetToolTipControl()
{
    return nullptr;
}

HICON GetApplicationIcon()
{
    return applicationIcon;
}

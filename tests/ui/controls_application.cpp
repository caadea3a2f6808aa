#include "tests/ui/controls_application.h"

CFont* sharedFont = nullptr;
HICON applicationIcon = nullptr;

namespace
{
class ControlsApplication : public CDialogApp
{
  public:
    CFont* GetDialogFont(UINT) override { return sharedFont; }
    CToolTipControl* GetTooltip() override { return nullptr; }
    HICON GetTooltipIcon() override { return applicationIcon; }
};

ControlsApplication application;
} // namespace

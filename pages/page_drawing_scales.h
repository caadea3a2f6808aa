#pragma once

#include "pages/settings_page.h"

/// Which drawing scales are allowed, and what happens when one is set or missing.
class CPageDrawingScales : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageDrawingScales)

  public:
    CPageDrawingScales(CPreferencesWizard* owner, const ov::PageInfo& info);
};

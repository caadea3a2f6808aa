#pragma once

#include "pages/settings_page.h"

/// What the conformance checker looks at, its tolerances, and the levels that
/// it leaves alone.
class CPageConforming : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageConforming)

  public:
    CPageConforming(CPreferencesWizard* owner, const ov::PageInfo& info);
};

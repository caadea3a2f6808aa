#pragma once

#include "pages/settings_page.h"

/// Which title blocks have to stand in each master model, and with what tags.
class CPageTitleBlock : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageTitleBlock)

  public:
    CPageTitleBlock(CPreferencesWizard* owner, const ov::PageInfo& info);
};

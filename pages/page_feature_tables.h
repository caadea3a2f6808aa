#pragma once

#include "pages/settings_page.h"

/// What feature tables hold, who sees what of them, and their backups.
class CPageFeatureTables : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageFeatureTables)

  public:
    CPageFeatureTables(CPreferencesWizard* owner, const ov::PageInfo& info);
};

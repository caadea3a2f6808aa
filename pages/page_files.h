#pragma once

#include "pages/settings_page.h"

/// Where Orthoval finds its files and directories.
class CPageFiles : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageFiles)

  public:
    CPageFiles(CPreferencesWizard* owner, const ov::PageInfo& info);
};

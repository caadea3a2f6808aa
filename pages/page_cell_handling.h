#pragma once

#include "pages/settings_page.h"

/// How cells and their components are checked.
class CPageCellHandling : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageCellHandling)

  public:
    CPageCellHandling(CPreferencesWizard* owner, const ov::PageInfo& info);
};

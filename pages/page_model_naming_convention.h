#pragma once

#include "pages/settings_page.h"

/// What the names of models have to look like, and what the person is told about it.
class CPageModelNamingConvention : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageModelNamingConvention)

  public:
    CPageModelNamingConvention(CPreferencesWizard* owner, const ov::PageInfo& info);
};

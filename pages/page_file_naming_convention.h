#pragma once

#include "pages/settings_page.h"

/// What the names of design files have to look like, and what the person is told about it.
class CPageFileNamingConvention : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageFileNamingConvention)

  public:
    CPageFileNamingConvention(CPreferencesWizard* owner, const ov::PageInfo& info);
};

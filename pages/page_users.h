#pragma once

#include "pages/settings_page.h"

/// How users are known to the program: by groups, by Windows.
class CPageUsers : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageUsers)

  public:
    CPageUsers(CPreferencesWizard* owner, const ov::PageInfo& info);
};

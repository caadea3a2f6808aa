#pragma once

#include "pages/settings_page.h"

/// How strings are matched, with the tester for patterns; windows; automatic
/// login.
class CPageMisc : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageMisc)

  public:
    explicit CPageMisc(CPreferencesWizard* owner);

  protected:
    void OnTest();
    DECLARE_MESSAGE_MAP()
};

#pragma once

#include "pages/settings_page.h"

/// The Miscellaneous page: string matching, with the pattern tester; windows;
/// automatic login.
class CPageMisc : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageMisc)

  public:
    explicit CPageMisc(CPreferencesWizard* owner);

  protected:
    void OnTest();
    DECLARE_MESSAGE_MAP()
};

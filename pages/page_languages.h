#pragma once

#include "pages/settings_page.h"

/// The menu's name and the bilingual text tools.
class CPageLanguages : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageLanguages)

  public:
    CPageLanguages(CPreferencesWizard* owner, const ov::PageInfo& info);
};

#pragma once

#include "pages/settings_page.h"

/// How the drafting tools behave.
class CPageDrafting : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageDrafting)

  public:
    CPageDrafting(CPreferencesWizard* owner, const ov::PageInfo& info);
};

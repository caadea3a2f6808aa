#pragma once

#include "pages/settings_page.h"

/// Whether the elements and the data of other applications are checked.
class CPageThirdParty : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageThirdParty)

  public:
    CPageThirdParty(CPreferencesWizard* owner, const ov::PageInfo& info);
};

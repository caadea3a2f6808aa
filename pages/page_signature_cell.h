#pragma once

#include "pages/settings_page.h"

/// Which signature cells have to stand in each master model.
class CPageSignatureCell : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageSignatureCell)

  public:
    CPageSignatureCell(CPreferencesWizard* owner, const ov::PageInfo& info);
};

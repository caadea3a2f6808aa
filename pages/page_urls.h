#pragma once

#include "pages/settings_page.h"

/// The web addresses for support and of the product.
class CPageURLs : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageURLs)

  public:
    CPageURLs(CPreferencesWizard* owner, const ov::PageInfo& info);
};

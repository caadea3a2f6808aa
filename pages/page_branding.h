#pragma once

#include "pages/settings_page.h"

/// Branding of feature tables.
class CPageBranding : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageBranding)

  public:
    CPageBranding(CPreferencesWizard* owner, const ov::PageInfo& info);
};

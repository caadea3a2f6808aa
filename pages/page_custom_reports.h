#pragma once

#include "pages/settings_page.h"

/// Custom report commands and the VBA projects that they need.
class CPageCustomReports : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageCustomReports)

  public:
    CPageCustomReports(CPreferencesWizard* owner, const ov::PageInfo& info);
};

#pragma once

#include "pages/settings_page.h"

/// Change tracking and debug logging.
class CPageLogging : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageLogging)

  public:
    CPageLogging(CPreferencesWizard* owner, const ov::PageInfo& info);
};

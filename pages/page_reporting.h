#pragma once

#include "pages/settings_page.h"

/// What reports include, how far they go, and their default name and folder.
class CPageReporting : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageReporting)

  public:
    CPageReporting(CPreferencesWizard* owner, const ov::PageInfo& info);
};

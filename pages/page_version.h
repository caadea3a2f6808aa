#pragma once

#include "pages/settings_page.h"

/// The server's version, and the warnings when a database knows a newer one.
class CPageVersion : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageVersion)

  public:
    CPageVersion(CPreferencesWizard* owner, const ov::PageInfo& info);
};

#pragma once

#include "pages/settings_page.h"

/// The colour tables that files may use, and what becomes of elements under a new one.
class CPageColourTable : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageColourTable)

  public:
    CPageColourTable(CPreferencesWizard* owner, const ov::PageInfo& info);
};

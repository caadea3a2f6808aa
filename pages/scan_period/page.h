#pragma once

#include "pages/settings_page.h"

/// The period whose elements are scanned: who decides on it, and a fixed one.
class CPageScanPeriod : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageScanPeriod)

  public:
    CPageScanPeriod(CPreferencesWizard* owner, const ov::PageInfo& info);

    BOOL OnInitDialog() override;

    /// Tells the person about a date that does not exist, and loads the rest.
    bool LoadSettings(int selector) override;

  protected:
    BOOL OnCmdMsg(UINT id, int code, NMHDR* notify, LRESULT* result) override;

  private:
    void ShowToday();
};

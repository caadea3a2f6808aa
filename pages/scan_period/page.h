#pragma once

#include "pages/settings_page.h"

/// The Scan Period page: who chooses the period, and a fixed period.
class CPageScanPeriod : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageScanPeriod)

  public:
    explicit CPageScanPeriod(CPreferencesWizard* owner);

    BOOL OnInitDialog() override;

    /// Shows a message about an impossible date, and loads the rest.
    bool LoadSettings(ov::TableSelector table) override;

    /// Shows, hides, enables and disables the controls of the fixed period from
    /// the members. Without a fixed period there is no second date.
    void UpdateScanPeriodControls();

  protected:
    BOOL OnCmdMsg(UINT id, int code, NMHDR* notify, LRESULT* result) override;
    void RefreshControls() override { UpdateScanPeriodControls(); }
    /// A date of which a file gives only a part keeps the rest from what the controls show.
    bool PostponesExchange() const override { return false; }
};

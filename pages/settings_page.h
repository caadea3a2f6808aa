#pragma once

#include "pages/core/page_catalogue.h"
#include "pages/core/page_values.h"
#include "pages/core/setting_row.h"
#include "wizard/wizard_page.h"

/// A category page that its rows describe: it loads, saves, exchanges, lays
/// out and explains every setting from them, and marks the dialog modified
/// when one of their controls changes. A derived class adds what is peculiar.
class CSettingsPage : public CWizardPage
{
    DECLARE_DYNAMIC(CSettingsPage)

  public:
    CSettingsPage(CPreferencesWizard* owner, const ov::PageInfo& info, const ov::PageRows& rows);

    BOOL OnInitDialog() override;
    bool LoadSettings(int selector) override;
    bool SaveSettings(CPreferencesWizard* wizard) override;
    virtual void RegisterTooltips();

  protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void InitControlLayout() override;

    /// Notifications that no message-map entry takes, from the control of a
    /// row, by which that kind of control reports a change.
    BOOL OnCmdMsg(UINT id, int code, NMHDR* notify, LRESULT* result) override;

    /// The text of the row that edits `variable`, which must be one of the page's.
    ov::Text& TextOf(ov::TextView variable);

  private:
    bool ReportsChange(int id, int code) const;

    const ov::PageRows& m_rows;
    ov::PageValues m_values;
};

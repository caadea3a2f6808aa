#pragma once

#include "pages/settings_page.h"

/// The Score Weighting page: how much each attribute of an element counts in the
/// match score. Each has a track bar, whose value is the setting.
class CPageWeighting : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageWeighting)

  public:
    explicit CPageWeighting(CPreferencesWizard* owner);

    BOOL OnInitDialog() override;
    bool LoadSettings(ov::TableSelector table) override;

  protected:
    void OnHScroll(UINT code, UINT position, CWnd* sender);
    DECLARE_MESSAGE_MAP()
};

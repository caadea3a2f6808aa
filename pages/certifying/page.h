#pragma once

#include "pages/settings_page.h"

/// Marker cells, key-ins around watermarking, reference files when certifying.
class CPageCertifying : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageCertifying)
    DECLARE_MESSAGE_MAP()

  public:
    CPageCertifying(CPreferencesWizard* owner, const ov::PageInfo& info);

  protected:
    void DoDataExchange(CDataExchange* exchange) override;
};

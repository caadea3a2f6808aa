#pragma once

#include "pages/settings_page.h"

/// Marker cells, key-ins around watermarking, reference files when certifying.
class CPageCertifying : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageCertifying)
    DECLARE_MESSAGE_MAP()

  public:
    explicit CPageCertifying(CPreferencesWizard* owner);

  protected:
    void DoDataExchange(CDataExchange* exchange) override;
};

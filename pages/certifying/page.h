#pragma once

#include "pages/settings_page.h"

/// The Certifying page: marker cells, watermarking key-ins and reference files.
class CPageCertifying : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageCertifying)
    DECLARE_MESSAGE_MAP()

  public:
    explicit CPageCertifying(CPreferencesWizard* owner);

  protected:
    void DoDataExchange(CDataExchange* exchange) override;
};

#pragma once

#include "pages/settings_page.h"

/// What the checksum of a watermark covers and what makes it invalid.
class CPageWatermarkIntegrity : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageWatermarkIntegrity)

  public:
    CPageWatermarkIntegrity(CPreferencesWizard* owner, const ov::PageInfo& info);
};

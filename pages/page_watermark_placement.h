#pragma once

#include "pages/settings_page.h"

/// Text replacement in a placed watermark and the cross over a failed one.
class CPageWatermarkPlacement : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageWatermarkPlacement)

  public:
    CPageWatermarkPlacement(CPreferencesWizard* owner, const ov::PageInfo& info);
};

#include "pages/page_watermark_placement.h"

#include "pages/watermark_placement/rows.h"

IMPLEMENT_DYNAMIC(CPageWatermarkPlacement, CSettingsPage)

CPageWatermarkPlacement::CPageWatermarkPlacement(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::WatermarkPlacementRows())
{
}

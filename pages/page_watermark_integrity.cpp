#include "pages/page_watermark_integrity.h"

#include "pages/watermark_integrity/rows.h"

IMPLEMENT_DYNAMIC(CPageWatermarkIntegrity, CSettingsPage)

CPageWatermarkIntegrity::CPageWatermarkIntegrity(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::WatermarkIntegrityRows())
{
}

#include "pages/page_watermark_integrity.h"

#include "pages/core/watermark_integrity_rows.h"

IMPLEMENT_DYNAMIC(CPageWatermarkIntegrity, CSettingsPage)

CPageWatermarkIntegrity::CPageWatermarkIntegrity(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::WatermarkIntegrityRows())
{
}

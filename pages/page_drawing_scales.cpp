#include "pages/page_drawing_scales.h"

#include "pages/drawing_scales/rows.h"

IMPLEMENT_DYNAMIC(CPageDrawingScales, CSettingsPage)

CPageDrawingScales::CPageDrawingScales(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::DrawingScalesRows())
{
}

#include "pages/page_conforming.h"

#include "pages/conforming/rows.h"

IMPLEMENT_DYNAMIC(CPageConforming, CSettingsPage)

CPageConforming::CPageConforming(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::ConformingRows())
{
}

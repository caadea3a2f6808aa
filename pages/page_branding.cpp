#include "pages/page_branding.h"

#include "pages/branding/rows.h"

IMPLEMENT_DYNAMIC(CPageBranding, CSettingsPage)

CPageBranding::CPageBranding(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::BrandingRows())
{
}

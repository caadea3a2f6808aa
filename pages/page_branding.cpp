#include "pages/page_branding.h"

#include "pages/core/branding_rows.h"
#include "resources/ids.h"

IMPLEMENT_DYNAMIC(CPageBranding, CSettingsPage)

BEGIN_MESSAGE_MAP(CPageBranding, CSettingsPage)
    ON_BN_CLICKED(IDC_BRANDING_RENAME_BROWSE, &CPageBranding::OnBrowseRenames)
END_MESSAGE_MAP()

CPageBranding::CPageBranding(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::BrandingRows())
{
}

void CPageBranding::OnBrowseRenames()
{
    if (!EditValueList(TextOf(u"_ORTHOVAL_BRANDING_RENAME_TABLES"), 0, u';', u'"', u':', 2))
        GetDlgItem(IDC_BRANDING_RENAME)->SetFocus();
}

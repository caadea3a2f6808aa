#include "pages/certifying/page.h"

#include "pages/certifying/ids.h"
#include "pages/core/page_rows.h"

IMPLEMENT_DYNAMIC(CPageCertifying, CSettingsPage)

BEGIN_MESSAGE_MAP(CPageCertifying, CSettingsPage)
    ON_BN_CLICKED(IDC_CERTIFYING_PLACE_MARKER_CELL, &CPageCertifying::OnSettingChanged)
END_MESSAGE_MAP()

CPageCertifying::CPageCertifying(CPreferencesWizard* owner) : CSettingsPage(owner, ov::kCertifyingRows) {}

// The first check box also shows the marker cell's flag. It is read before the
// second one, so the second one decides the value.
void CPageCertifying::DoDataExchange(CDataExchange* exchange)
{
    if (!PostponesExchange())
        DDX_Check(exchange, IDC_CERTIFYING_PLACE_MARKER_CELL, Values().NumberOf(u"_ORTHOVAL_MARKERCELL"));
    CSettingsPage::DoDataExchange(exchange);
}

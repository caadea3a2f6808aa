#include "pages/misc/page.h"

#include "match/regex_tester.h"
#include "pages/core/page_rows.h"
#include "pages/misc/ids.h"
#include "wizard/preferences_wizard.h"

IMPLEMENT_DYNAMIC(CPageMisc, CSettingsPage)

BEGIN_MESSAGE_MAP(CPageMisc, CSettingsPage)
    ON_BN_CLICKED(IDC_MISC_WILDCARD_TEST, &CPageMisc::OnTest)
END_MESSAGE_MAP()

CPageMisc::CPageMisc(CPreferencesWizard* owner) : CSettingsPage(owner, ov::kMiscRows) {}

void CPageMisc::OnTest()
{
    UpdateData(TRUE);
    RegexTester tester(GetParentWizard(), Values().NumberOf(u"_ORTHOVAL_WILDCARD_TYPE"), u"", u"");
    // The pattern tester's last type is not taken over; the page keeps its own.
    if (tester.DoModal() != IDOK)
        return;
    SetModified(true);
    UpdateData(FALSE);
}

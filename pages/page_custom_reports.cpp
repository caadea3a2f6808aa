#include "pages/page_custom_reports.h"

#include "pages/custom_reports/rows.h"

IMPLEMENT_DYNAMIC(CPageCustomReports, CSettingsPage)

CPageCustomReports::CPageCustomReports(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::CustomReportsRows())
{
}

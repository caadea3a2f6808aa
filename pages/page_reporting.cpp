#include "pages/page_reporting.h"

#include "pages/reporting/rows.h"

IMPLEMENT_DYNAMIC(CPageReporting, CSettingsPage)

CPageReporting::CPageReporting(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::ReportingRows())
{
}

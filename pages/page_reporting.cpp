#include "pages/page_reporting.h"

#include "pages/core/reporting_rows.h"

IMPLEMENT_DYNAMIC(CPageReporting, CSettingsPage)

CPageReporting::CPageReporting(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::ReportingRows())
{
}

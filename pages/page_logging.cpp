#include "pages/page_logging.h"

#include "pages/logging/rows.h"

IMPLEMENT_DYNAMIC(CPageLogging, CSettingsPage)

CPageLogging::CPageLogging(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::LoggingRows())
{
}

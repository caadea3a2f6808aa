#include "pages/page_version.h"

#include "pages/version/rows.h"

IMPLEMENT_DYNAMIC(CPageVersion, CSettingsPage)

CPageVersion::CPageVersion(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::VersionRows())
{
}

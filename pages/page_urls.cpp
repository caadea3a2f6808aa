#include "pages/page_urls.h"

#include "pages/urls/rows.h"

IMPLEMENT_DYNAMIC(CPageURLs, CSettingsPage)

CPageURLs::CPageURLs(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::UrlsRows())
{
}

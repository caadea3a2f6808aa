#include "pages/core/page_rows.h"
#include "pages/urls/ids.h"

namespace ov
{

constexpr SettingRow settings[] = {
    TextRow(u"_ORTHOVAL_TECHSUPPORT_URL", SettingKindText, IDC_URLS_TECH_SUPPORT, IDS_HELP_URLS_TECH_SUPPORT),
    TextRow(u"_ORTHOVAL_WEBSITE_URL", SettingKindText, IDC_URLS_WEBSITE, IDS_HELP_URLS_WEBSITE),
};

constexpr PageRows kURLsRows = {
    .info = {.pageId = 24,
             .titleId = IDS_TITLE_URLS,
             .templateId = IDD_PAGE_URLS,
             .scrollWidth = 290,
             .scrollHeight = 70,
             .constructionRank = 220,
             .listRank = 230},
    .settings = settings,
};

} // namespace ov

#include "pages/core/page_rows.h"
#include "pages/third_party/ids.h"

namespace ov
{

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_CHECK_USERATTRIBUTES", IDC_THIRD_PARTY_USER_ATTRIBUTES,
            IDS_HELP_THIRD_PARTY_USER_ATTRIBUTES),
    FlagRow(u"_ORTHOVAL_CHECK_GEOPAK", IDC_THIRD_PARTY_GEOPAK, IDS_HELP_THIRD_PARTY_GEOPAK),
    FlagRow(u"_ORTHOVAL_CHECK_INROADS", IDC_THIRD_PARTY_INROADS, IDS_HELP_THIRD_PARTY_INROADS),
    FlagRow(u"_ORTHOVAL_CHECK_TRIFORMA", IDC_THIRD_PARTY_TRIFORMA, IDS_HELP_THIRD_PARTY_TRIFORMA),
};

constexpr PageRows kThirdPartyRows = {
    .info = {.pageId = 23,
             .titleId = IDS_TITLE_THIRD_PARTY,
             .templateId = IDD_PAGE_THIRD_PARTY,
             .scrollWidth = 290,
             .scrollHeight = 70,
             .constructionRank = 210,
             .listRank = 220},
    .settings = settings,
};

} // namespace ov

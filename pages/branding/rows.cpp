#include "pages/branding/ids.h"
#include "pages/core/page_rows.h"

namespace ov
{

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_BRANDING_AUTO", IDC_BRANDING_AUTO, IDS_HELP_BRANDING_AUTO, true),
    FlagRow(u"_ORTHOVAL_BRANDING_OVERRIDE", IDC_BRANDING_OVERRIDE, IDS_HELP_BRANDING_OVERRIDE, true),
    FlagRow(u"_ORTHOVAL_BRANDING_CERTIFY", IDC_BRANDING_CERTIFY, IDS_HELP_BRANDING_CERTIFY, true),
    FlagRow(u"_ORTHOVAL_BRANDING_DISABLE_AUTOLOAD", IDC_BRANDING_DISABLE_AUTOLOAD,
            IDS_HELP_BRANDING_DISABLE_AUTOLOAD),
    TextRow(u"_ORTHOVAL_BRANDING_RENAME_TABLES", SettingKindText, IDC_BRANDING_RENAME,
            IDS_HELP_BRANDING_RENAME),
};

constexpr HelpRow extraHelp[] = {
    {IDC_BRANDING_RENAME_BROWSE, IDS_HELP_BRANDING_RENAME_BROWSE},
};

constexpr LayoutRow layout[] = {
    {IDC_BRANDING_AUTO, kStretched},
    {IDC_BRANDING_OVERRIDE, kStretched},
};

constexpr BrowseRow browses[] = {
    BrowseFields(IDC_BRANDING_RENAME_BROWSE, u"_ORTHOVAL_BRANDING_RENAME_TABLES", 0, u':', 2,
                 IDC_BRANDING_RENAME),
};

constexpr PageRows kBrandingRows = {
    .info = {.pageId = 2,
             .titleId = IDS_TITLE_BRANDING,
             .templateId = IDD_PAGE_BRANDING,
             .scrollWidth = 290,
             .scrollHeight = 220,
             .constructionRank = 10,
             .listRank = 10},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .browses = browses,
};

} // namespace ov

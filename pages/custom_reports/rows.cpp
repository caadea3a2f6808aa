#include "pages/core/page_rows.h"
#include "pages/custom_reports/ids.h"

namespace ov
{

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_REPORT_CUSTOM_COMMANDS_LOCKED", IDC_CUSTOM_REPORTS_LOCKED,
            IDS_HELP_CUSTOM_REPORTS_LOCKED),
    TextRow(u"_ORTHOVAL_REPORT_CUSTOM_COMMANDS", SettingKindText, IDC_CUSTOM_REPORTS_COMMANDS,
            IDS_HELP_CUSTOM_REPORTS_COMMANDS),
    TextRow(u"_ORTHOVAL_REPORT_CUSTOM_MVBA", SettingKindText, IDC_CUSTOM_REPORTS_VBA,
            IDS_HELP_CUSTOM_REPORTS_VBA),
};

constexpr HelpRow extraHelp[] = {
    {IDC_CUSTOM_REPORTS_COMMANDS_BROWSE, IDS_HELP_CUSTOM_REPORTS_COMMANDS_BROWSE},
    {IDC_CUSTOM_REPORTS_VBA_BROWSE, IDS_HELP_CUSTOM_REPORTS_VBA_BROWSE},
};

constexpr LayoutRow layout[] = {
    {IDC_CUSTOM_REPORTS_LOCKED, kStretched},
};

constexpr BrowseRow browses[] = {
    BrowseFields(IDC_CUSTOM_REPORTS_COMMANDS_BROWSE, u"_ORTHOVAL_REPORT_CUSTOM_COMMANDS", 0, u',', 4,
                 kFocusStays),
    BrowseFiles(IDC_CUSTOM_REPORTS_VBA_BROWSE, u"_ORTHOVAL_REPORT_CUSTOM_MVBA"),
};

constexpr PageRows kCustomReportsRows = {
    .info = {.pageId = 7,
             .titleId = IDS_TITLE_CUSTOM_REPORTS,
             .templateId = IDD_PAGE_CUSTOM_REPORTS,
             .scrollWidth = 290,
             .scrollHeight = 170,
             .constructionRank = 60,
             .listRank = 60},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .browses = browses,
};

} // namespace ov

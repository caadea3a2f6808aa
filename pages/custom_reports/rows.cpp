#include "pages/custom_reports/rows.h"

#include "pages/core/layout_flags.h"
#include "resources/page_ids.h"

namespace ov
{
namespace
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
    {IDC_CUSTOM_REPORTS_COMMANDS_LABEL, kFixed},
    {IDC_CUSTOM_REPORTS_COMMANDS, kStretched},
    {IDC_CUSTOM_REPORTS_COMMANDS_BROWSE, kTopRight},
    // Its caption wraps where the page is narrow.
    {IDC_CUSTOM_REPORTS_LOCKED, kStretched},
    {IDC_CUSTOM_REPORTS_VBA_LABEL, kFixed},
    {IDC_CUSTOM_REPORTS_VBA, kStretched},
    {IDC_CUSTOM_REPORTS_VBA_BROWSE, kTopRight},
};

constexpr BrowseRow browses[] = {
    BrowseFields(IDC_CUSTOM_REPORTS_COMMANDS_BROWSE, u"_ORTHOVAL_REPORT_CUSTOM_COMMANDS", 0, u',', 4,
                 kFocusStays),
    BrowseFiles(IDC_CUSTOM_REPORTS_VBA_BROWSE, u"_ORTHOVAL_REPORT_CUSTOM_MVBA"),
};

constexpr PageRows rows = {
    .pageId = 7,
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .browses = browses,
};
} // namespace

const PageRows& CustomReportsRows()
{
    return rows;
}

} // namespace ov

#include "pages/core/page_rows.h"
#include "pages/watermark_placement/ids.h"

namespace ov
{

// Four of the texts have always been written as paths, without quotes.
constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_REPLACETEXT_LINESPACING_SCALED", IDC_WATERMARK_PLACEMENT_LINE_SPACING_SCALED,
            IDS_HELP_WATERMARK_PLACEMENT_LINE_SPACING_SCALED),
    TextRow(u"_ORTHOVAL_WATERMARK_CROSS", SettingKindText, IDC_WATERMARK_PLACEMENT_CROSS,
            IDS_HELP_WATERMARK_PLACEMENT_CROSS),
    TextRow(u"_ORTHOVAL_REPLACETEXT_DATE_STRING", SettingKindPath, IDC_WATERMARK_PLACEMENT_DATE_STRING,
            IDS_HELP_WATERMARK_PLACEMENT_DATE_STRING),
    TextRow(u"_ORTHOVAL_REPLACETEXT_DATE_FORMAT", SettingKindPath, IDC_WATERMARK_PLACEMENT_DATE_FORMAT,
            IDS_HELP_WATERMARK_PLACEMENT_DATE_FORMAT),
    TextRow(u"_ORTHOVAL_REPLACETEXT_APP_VERSION_STRING", SettingKindPath,
            IDC_WATERMARK_PLACEMENT_APPLICATION_STRING, IDS_HELP_WATERMARK_PLACEMENT_APPLICATION_STRING),
    TextRow(u"_ORTHOVAL_REPLACETEXT_DICTVERSION_STRING", SettingKindPath,
            IDC_WATERMARK_PLACEMENT_DICTIONARY_STRING, IDS_HELP_WATERMARK_PLACEMENT_DICTIONARY_STRING),
    TextRow(u"_ORTHOVAL_REPLACETEXT_LINESPACING", SettingKindInteger, IDC_WATERMARK_PLACEMENT_LINE_SPACING,
            IDS_HELP_WATERMARK_PLACEMENT_LINE_SPACING),
    TextRow(u"_ORTHOVAL_REPLACETEXT_USERDEFINED_STRING", SettingKindText, IDC_WATERMARK_PLACEMENT_USER_STRING,
            IDS_HELP_WATERMARK_PLACEMENT_USER_STRING),
};

constexpr HelpRow extraHelp[] = {
    {IDC_WATERMARK_PLACEMENT_CROSS_BROWSE, IDS_HELP_WATERMARK_PLACEMENT_CROSS_BROWSE},
};

// The caption of the check box wraps on a narrow page.
constexpr LayoutRow layout[] = {
    {IDC_WATERMARK_PLACEMENT_TEXT_FRAME, kStretched},
    {IDC_WATERMARK_PLACEMENT_LINE_SPACING, kFixed},
    {IDC_WATERMARK_PLACEMENT_LINE_SPACING_SCALED, kStretched},
};

constexpr BrowseRow browses[] = {
    BrowseList(IDC_WATERMARK_PLACEMENT_CROSS_BROWSE, u"_ORTHOVAL_WATERMARK_CROSS", u';',
               IDC_WATERMARK_PLACEMENT_CROSS),
};

constexpr PageRows kWatermarkPlacementRows = {
    .info = {.pageId = 28,
             .titleId = IDS_TITLE_WATERMARK_PLACEMENT,
             .templateId = IDD_PAGE_WATERMARK_PLACEMENT,
             .scrollWidth = 290,
             .scrollHeight = 370,
             .constructionRank = 260,
             .listRank = 270},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .browses = browses,
};

} // namespace ov

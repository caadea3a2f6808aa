#include "pages/core/page_rows.h"
#include "pages/weighting/ids.h"

namespace ov
{
namespace
{
/// A track bar's value, shown by the read-only edit beside it.
constexpr SettingRow WeightRow(const char16_t* variable, int editId, unsigned barHelpId)
{
    return SettingRow{
        variable, SettingKindInteger, Encoding::VerbatimOrZero, ControlKind::Edit, editId, 0, barHelpId, 0,
        u"0"}
        .ChangeGoesUnnoticed("the edit only shows what the bar has reported");
}

constexpr char kOlderName[] = "the edit only shows what the bar has reported; the help says the name of old";

// In the order of writing, which differs slightly from that of the page.
constexpr SettingRow settings[] = {
    WeightRow(u"_ORTHOVAL_WEIGHTING_COLOUR", IDC_WEIGHTING_COLOUR_VALUE, IDS_HELP_WEIGHTING_COLOUR),
    WeightRow(u"_ORTHOVAL_WEIGHTING_WEIGHT", IDC_WEIGHTING_WEIGHT_VALUE, IDS_HELP_WEIGHTING_WEIGHT),
    WeightRow(u"_ORTHOVAL_WEIGHTING_STYLE", IDC_WEIGHTING_STYLE_VALUE, IDS_HELP_WEIGHTING_STYLE),
    WeightRow(u"_ORTHOVAL_WEIGHTING_LEVEL_NAME", IDC_WEIGHTING_LEVEL_NAME_VALUE,
              IDS_HELP_WEIGHTING_LEVEL_NAME)
        .HelpNamesAnotherVariable(kOlderName),
    WeightRow(u"_ORTHOVAL_WEIGHTING_CELL_NAME", IDC_WEIGHTING_CELL_NAME_VALUE, IDS_HELP_WEIGHTING_CELL_NAME)
        .HelpNamesAnotherVariable(kOlderName),
    WeightRow(u"_ORTHOVAL_WEIGHTING_TEXTSTYLE", IDC_WEIGHTING_TEXT_STYLE_VALUE,
              IDS_HELP_WEIGHTING_TEXT_STYLE),
    WeightRow(u"_ORTHOVAL_WEIGHTING_TEXTHEIGHT", IDC_WEIGHTING_TEXT_HEIGHT_VALUE,
              IDS_HELP_WEIGHTING_TEXT_HEIGHT),
    WeightRow(u"_ORTHOVAL_WEIGHTING_DIMENSIONSTYLE", IDC_WEIGHTING_DIMENSION_STYLE_VALUE,
              IDS_HELP_WEIGHTING_DIMENSION_STYLE)
        .HelpNamesAnotherVariable(kOlderName),
};

constexpr HelpRow extraHelp[] = {
    {IDC_WEIGHTING_COLOUR, IDS_HELP_WEIGHTING_COLOUR},
    {IDC_WEIGHTING_WEIGHT, IDS_HELP_WEIGHTING_WEIGHT},
    {IDC_WEIGHTING_STYLE, IDS_HELP_WEIGHTING_STYLE},
    {IDC_WEIGHTING_LEVEL_NAME, IDS_HELP_WEIGHTING_LEVEL_NAME},
    {IDC_WEIGHTING_CELL_NAME, IDS_HELP_WEIGHTING_CELL_NAME},
    {IDC_WEIGHTING_TEXT_HEIGHT, IDS_HELP_WEIGHTING_TEXT_HEIGHT},
    {IDC_WEIGHTING_TEXT_STYLE, IDS_HELP_WEIGHTING_TEXT_STYLE},
    {IDC_WEIGHTING_DIMENSION_STYLE, IDS_HELP_WEIGHTING_DIMENSION_STYLE},
};

constexpr int highestWeight = 20;

constexpr BarRow bars[] = {
    {IDC_WEIGHTING_COLOUR, u"_ORTHOVAL_WEIGHTING_COLOUR", highestWeight},
    {IDC_WEIGHTING_WEIGHT, u"_ORTHOVAL_WEIGHTING_WEIGHT", highestWeight},
    {IDC_WEIGHTING_STYLE, u"_ORTHOVAL_WEIGHTING_STYLE", highestWeight},
    {IDC_WEIGHTING_LEVEL_NAME, u"_ORTHOVAL_WEIGHTING_LEVEL_NAME", highestWeight},
    {IDC_WEIGHTING_CELL_NAME, u"_ORTHOVAL_WEIGHTING_CELL_NAME", highestWeight},
    {IDC_WEIGHTING_TEXT_STYLE, u"_ORTHOVAL_WEIGHTING_TEXTSTYLE", highestWeight},
    {IDC_WEIGHTING_TEXT_HEIGHT, u"_ORTHOVAL_WEIGHTING_TEXTHEIGHT", highestWeight},
    {IDC_WEIGHTING_DIMENSION_STYLE, u"_ORTHOVAL_WEIGHTING_DIMENSIONSTYLE", highestWeight},
};

constexpr LayoutRow layout[] = {
    {IDC_WEIGHTING_COLOUR, kStretched},          {IDC_WEIGHTING_COLOUR_VALUE, kTopRight},
    {IDC_WEIGHTING_WEIGHT, kStretched},          {IDC_WEIGHTING_WEIGHT_VALUE, kTopRight},
    {IDC_WEIGHTING_STYLE, kStretched},           {IDC_WEIGHTING_STYLE_VALUE, kTopRight},
    {IDC_WEIGHTING_LEVEL_NAME, kStretched},      {IDC_WEIGHTING_LEVEL_NAME_VALUE, kTopRight},
    {IDC_WEIGHTING_CELL_NAME, kStretched},       {IDC_WEIGHTING_CELL_NAME_VALUE, kTopRight},
    {IDC_WEIGHTING_TEXT_HEIGHT, kStretched},     {IDC_WEIGHTING_TEXT_HEIGHT_VALUE, kTopRight},
    {IDC_WEIGHTING_TEXT_STYLE, kStretched},      {IDC_WEIGHTING_TEXT_STYLE_VALUE, kTopRight},
    {IDC_WEIGHTING_DIMENSION_STYLE, kStretched}, {IDC_WEIGHTING_DIMENSION_STYLE_VALUE, kTopRight},
};
} // namespace

constexpr PageRows kWeightingRows = {
    .info = {.pageId = 29,
             .titleId = IDS_TITLE_WEIGHTING,
             .templateId = IDD_PAGE_WEIGHTING,
             .scrollWidth = 290,
             .scrollHeight = 460,
             .constructionRank = 270,
             .listRank = 190},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .bars = bars,
};

} // namespace ov

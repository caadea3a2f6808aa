#include "pages/colour_table/ids.h"
#include "pages/core/page_rows.h"

namespace ov
{

constexpr SettingRow settings[] = {
    TextRow(u"_ORTHOVAL_COLOURTABLES", SettingKindPath, IDC_COLOUR_TABLE_ALLOWED,
            IDS_HELP_COLOUR_TABLE_ALLOWED),
    FlagRow(u"_ORTHOVAL_ALLOW_ANY_COLOURTABLE", IDC_COLOUR_TABLE_ALLOW_ANY, IDS_HELP_COLOUR_TABLE_ALLOW_ANY),
    FlagRow(u"_ORTHOVAL_PROMPT_COLOURTABLE_ON_FILE_OPEN", IDC_COLOUR_TABLE_CHECK_ON_OPEN,
            IDS_HELP_COLOUR_TABLE_CHECK_ON_OPEN),
    ChoiceRow(u"_ORTHOVAL_PROMPT_COLOURTABLE_REMAP", Encoding::Number, ControlKind::DropDownList,
              IDC_COLOUR_TABLE_REMAP, IDS_HELP_COLOUR_TABLE_REMAP, 2),
};

constexpr HelpRow extraHelp[] = {
    {IDC_COLOUR_TABLE_ALLOWED_BROWSE, IDS_HELP_COLOUR_TABLE_ALLOWED_BROWSE},
};

constexpr LayoutRow layout[] = {
    {IDC_COLOUR_TABLE_REMAP, kStretched},
};

constexpr unsigned remapEntries[] = {
    IDS_COLOUR_TABLE_LEAVE,
    IDS_COLOUR_TABLE_REMAP,
    IDS_COLOUR_TABLE_PROMPT,
};

constexpr EntriesRow entries[] = {
    {IDC_COLOUR_TABLE_REMAP, remapEntries},
};

constexpr BrowseRow browses[] = {
    BrowseFiles(IDC_COLOUR_TABLE_ALLOWED_BROWSE, u"_ORTHOVAL_COLOURTABLES"),
};

constexpr PageRows kColourTableRows = {
    .info = {.pageId = 5,
             .titleId = IDS_TITLE_COLOUR_TABLE,
             .templateId = IDD_PAGE_COLOUR_TABLE,
             .scrollWidth = 290,
             .scrollHeight = 220,
             .constructionRank = 30,
             .listRank = 40},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .entries = entries,
    .browses = browses,
};

} // namespace ov

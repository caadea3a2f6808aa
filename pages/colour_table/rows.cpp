#include "pages/colour_table/rows.h"

#include "pages/core/layout_flags.h"
#include "resources/page_ids.h"

namespace ov
{
namespace
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
    {IDC_COLOUR_TABLE_ALLOWED_LABEL, kFixed},     {IDC_COLOUR_TABLE_ALLOWED, kStretched},
    {IDC_COLOUR_TABLE_ALLOWED_BROWSE, kTopRight}, {IDC_COLOUR_TABLE_ALLOW_ANY, kFixed},
    {IDC_COLOUR_TABLE_CHECK_ON_OPEN, kFixed},     {IDC_COLOUR_TABLE_REMAP_LABEL, kFixed},
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

constexpr PageRows rows = {
    .pageId = 5,
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .entries = entries,
    .browses = browses,
};
} // namespace

const PageRows& ColourTableRows()
{
    return rows;
}

} // namespace ov

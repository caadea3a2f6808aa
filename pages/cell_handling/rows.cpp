#include "pages/cell_handling/rows.h"

#include "pages/core/layout_flags.h"
#include "resources/page_ids.h"

namespace ov
{
namespace
{
constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_CHECK_CELLCOMPONENTS", IDC_CELL_HANDLING_COMPONENTS,
            IDS_HELP_CELL_HANDLING_COMPONENTS),
    FlagRow(u"_ORTHOVAL_CHECK_SHAREDCELLDEF", IDC_CELL_HANDLING_SHARED_DEFINITIONS,
            IDS_HELP_CELL_HANDLING_SHARED_DEFINITIONS),
    FlagRow(u"_ORTHOVAL_ALLOW_UNKNOWN_CONFORMING_CELLS", IDC_CELL_HANDLING_UNKNOWN_CELLS,
            IDS_HELP_CELL_HANDLING_UNKNOWN_CELLS),
    FlagRow(u"_ORTHOVAL_COPY_DATA_FIELDS", IDC_CELL_HANDLING_COPY_DATA_FIELDS,
            IDS_HELP_CELL_HANDLING_COPY_DATA_FIELDS),
    FlagRow(u"_ORTHOVAL_CELL_CACHING", IDC_CELL_HANDLING_CACHING, IDS_HELP_CELL_HANDLING_CACHING),
};

constexpr LayoutRow layout[] = {
    // All but the first caption wrap where the page is narrow.
    {IDC_CELL_HANDLING_COMPONENTS, kFixed},        {IDC_CELL_HANDLING_SHARED_DEFINITIONS, kStretched},
    {IDC_CELL_HANDLING_UNKNOWN_CELLS, kStretched}, {IDC_CELL_HANDLING_COPY_DATA_FIELDS, kStretched},
    {IDC_CELL_HANDLING_CACHING, kStretched},
};

constexpr PageRows rows = {
    .pageId = 3,
    .settings = settings,
    .extraHelp = {},
    .layout = layout,
};
} // namespace

const PageRows& CellHandlingRows()
{
    return rows;
}

} // namespace ov

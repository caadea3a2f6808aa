#include "pages/cell_handling/ids.h"
#include "pages/core/page_rows.h"

namespace ov
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
    {IDC_CELL_HANDLING_SHARED_DEFINITIONS, kStretched},
    {IDC_CELL_HANDLING_UNKNOWN_CELLS, kStretched},
    {IDC_CELL_HANDLING_COPY_DATA_FIELDS, kStretched},
    {IDC_CELL_HANDLING_CACHING, kStretched},
};

constexpr PageRows kCellHandlingRows = {
    .info = {.pageId = 3,
             .titleId = IDS_TITLE_CELL_HANDLING,
             .templateId = IDD_PAGE_CELL_HANDLING,
             .scrollWidth = 290,
             .scrollHeight = 210,
             .constructionRank = 20,
             .listRank = 20},
    .settings = settings,
    .layout = layout,
};

} // namespace ov

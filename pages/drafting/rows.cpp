#include "pages/core/page_rows.h"
#include "pages/drafting/ids.h"

namespace ov
{

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_DRAFT_BY_RANGES", IDC_DRAFTING_BY_RANGES, IDS_HELP_DRAFTING_BY_RANGES),
    FlagRow(u"_ORTHOVAL_DRAFT_MENUS_ORDERBYDESCRIPTION", IDC_DRAFTING_ORDER_BY_DESCRIPTION,
            IDS_HELP_DRAFTING_ORDER_BY_DESCRIPTION),
    FlagRow(u"_ORTHOVAL_TEXT_FORCECOLOUROVERRIDEMATCH", IDC_DRAFTING_FORCE_TEXT_COLOUR,
            IDS_HELP_DRAFTING_FORCE_TEXT_COLOUR),
};

constexpr LayoutRow layout[] = {
    {IDC_DRAFTING_BY_RANGES, kStretched},
    {IDC_DRAFTING_ORDER_BY_DESCRIPTION, kStretched},
    {IDC_DRAFTING_FORCE_TEXT_COLOUR, kStretched},
};

constexpr PageRows kDraftingRows = {
    .info = {.pageId = 8,
             .titleId = IDS_TITLE_DRAFTING,
             .templateId = IDD_PAGE_DRAFTING,
             .scrollWidth = 290,
             .scrollHeight = 70,
             .constructionRank = 70,
             .listRank = 70},
    .settings = settings,
    .layout = layout,
};

} // namespace ov

#include "pages/core/page_rows.h"
#include "pages/version/ids.h"

namespace ov
{

constexpr SettingRow settings[] = {
    TextRow(u"_ORTHOVAL_SERVER_VERSION", SettingKindText, IDC_VERSION_SERVER, IDS_HELP_VERSION_SERVER)
        .Saved(SaveRule::Never, "Shown for information: whoever installs a version sets it."),
    FlagRow(u"_ORTHOVAL_WARN_MAJOR_UPGRADE", IDC_VERSION_WARN_MAJOR, IDS_HELP_VERSION_WARN_MAJOR, true),
    FlagRow(u"_ORTHOVAL_WARN_MINOR_UPGRADE", IDC_VERSION_WARN_MINOR, IDS_HELP_VERSION_WARN_MINOR),
};

constexpr LayoutRow layout[] = {
    {IDC_VERSION_WARN_MAJOR, kStretched},
    {IDC_VERSION_WARN_MINOR, kStretched},
};

constexpr PageRows kVersionRows = {
    .info = {.pageId = 26,
             .titleId = IDS_TITLE_VERSION,
             .templateId = IDD_PAGE_VERSION,
             .scrollWidth = 290,
             .scrollHeight = 70,
             .constructionRank = 240,
             .listRank = 250},
    .settings = settings,
    .layout = layout,
};

} // namespace ov

#include "pages/urls/rows.h"

#include "pages/core/layout_flags.h"
#include "resources/page_ids.h"

namespace ov
{
namespace
{
constexpr SettingRow settings[] = {
    TextRow(u"_ORTHOVAL_TECHSUPPORT_URL", SettingKindText, IDC_URLS_TECH_SUPPORT, IDS_HELP_URLS_TECH_SUPPORT),
    TextRow(u"_ORTHOVAL_WEBSITE_URL", SettingKindText, IDC_URLS_WEBSITE, IDS_HELP_URLS_WEBSITE),
};

constexpr LayoutRow layout[] = {
    {IDC_URLS_TECH_SUPPORT_LABEL, kFixed},
    {IDC_URLS_TECH_SUPPORT, kStretched},
    {IDC_URLS_WEBSITE_LABEL, kFixed},
    {IDC_URLS_WEBSITE, kStretched},
};

constexpr PageRows rows = {
    .pageId = 24,
    .settings = settings,
    .extraHelp = {},
    .layout = layout,
};
} // namespace

const PageRows& UrlsRows()
{
    return rows;
}

} // namespace ov

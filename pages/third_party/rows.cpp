#include "pages/third_party/rows.h"

#include "pages/core/layout_flags.h"
#include "resources/page_ids.h"

namespace ov
{
namespace
{
constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_CHECK_USERATTRIBUTES", IDC_THIRD_PARTY_USER_ATTRIBUTES,
            IDS_HELP_THIRD_PARTY_USER_ATTRIBUTES),
    FlagRow(u"_ORTHOVAL_CHECK_GEOPAK", IDC_THIRD_PARTY_GEOPAK, IDS_HELP_THIRD_PARTY_GEOPAK),
    FlagRow(u"_ORTHOVAL_CHECK_INROADS", IDC_THIRD_PARTY_INROADS, IDS_HELP_THIRD_PARTY_INROADS),
    FlagRow(u"_ORTHOVAL_CHECK_TRIFORMA", IDC_THIRD_PARTY_TRIFORMA, IDS_HELP_THIRD_PARTY_TRIFORMA),
};

constexpr LayoutRow layout[] = {
    {IDC_THIRD_PARTY_USER_ATTRIBUTES, kFixed},
    {IDC_THIRD_PARTY_GEOPAK, kFixed},
    {IDC_THIRD_PARTY_INROADS, kFixed},
    {IDC_THIRD_PARTY_TRIFORMA, kFixed},
};

constexpr PageRows rows = {
    .pageId = 23,
    .settings = settings,
    .extraHelp = {},
    .layout = layout,
};
} // namespace

const PageRows& ThirdPartyRows()
{
    return rows;
}

} // namespace ov

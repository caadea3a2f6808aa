#include "pages/branding/rows.h"

#include "pages/core/layout_flags.h"
#include "resources/ids.h"

namespace ov
{
namespace
{
constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_BRANDING_AUTO", IDC_BRANDING_AUTO, IDS_HELP_BRANDING_AUTO, true),
    FlagRow(u"_ORTHOVAL_BRANDING_OVERRIDE", IDC_BRANDING_OVERRIDE, IDS_HELP_BRANDING_OVERRIDE, true),
    FlagRow(u"_ORTHOVAL_BRANDING_CERTIFY", IDC_BRANDING_CERTIFY, IDS_HELP_BRANDING_CERTIFY, true),
    FlagRow(u"_ORTHOVAL_BRANDING_DISABLE_AUTOLOAD", IDC_BRANDING_DISABLE_AUTOLOAD,
            IDS_HELP_BRANDING_DISABLE_AUTOLOAD),
    TextRow(u"_ORTHOVAL_BRANDING_RENAME_TABLES", SettingKindText, IDC_BRANDING_RENAME,
            IDS_HELP_BRANDING_RENAME),
};

constexpr HelpRow extraHelp[] = {
    {IDC_BRANDING_RENAME_BROWSE, IDS_HELP_BRANDING_RENAME_BROWSE},
};

constexpr LayoutRow layout[] = {
    // Their captions are too long for a narrow page, where they wrap.
    {IDC_BRANDING_AUTO, kStretched},         {IDC_BRANDING_OVERRIDE, kStretched},
    {IDC_BRANDING_CERTIFY, kFixed},          {IDC_BRANDING_DISABLE_AUTOLOAD, kFixed},
    {IDC_BRANDING_RENAME_LABEL, kFixed},     {IDC_BRANDING_RENAME, kStretched},
    {IDC_BRANDING_RENAME_BROWSE, kTopRight},
};

constexpr BrowseRow browses[] = {
    BrowseFields(IDC_BRANDING_RENAME_BROWSE, u"_ORTHOVAL_BRANDING_RENAME_TABLES", 0, u':', 2,
                 IDC_BRANDING_RENAME),
};

constexpr PageRows rows = {
    .pageId = 2,
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .browses = browses,
};
} // namespace

const PageRows& BrandingRows()
{
    return rows;
}

} // namespace ov

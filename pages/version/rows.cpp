#include "pages/version/rows.h"

#include "pages/core/layout_flags.h"
#include "resources/page_ids.h"

namespace ov
{
namespace
{
constexpr SettingRow settings[] = {
    TextRow(u"_ORTHOVAL_SERVER_VERSION", SettingKindText, IDC_VERSION_SERVER, IDS_HELP_VERSION_SERVER)
        .Saved(SaveRule::Never, "Shown for information: whoever installs a version sets it."),
    FlagRow(u"_ORTHOVAL_WARN_MAJOR_UPGRADE", IDC_VERSION_WARN_MAJOR, IDS_HELP_VERSION_WARN_MAJOR, true),
    FlagRow(u"_ORTHOVAL_WARN_MINOR_UPGRADE", IDC_VERSION_WARN_MINOR, IDS_HELP_VERSION_WARN_MINOR),
};

constexpr LayoutRow layout[] = {
    {IDC_VERSION_SERVER_LABEL, kFixed},
    {IDC_VERSION_SERVER, kStretched},
    {IDC_VERSION_WARN_MAJOR, kStretched},
    {IDC_VERSION_WARN_MINOR, kStretched},
};

constexpr PageRows rows = {
    .pageId = 26,
    .settings = settings,
    .extraHelp = {},
    .layout = layout,
};
} // namespace

const PageRows& VersionRows()
{
    return rows;
}

} // namespace ov

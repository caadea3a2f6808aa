#include "pages/core/page_rows.h"
#include "pages/users/ids.h"

namespace ov
{

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_USERS_ALLOW_GROUPS", IDC_USERS_ALLOW_GROUPS, IDS_HELP_USERS_ALLOW_GROUPS),
    FlagRow(u"_ORTHOVAL_WINDOWS_AUTHENTICATION", IDC_USERS_WINDOWS_AUTHENTICATION,
            IDS_HELP_USERS_WINDOWS_AUTHENTICATION),
    TextRow(u"_ORTHOVAL_USERS_CURRENT_GROUP", SettingKindText, IDC_USERS_CURRENT_GROUP,
            IDS_HELP_USERS_CURRENT_GROUP),
};

constexpr HelpRow extraHelp[] = {
    {IDC_USERS_CURRENT_GROUP_BROWSE, IDS_HELP_USERS_CURRENT_GROUP_BROWSE},
};

constexpr LayoutRow layout[] = {
    {IDC_USERS_WINDOWS_AUTHENTICATION, kStretched},
};

// Windows authentication is enabled only with the groups, although the checker
// also supports it alone.
constexpr DependencyRow dependencies[] = {
    EnabledWhen(IDC_USERS_WINDOWS_AUTHENTICATION, IsOn(IDC_USERS_ALLOW_GROUPS)),
    EnabledWhen(IDC_USERS_CURRENT_GROUP_LABEL, IsOn(IDC_USERS_ALLOW_GROUPS)),
    EnabledWhen(IDC_USERS_CURRENT_GROUP, IsOn(IDC_USERS_ALLOW_GROUPS)),
    EnabledWhen(IDC_USERS_CURRENT_GROUP_BROWSE, IsOn(IDC_USERS_ALLOW_GROUPS)),
};

constexpr BrowseRow browses[] = {
    BrowseList(IDC_USERS_CURRENT_GROUP_BROWSE, u"_ORTHOVAL_USERS_CURRENT_GROUP", u';',
               IDC_USERS_CURRENT_GROUP),
};

constexpr PageRows kUsersRows = {
    .info = {.pageId = 25,
             .titleId = IDS_TITLE_USERS,
             .templateId = IDD_PAGE_USERS,
             .scrollWidth = 290,
             .scrollHeight = 70,
             .constructionRank = 230,
             .listRank = 240},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .dependencies = dependencies,
    .browses = browses,
};

} // namespace ov

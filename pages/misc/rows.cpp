#include "pages/core/page_rows.h"
#include "pages/misc/ids.h"

namespace ov
{

constexpr SettingRow settings[] = {
    ChoiceRow(u"_ORTHOVAL_WILDCARD_TYPE", Encoding::Number, ControlKind::RadioGroup, IDC_MISC_WILDCARD_NONE,
              IDS_HELP_MISC_WILDCARD_NONE, 3)
        .CommentFrom(IDS_HELP_MISC_WILDCARD_TYPE),
    FlagRow(u"_ORTHOVAL_TOOLS_REORDERALLWINDOWS", IDC_MISC_REORDER_WINDOWS, IDS_HELP_MISC_REORDER_WINDOWS),
    FlagRow(u"_ORTHOVAL_AUTOLOGIN_USERDEFINED", IDC_MISC_AUTO_LOGIN_USER_DEFINED,
            IDS_HELP_MISC_AUTO_LOGIN_USER_DEFINED, true),
    // A flag shown by two radio buttons, Off before On.
    {u"_ORTHOVAL_AUTOLOGIN_DEFAULTVALUE", SettingKindFlag, Encoding::Flag, ControlKind::RadioGroup,
     IDC_MISC_AUTO_LOGIN_OFF, IDS_HELP_MISC_AUTO_LOGIN_DEFAULT, IDS_HELP_MISC_AUTO_LOGIN_DEFAULT, 1},
};

constexpr HelpRow extraHelp[] = {
    {IDC_MISC_WILDCARD_LABEL, IDS_HELP_MISC_WILDCARD_TYPE},
    {IDC_MISC_WILDCARD_DOS, IDS_HELP_MISC_WILDCARD_DOS},
    {IDC_MISC_WILDCARD_RANGES, IDS_HELP_MISC_WILDCARD_RANGES},
    {IDC_MISC_WILDCARD_SUBSETS, IDS_HELP_MISC_WILDCARD_SUBSETS},
    {IDC_MISC_WILDCARD_PERL, IDS_HELP_MISC_WILDCARD_PERL},
    {IDC_MISC_WILDCARD_POSIX, IDS_HELP_MISC_WILDCARD_POSIX},
    {IDC_MISC_AUTO_LOGIN_ON, IDS_HELP_MISC_AUTO_LOGIN_DEFAULT},
};

constexpr LayoutRow layout[] = {
    {IDC_MISC_STRING_MATCHING_FRAME, kStretched}, {IDC_MISC_WILDCARD_RANGES, kStretched},
    {IDC_MISC_WILDCARD_SUBSETS, kStretched},      {IDC_MISC_WILDCARD_PERL, kStretched},
    {IDC_MISC_WILDCARD_POSIX, kStretched},        {IDC_MISC_WINDOW_HANDLING_FRAME, kStretched},
    {IDC_MISC_AUTO_LOGIN_FRAME, kStretched},
};

constexpr PageRows kMiscRows = {
    .info = {.pageId = 16,
             .titleId = IDS_TITLE_MISC,
             .templateId = IDD_PAGE_MISC,
             .scrollWidth = 290,
             .scrollHeight = 390,
             .constructionRank = 140,
             .listRank = 150},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
};

} // namespace ov

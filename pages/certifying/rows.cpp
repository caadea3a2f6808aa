#include "pages/certifying/ids.h"
#include "pages/core/page_rows.h"

namespace ov
{

// The check boxes do not edit the flags that their captions name, and existing
// files and programs rely on that: the first two show the same flag, the third box
// shows the flag of the second caption, and the third flag has no check box. Help
// texts and comments match the captions.
constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_MARKERCELL", IDC_CERTIFYING_CHECK_MARKER_CELLS,
            IDS_HELP_CERTIFYING_CHECK_MARKER_CELLS)
        .CommentFrom(IDS_HELP_CERTIFYING_PLACE_MARKER_CELL)
        .HelpNamesAnotherVariable(
            "two boxes show the flag; the second is read last and explains the next flag"),
    FlagRow(u"_ORTHOVAL_CERTIFY_CHECK_REFERENCE_MARKERCELLS", IDC_CERTIFYING_NO_DIFFERING,
            IDS_HELP_CERTIFYING_NO_DIFFERING, true)
        .CommentFrom(IDS_HELP_CERTIFYING_CHECK_MARKER_CELLS)
        .HelpNamesAnotherVariable("the box that shows the flag explains the next one"),
    HiddenRow(u"_ORTHOVAL_CERTIFY_NO_DIFFERING_STGS", SettingKindFlag, Encoding::Flag,
              IDS_HELP_CERTIFYING_NO_DIFFERING),
    TextRow(u"_ORTHOVAL_CERTIFY_PREWATERMARK_KEYIN", SettingKindText, IDC_CERTIFYING_PRE_KEYIN,
            IDS_HELP_CERTIFYING_PRE_KEYIN),
    TextRow(u"_ORTHOVAL_CERTIFY_POSTWATERMARK_KEYIN", SettingKindText, IDC_CERTIFYING_POST_KEYIN,
            IDS_HELP_CERTIFYING_POST_KEYIN),
    ChoiceRow(u"_ORTHOVAL_CERTIFY_CHECK_REFERENCE_WATERMARKS", Encoding::NeverAlwaysUser,
              ControlKind::RadioGroup, IDC_CERTIFYING_REFERENCES_NEED_NOT,
              IDS_HELP_CERTIFYING_REFERENCES_NEED_NOT, -1)
        .CommentFrom(IDS_HELP_CERTIFYING_REFERENCES),
};

constexpr HelpRow extraHelp[] = {
    {IDC_CERTIFYING_PLACE_MARKER_CELL, IDS_HELP_CERTIFYING_PLACE_MARKER_CELL},
    {IDC_CERTIFYING_PRE_KEYIN_BROWSE, IDS_HELP_CERTIFYING_PRE_KEYIN_BROWSE},
    {IDC_CERTIFYING_POST_KEYIN_BROWSE, IDS_HELP_CERTIFYING_POST_KEYIN_BROWSE},
    {IDC_CERTIFYING_REFERENCES_FRAME, IDS_HELP_CERTIFYING_REFERENCES},
    {IDC_CERTIFYING_REFERENCES_MUST, IDS_HELP_CERTIFYING_REFERENCES_MUST},
    {IDC_CERTIFYING_REFERENCES_USER, IDS_HELP_CERTIFYING_REFERENCES_USER},
};

constexpr LayoutRow layout[] = {
    {IDC_CERTIFYING_REFERENCES_FRAME, kStretched},
};

// Only the second button moves the focus to its edit if the list editor is refused.
constexpr BrowseRow browses[] = {
    BrowseList(IDC_CERTIFYING_PRE_KEYIN_BROWSE, u"_ORTHOVAL_CERTIFY_PREWATERMARK_KEYIN", u';', kFocusStays),
    BrowseList(IDC_CERTIFYING_POST_KEYIN_BROWSE, u"_ORTHOVAL_CERTIFY_POSTWATERMARK_KEYIN", u';',
               IDC_CERTIFYING_POST_KEYIN),
};

constexpr PageRows kCertifyingRows = {
    .info = {.pageId = 4,
             .titleId = IDS_TITLE_CERTIFYING,
             .templateId = IDD_PAGE_CERTIFYING,
             .scrollWidth = 400,
             .scrollHeight = 360,
             .constructionRank = 40,
             .listRank = 30},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .browses = browses,
};

} // namespace ov

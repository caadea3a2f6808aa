#include "pages/conforming/ids.h"
#include "pages/core/page_rows.h"

namespace ov
{

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_CHECK_CELLS", IDC_CONFORMING_CHECK_CELLS, IDS_HELP_CONFORMING_CHECK_CELLS),
    FlagRow(u"_ORTHOVAL_CHECK_TEXT", IDC_CONFORMING_CHECK_TEXT, IDS_HELP_CONFORMING_CHECK_TEXT),
    FlagRow(u"_ORTHOVAL_CHECK_TAGS", IDC_CONFORMING_CHECK_TAGS, IDS_HELP_CONFORMING_CHECK_TAGS),
    FlagRow(u"_ORTHOVAL_CHECK_RGB_COLOUR_MATCH", IDC_CONFORMING_RGB_COLOUR_MATCH,
            IDS_HELP_CONFORMING_RGB_COLOUR_MATCH),
    FlagRow(u"_ORTHOVAL_CHECK_COMPLEXCOMPONENTS", IDC_CONFORMING_COMPLEX_COMPONENTS,
            IDS_HELP_CONFORMING_COMPLEX_COMPONENTS),
    FlagRow(u"_ORTHOVAL_CHECK_3D_OBJECTS", IDC_CONFORMING_3D_OBJECTS, IDS_HELP_CONFORMING_3D_OBJECTS),
    FlagRow(u"_ORTHOVAL_CHECK_MULTILINE_DIMS", IDC_CONFORMING_MULTILINE_DIMS,
            IDS_HELP_CONFORMING_MULTILINE_DIMS, true),
    FlagRow(u"_ORTHOVAL_CHECK_PATTERNS", IDC_CONFORMING_PATTERNS, IDS_HELP_CONFORMING_PATTERNS),
    FlagRow(u"_ORTHOVAL_CHECK_HIDDEN_CELLS", IDC_CONFORMING_HIDDEN_CELLS, IDS_HELP_CONFORMING_HIDDEN_CELLS),
    FlagRow(u"_ORTHOVAL_ALLOW_NEGATIVE_TEXTSIZE", IDC_CONFORMING_NEGATIVE_TEXT_SIZE,
            IDS_HELP_CONFORMING_NEGATIVE_TEXT_SIZE),
    FlagRow(u"_ORTHOVAL_CHECK_CONTINUOUSISZERO", IDC_CONFORMING_CONTINUOUS_IS_ZERO,
            IDS_HELP_CONFORMING_CONTINUOUS_IS_ZERO, true),
    TextRow(u"_ORTHOVAL_MAX_ERROR_UORS", SettingKindReal, IDC_CONFORMING_MAX_ERROR,
            IDS_HELP_CONFORMING_MAX_ERROR, u"1"),
    TextRow(u"_ORTHOVAL_MIN_MU_ERRORSCALE", SettingKindReal, IDC_CONFORMING_MIN_ERROR,
            IDS_HELP_CONFORMING_MIN_ERROR, u"0.01"),
    TextRow(u"_ORTHOVAL_CHECK_IGNORED_LEVELS", SettingKindText, IDC_CONFORMING_IGNORED_LEVELS,
            IDS_HELP_CONFORMING_IGNORED_LEVELS),
};

constexpr HelpRow extraHelp[] = {
    {IDC_CONFORMING_IGNORED_LEVELS_BROWSE, IDS_HELP_CONFORMING_IGNORED_LEVELS_BROWSE},
};

// A short number, fixed like the one above it.
constexpr LayoutRow layout[] = {
    {IDC_CONFORMING_MIN_ERROR, kFixed},
};

// If the list editor is refused, no control keeps the keyboard focus: this page has
// always moved the focus to an edit without a window.
constexpr BrowseRow browses[] = {
    BrowseList(IDC_CONFORMING_IGNORED_LEVELS_BROWSE, u"_ORTHOVAL_CHECK_IGNORED_LEVELS", u',', kFocusRemoved),
};

constexpr SpinRow spins[] = {
    {IDC_CONFORMING_MAX_ERROR_SPIN, IDC_CONFORMING_MAX_ERROR, 0, 10000, kFasterAndFaster},
};

constexpr PageRows kConformingRows = {
    .info = {.pageId = 6,
             .titleId = IDS_TITLE_CONFORMING,
             .templateId = IDD_PAGE_CONFORMING,
             .scrollWidth = 440,
             .scrollHeight = 370,
             .constructionRank = 50,
             .listRank = 50},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .browses = browses,
    .spins = spins,
    .loadMarksModified = true,
};

} // namespace ov

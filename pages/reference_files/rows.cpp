#include "pages/core/encoding.h"
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/reference_files/ids.h"
#include "resources/ids.h"

namespace ov
{
namespace
{
constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_PROMPT_REF_ATTACHED", IDC_REFERENCE_FILES_PROMPT_ATTACHED,
            IDS_HELP_REFERENCE_FILES_PROMPT_ATTACHED),
    FlagRow(u"_ORTHOVAL_PROMPT_REF_DETACHED", IDC_REFERENCE_FILES_PROMPT_DETACHED,
            IDS_HELP_REFERENCE_FILES_PROMPT_DETACHED),
    FlagRow(u"_ORTHOVAL_PROMPT_REF_MODIFIED", IDC_REFERENCE_FILES_PROMPT_MODIFIED,
            IDS_HELP_REFERENCE_FILES_PROMPT_MODIFIED),
    FlagRow(u"_ORTHOVAL_REPORT_REFS_SCALEINDEPENDENT", IDC_REFERENCE_FILES_SCALE_INDEPENDENT,
            IDS_HELP_REFERENCE_FILES_SCALE_INDEPENDENT),
    {u"_ORTHOVAL_REPORT_REF_UNSCALE_DIMS", SettingKindFlag, Encoding::FlagUnlessZero, ControlKind::CheckBox,
     IDC_REFERENCE_FILES_UNSCALE_DIMENSIONS, IDS_HELP_REFERENCE_FILES_UNSCALE_DIMENSIONS,
     IDS_HELP_REFERENCE_FILES_UNSCALE_DIMENSIONS, 1},
    FlagRow(u"_ORTHOVAL_CHECK_BORDERSHEETS", IDC_REFERENCE_FILES_MUST_BE_ATTACHED,
            IDS_HELP_REFERENCE_FILES_MUST_BE_ATTACHED),
    FlagRow(u"_ORTHOVAL_BORDERSHEETS_DEFAULT_MODEL", IDC_REFERENCE_FILES_DEFAULT_MODEL,
            IDS_HELP_REFERENCE_FILES_DEFAULT_MODEL),
    FlagRow(u"_ORTHOVAL_BORDERSHEETS_PLOTSHAPE_EXISTS", IDC_REFERENCE_FILES_PLOT_SHAPE_EXISTS,
            IDS_HELP_REFERENCE_FILES_PLOT_SHAPE_EXISTS),
    FlagRow(u"_ORTHOVAL_BORDERSHEETS_DISALLOW_OUTSIDE", IDC_REFERENCE_FILES_DISALLOW_OUTSIDE,
            IDS_HELP_REFERENCE_FILES_DISALLOW_OUTSIDE),
    FlagRow(u"_ORTHOVAL_BORDERSHEETS_IGNORE_OUTSIDE", IDC_REFERENCE_FILES_IGNORE_OUTSIDE,
            IDS_HELP_REFERENCE_FILES_IGNORE_OUTSIDE),
    TextRow(u"_ORTHOVAL_BORDERSHEETS", SettingKindText, IDC_REFERENCE_FILES_BORDER_SHEETS,
            IDS_HELP_REFERENCE_FILES_BORDER_SHEETS),
    TextRow(u"_ORTHOVAL_PLACE_BORDER_KEYIN", SettingKindText, IDC_REFERENCE_FILES_PLACE_COMMAND,
            IDS_HELP_REFERENCE_FILES_PLACE_COMMAND),
    TextRow(u"_ORTHOVAL_BORDERSHEETS_PLOT_SHAPE", SettingKindText, IDC_REFERENCE_FILES_PLOT_SHAPE,
            IDS_HELP_REFERENCE_FILES_PLOT_SHAPE),
    TextRow(u"_ORTHOVAL_BORDERSHEETS_ERROR_SCALE", SettingKindText, IDC_REFERENCE_FILES_SCALE_FACTOR,
            IDS_HELP_REFERENCE_FILES_SCALE_FACTOR),
    ChoiceRow(u"_ORTHOVAL_REPORT_USEREFCLIPPING", Encoding::AlwaysNeverUser, ControlKind::DropDownList,
              IDC_REFERENCE_FILES_CLIPPING, IDS_HELP_REFERENCE_FILES_CLIPPING, 2),
};

constexpr HelpRow extraHelp[] = {
    {IDC_REFERENCE_FILES_PLACE_COMMAND_BROWSE, IDS_HELP_REFERENCE_FILES_PLACE_COMMAND_BROWSE},
    {IDC_REFERENCE_FILES_PLOT_SHAPE_BROWSE, IDS_HELP_REFERENCE_FILES_PLOT_SHAPE_BROWSE},
};

constexpr LayoutRow layout[] = {
    {IDC_REFERENCE_FILES_PROMPT_GROUP, kStretched},
    {IDC_REFERENCE_FILES_SCALE_FACTOR, kFixed},
};

constexpr unsigned clippingEntries[] = {IDS_ALWAYS, IDS_NEVER, IDS_USER_DEFINED};

constexpr EntriesRow entries[] = {
    {IDC_REFERENCE_FILES_CLIPPING, clippingEntries},
};

constexpr BrowseRow browses[] = {
    BrowseFields(IDC_REFERENCE_FILES_BORDER_SHEETS_BROWSE, u"_ORTHOVAL_BORDERSHEETS", 1, u',', 2,
                 IDC_REFERENCE_FILES_BORDER_SHEETS),
    BrowseList(IDC_REFERENCE_FILES_PLACE_COMMAND_BROWSE, u"_ORTHOVAL_PLACE_BORDER_KEYIN", u';',
               IDC_REFERENCE_FILES_PLACE_COMMAND),
    BrowseList(IDC_REFERENCE_FILES_PLOT_SHAPE_BROWSE, u"_ORTHOVAL_BORDERSHEETS_PLOT_SHAPE", u';',
               IDC_REFERENCE_FILES_PLOT_SHAPE),
};

constexpr Condition borderSheets = IsFilled(IDC_REFERENCE_FILES_BORDER_SHEETS);
constexpr Condition plotShape = IsFilled(IDC_REFERENCE_FILES_PLOT_SHAPE);

// Disabled check boxes keep their state; it is visible again when the text returns.
constexpr DependencyRow dependencies[] = {
    EnabledWhen(IDC_REFERENCE_FILES_MUST_BE_ATTACHED, borderSheets),
    EnabledWhen(IDC_REFERENCE_FILES_DEFAULT_MODEL, borderSheets),
    EnabledWhen(IDC_REFERENCE_FILES_PLACE_COMMAND, borderSheets),
    EnabledWhen(IDC_REFERENCE_FILES_PLACE_COMMAND_BROWSE, borderSheets),
    EnabledWhen(IDC_REFERENCE_FILES_PLOT_SHAPE_EXISTS, borderSheets, plotShape),
    EnabledWhen(IDC_REFERENCE_FILES_DISALLOW_OUTSIDE, plotShape),
    EnabledWhen(IDC_REFERENCE_FILES_IGNORE_OUTSIDE, plotShape),
    EnabledWhen(IDC_REFERENCE_FILES_SCALE_FACTOR, plotShape),
    EnabledWhen(IDC_REFERENCE_FILES_SCALE_FACTOR_LABEL, plotShape),
    EnabledWhen(IDC_REFERENCE_FILES_SCALE_FACTOR_RANGE, plotShape),
};

constexpr RangeRow ranges[] = {
    {u"_ORTHOVAL_BORDERSHEETS_ERROR_SCALE", kLowestScaleFactor, kHighestScaleFactor},
};

/// Clamps the scale factor to its limits.
bool ClampScaleFactor(PageValues& values)
{
    Text& factor = values.TextOf(u"_ORTHOVAL_BORDERSHEETS_ERROR_SCALE");
    const Text typed = factor;
    factor = ClampedScaleFactor(typed);
    return factor != typed;
}
} // namespace

constexpr PageRows kReferenceFilesRows = {
    .info = {.pageId = 18,
             .titleId = IDS_TITLE_REFERENCE_FILES,
             .templateId = IDD_PAGE_REFERENCE_FILES,
             .scrollWidth = 400,
             .scrollHeight = 750,
             .constructionRank = 160,
             .listRank = 160},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .entries = entries,
    .dependencies = dependencies,
    .browses = browses,
    .ranges = ranges,
    .loadMarksModified = true,
    .refresh = ClampScaleFactor,
};

} // namespace ov

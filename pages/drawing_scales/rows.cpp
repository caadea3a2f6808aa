#include "pages/core/encoding.h"
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/drawing_scales/ids.h"

namespace ov
{
namespace
{
constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_PROMPT_DRAWINGSCALES", IDC_DRAWING_SCALES_PROMPT, IDS_HELP_DRAWING_SCALES_PROMPT),
    FlagRow(u"_ORTHOVAL_DRAWINGSCALE_ALLOW_NONE", IDC_DRAWING_SCALES_ALLOW_NONE,
            IDS_HELP_DRAWING_SCALES_ALLOW_NONE),
    FlagRow(u"_ORTHOVAL_DRAWINGSCALE_ANNO_LOCK", IDC_DRAWING_SCALES_IGNORE_ANNOTATION_LOCK,
            IDS_HELP_DRAWING_SCALES_IGNORE_ANNOTATION_LOCK),
    // The companions' two check boxes as one number.
    HiddenRow(u"_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT", SettingKindInteger, Encoding::Verbatim,
              IDS_HELP_DRAWING_SCALES_USE_BUILT_IN),
    TextRow(u"_ORTHOVAL_DRAWINGSCALE_VALUES", SettingKindText, IDC_DRAWING_SCALES_VALUES,
            IDS_HELP_DRAWING_SCALES_VALUES),
    TextRow(u"_ORTHOVAL_DRAWINGSCALE_DEFAULT_VALUE", SettingKindInteger, IDC_DRAWING_SCALES_DEFAULT,
            IDS_HELP_DRAWING_SCALES_DEFAULT),
    TextRow(u"_ORTHOVAL_DRAWINGSCALE_COMMAND", SettingKindText, IDC_DRAWING_SCALES_COMMAND,
            IDS_HELP_DRAWING_SCALES_COMMAND),
};

constexpr HelpRow extraHelp[] = {
    {IDC_DRAWING_SCALES_USE_BUILT_IN, IDS_HELP_DRAWING_SCALES_USE_BUILT_IN},
    {IDC_DRAWING_SCALES_ALLOW_OTHERS, IDS_HELP_DRAWING_SCALES_ALLOW_OTHERS},
    {IDC_DRAWING_SCALES_VALUES_BROWSE, IDS_HELP_DRAWING_SCALES_VALUES_BROWSE},
    {IDC_DRAWING_SCALES_COMMAND_BROWSE, IDS_HELP_DRAWING_SCALES_COMMAND_BROWSE},
};

constexpr LayoutRow layout[] = {
    {IDC_DRAWING_SCALES_IGNORE_ANNOTATION_LOCK, kStretched},
    {IDC_DRAWING_SCALES_USE_BUILT_IN, kStretched},
    {IDC_DRAWING_SCALES_DEFAULT, kFixed},
};

constexpr CompanionRow companions[] = {
    {ControlKind::CheckBox, IDC_DRAWING_SCALES_USE_BUILT_IN, u"_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT"},
    {ControlKind::CheckBox, IDC_DRAWING_SCALES_ALLOW_OTHERS, u"_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT"},
};

constexpr RangeRow ranges[] = {
    {u"_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT", 0, 2},
};

constexpr DependencyRow dependencies[] = {
    EnabledWhen(IDC_DRAWING_SCALES_VALUES_LABEL, IsOff(IDC_DRAWING_SCALES_USE_BUILT_IN)),
    EnabledWhen(IDC_DRAWING_SCALES_VALUES, IsOff(IDC_DRAWING_SCALES_USE_BUILT_IN)),
    EnabledWhen(IDC_DRAWING_SCALES_VALUES_BROWSE, IsOff(IDC_DRAWING_SCALES_USE_BUILT_IN)),
};

constexpr BrowseRow browses[] = {
    BrowseList(IDC_DRAWING_SCALES_VALUES_BROWSE, u"_ORTHOVAL_DRAWINGSCALE_VALUES", u',',
               IDC_DRAWING_SCALES_VALUES),
    BrowseList(IDC_DRAWING_SCALES_COMMAND_BROWSE, u"_ORTHOVAL_DRAWINGSCALE_COMMAND", u';',
               IDC_DRAWING_SCALES_COMMAND),
};

// Files allow other scales in two ways: by brackets around the list, and by the
// number. Without a number the check box for the built-in scales keeps its state.
void ShowScaleSource(PageValues& values, const SettingStore&, TableSelector)
{
    int& builtIn = values.CompanionNumberOf(IDC_DRAWING_SCALES_USE_BUILT_IN);
    ScaleSource source = {builtIn != 0, TakeScaleBrackets(values.TextOf(u"_ORTHOVAL_DRAWINGSCALE_VALUES"))};
    ReadScaleSource(values.TextOf(u"_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT"), source);
    builtIn = source.builtIn ? 1 : 0;
    values.CompanionNumberOf(IDC_DRAWING_SCALES_ALLOW_OTHERS) = source.others ? 1 : 0;
}

void TakeScaleSource(PageValues& values)
{
    const ScaleSource source = {values.CompanionNumberOf(IDC_DRAWING_SCALES_USE_BUILT_IN) != 0,
                                values.CompanionNumberOf(IDC_DRAWING_SCALES_ALLOW_OTHERS) != 0};
    values.TextOf(u"_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT") = WriteScaleSource(source);
    Text& list = values.TextOf(u"_ORTHOVAL_DRAWINGSCALE_VALUES");
    if (source.others)
        list = PutScaleBrackets(list);
}
} // namespace

constexpr PageRows kDrawingScalesRows = {
    .info = {.pageId = 9,
             .titleId = IDS_TITLE_DRAWING_SCALES,
             .templateId = IDD_PAGE_DRAWING_SCALES,
             .scrollWidth = 290,
             .scrollHeight = 320,
             .constructionRank = 80,
             .listRank = 80},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .companions = companions,
    .dependencies = dependencies,
    .browses = browses,
    .ranges = ranges,
    .afterLoad = ShowScaleSource,
    .beforeSave = TakeScaleSource,
};

} // namespace ov

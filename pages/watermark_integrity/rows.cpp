#include "pages/core/page_rows.h"
#include "pages/watermark_integrity/ids.h"
#include "resources/ids.h"

namespace ov
{
namespace
{
constexpr SettingRow WhoDecides(const char16_t* variable, int controlId, unsigned helpId)
{
    return ChoiceRow(variable, Encoding::AlwaysNeverUser, ControlKind::DropDownList, controlId, helpId, 2)
        .Saved(SaveRule::OnlyWhenShown, "written from the list itself, so only when there is one");
}

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_WATERMARKS_INSTANTINVALIDATE", IDC_WATERMARK_INTEGRITY_INSTANT_INVALIDATE,
            IDS_HELP_WATERMARK_INTEGRITY_INSTANT_INVALIDATE),
    FlagRow(u"_ORTHOVAL_REPORT_DOUBLECROSS_ON_FAIL", IDC_WATERMARK_INTEGRITY_DOUBLE_CROSS,
            IDS_HELP_WATERMARK_INTEGRITY_DOUBLE_CROSS),
    FlagRow(u"_ORTHOVAL_WATERMARKS_CONFORM", IDC_WATERMARK_INTEGRITY_CONFORM,
            IDS_HELP_WATERMARK_INTEGRITY_CONFORM),
    FlagRow(u"_ORTHOVAL_WATERMARKS_CHECK_FONTNUMS", IDC_WATERMARK_INTEGRITY_FONT_NUMBERS,
            IDS_HELP_WATERMARK_INTEGRITY_FONT_NUMBERS),
    FlagRow(u"_ORTHOVAL_WATERMARKS_CHECK_FONTNAMES", IDC_WATERMARK_INTEGRITY_FONT_NAMES,
            IDS_HELP_WATERMARK_INTEGRITY_FONT_NAMES),
    // On or off only: the value that other programs write for "user decides" reads as off.
    FlagRow(u"_ORTHOVAL_WATERMARKS_CHECK_CLIPPEDREFELMS", IDC_WATERMARK_INTEGRITY_CLIPPED_REFERENCES,
            IDS_HELP_WATERMARK_INTEGRITY_CLIPPED_REFERENCES),
    TextRow(u"_ORTHOVAL_WATERMARK_CELL_EXCLUSIONS", SettingKindText, IDC_WATERMARK_INTEGRITY_CELLS,
            IDS_HELP_WATERMARK_INTEGRITY_CELLS),
    TextRow(u"_ORTHOVAL_WATERMARK_LEVEL_EXCLUSIONS", SettingKindText, IDC_WATERMARK_INTEGRITY_LEVELS,
            IDS_HELP_WATERMARK_INTEGRITY_LEVELS),
    WhoDecides(u"_ORTHOVAL_WATERMARKS_CHECK_METADATA", IDC_WATERMARK_INTEGRITY_METADATA,
               IDS_HELP_WATERMARK_INTEGRITY_METADATA),
    WhoDecides(u"_ORTHOVAL_WATERMARKS_CHECK_RASTER", IDC_WATERMARK_INTEGRITY_RASTER,
               IDS_HELP_WATERMARK_INTEGRITY_RASTER),
    WhoDecides(u"_ORTHOVAL_WATERMARKS_OVERWRITE", IDC_WATERMARK_INTEGRITY_OVERWRITE,
               IDS_HELP_WATERMARK_INTEGRITY_OVERWRITE),
};

constexpr HelpRow extraHelp[] = {
    {IDC_WATERMARK_INTEGRITY_CELLS_BROWSE, IDS_HELP_WATERMARK_INTEGRITY_CELLS_BROWSE},
    {IDC_WATERMARK_INTEGRITY_LEVELS_BROWSE, IDS_HELP_WATERMARK_INTEGRITY_LEVELS_BROWSE},
};

// Captions that stretch wrap on a narrow page.
constexpr LayoutRow layout[] = {
    {IDC_WATERMARK_INTEGRITY_INSTANT_INVALIDATE, kStretched},
    {IDC_WATERMARK_INTEGRITY_CLIPPED_REFERENCES, kStretched},
};

constexpr unsigned whoDecides[] = {IDS_ALWAYS, IDS_NEVER, IDS_USER_DEFINED};

constexpr EntriesRow entries[] = {
    {IDC_WATERMARK_INTEGRITY_METADATA, whoDecides},
    {IDC_WATERMARK_INTEGRITY_RASTER, whoDecides},
    {IDC_WATERMARK_INTEGRITY_OVERWRITE, whoDecides},
};

// If the list editor refuses the levels, no control keeps the keyboard focus: this
// page has always moved the focus to an edit without a window.
constexpr BrowseRow browses[] = {
    BrowseList(IDC_WATERMARK_INTEGRITY_CELLS_BROWSE, u"_ORTHOVAL_WATERMARK_CELL_EXCLUSIONS", u',',
               IDC_WATERMARK_INTEGRITY_CELLS),
    BrowseList(IDC_WATERMARK_INTEGRITY_LEVELS_BROWSE, u"_ORTHOVAL_WATERMARK_LEVEL_EXCLUSIONS", u',',
               kFocusRemoved),
};
} // namespace

constexpr PageRows kWatermarkIntegrityRows = {
    .info = {.pageId = 27,
             .titleId = IDS_TITLE_WATERMARK_INTEGRITY,
             .templateId = IDD_PAGE_WATERMARK_INTEGRITY,
             .scrollWidth = 290,
             .scrollHeight = 410,
             .constructionRank = 250,
             .listRank = 260},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .entries = entries,
    .browses = browses,
};

} // namespace ov

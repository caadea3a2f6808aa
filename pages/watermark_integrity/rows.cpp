#include "pages/watermark_integrity/rows.h"

#include "pages/core/layout_flags.h"
#include "resources/page_ids.h"

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
    // On or off only: what other programs write as the user's decision is off.
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

// The captions that are stretched wrap where the page is narrow.
constexpr LayoutRow layout[] = {
    {IDC_WATERMARK_INTEGRITY_DOUBLE_CROSS, kFixed},
    {IDC_WATERMARK_INTEGRITY_INSTANT_INVALIDATE, kStretched},
    {IDC_WATERMARK_INTEGRITY_CONFORM, kFixed},
    {IDC_WATERMARK_INTEGRITY_FONT_NUMBERS, kFixed},
    {IDC_WATERMARK_INTEGRITY_FONT_NAMES, kFixed},
    {IDC_WATERMARK_INTEGRITY_CLIPPED_REFERENCES, kStretched},
    {IDC_WATERMARK_INTEGRITY_LEVELS_LABEL, kFixed},
    {IDC_WATERMARK_INTEGRITY_LEVELS, kStretched},
    {IDC_WATERMARK_INTEGRITY_LEVELS_BROWSE, kTopRight},
    {IDC_WATERMARK_INTEGRITY_CELLS_LABEL, kFixed},
    {IDC_WATERMARK_INTEGRITY_CELLS, kStretched},
    {IDC_WATERMARK_INTEGRITY_CELLS_BROWSE, kTopRight},
    {IDC_WATERMARK_INTEGRITY_METADATA_LABEL, kFixed},
    {IDC_WATERMARK_INTEGRITY_METADATA, kFixed},
    {IDC_WATERMARK_INTEGRITY_RASTER_LABEL, kFixed},
    {IDC_WATERMARK_INTEGRITY_RASTER, kFixed},
    {IDC_WATERMARK_INTEGRITY_OVERWRITE_LABEL, kFixed},
    {IDC_WATERMARK_INTEGRITY_OVERWRITE, kFixed},
};

constexpr unsigned whoDecides[] = {IDS_ALWAYS, IDS_NEVER, IDS_USER_DEFINED};

constexpr EntriesRow entries[] = {
    {IDC_WATERMARK_INTEGRITY_METADATA, whoDecides},
    {IDC_WATERMARK_INTEGRITY_RASTER, whoDecides},
    {IDC_WATERMARK_INTEGRITY_OVERWRITE, whoDecides},
};

// A refusal of the levels takes the keyboard focus away altogether: this page
// has always handed it to an edit that stands for no control.
constexpr BrowseRow browses[] = {
    BrowseList(IDC_WATERMARK_INTEGRITY_CELLS_BROWSE, u"_ORTHOVAL_WATERMARK_CELL_EXCLUSIONS", u',',
               IDC_WATERMARK_INTEGRITY_CELLS),
    BrowseList(IDC_WATERMARK_INTEGRITY_LEVELS_BROWSE, u"_ORTHOVAL_WATERMARK_LEVEL_EXCLUSIONS", u',',
               kFocusRemoved),
};

constexpr PageRows rows = {
    .pageId = 27,
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .entries = entries,
    .browses = browses,
};
} // namespace

const PageRows& WatermarkIntegrityRows()
{
    return rows;
}

} // namespace ov

#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/title_block/ids.h"

namespace ov
{
namespace
{
constexpr const char* checkNamedInHelp =
    "The texts of the tags have always named a variable that would switch the check; there is none.";

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_CHECK_TITLEBLOCK", IDC_TITLE_BLOCK_CHECK, IDS_HELP_TITLE_BLOCK_CHECK),
    FlagRow(u"_ORTHOVAL_TITLEBLOCK_DEFAULT_MODEL", IDC_TITLE_BLOCK_DEFAULT_MODEL,
            IDS_HELP_TITLE_BLOCK_DEFAULT_MODEL),
    FlagRow(u"_ORTHOVAL_TITLEBLOCK_ALLOW_ONE", IDC_TITLE_BLOCK_ALLOW_ONE, IDS_HELP_TITLE_BLOCK_ALLOW_ONE),
    FlagRow(u"_ORTHOVAL_TITLEBLOCK_COUNT_EDF", IDC_TITLE_BLOCK_COUNT_FIELDS,
            IDS_HELP_TITLE_BLOCK_COUNT_FIELDS)
        .Saved(SaveRule::Never, "Its box is hidden: what the file says stays."),
    TextRow(u"_ORTHOVAL_TITLEBLOCK_CELLLIBS", SettingKindText, IDC_TITLE_BLOCK_LIBRARY,
            IDS_HELP_TITLE_BLOCK_LIBRARY),
    TextRow(u"_ORTHOVAL_TITLEBLOCK_CELLS", SettingKindText, IDC_TITLE_BLOCK_NAMES, IDS_HELP_TITLE_BLOCK_NAMES)
        .ChangeGoesUnnoticed(
            "Typing here has never marked the dialog modified; the value is saved with the others."),
    TextRow(u"_ORTHOVAL_TITLEBLOCK_TAGSETS", SettingKindText, IDC_TITLE_BLOCK_TAG_SETS,
            IDS_HELP_TITLE_BLOCK_TAG_SETS)
        .HelpNamesAnotherVariable(checkNamedInHelp),
    TextRow(u"_ORTHOVAL_TITLEBLOCK_TAGDEFS", SettingKindText, IDC_TITLE_BLOCK_TAGS, IDS_HELP_TITLE_BLOCK_TAGS)
        .HelpNamesAnotherVariable(checkNamedInHelp),
    HiddenRow(u"_ORTHOVAL_TITLEBLOCK_TAGVALUES", SettingKindText, Encoding::Verbatim,
              IDS_HELP_TITLE_BLOCK_USE_TAG_VALUES)
        .HelpNamesAnotherVariable(checkNamedInHelp),
    TextRow(u"_ORTHOVAL_TITLEBLOCK_TAGSPELLCHECK", SettingKindText, IDC_TITLE_BLOCK_SPELL_CHECK,
            IDS_HELP_TITLE_BLOCK_SPELL_CHECK)
        .HelpNamesAnotherVariable(checkNamedInHelp),
};

constexpr HelpRow extraHelp[] = {
    {IDC_TITLE_BLOCK_LIBRARY_BROWSE, IDS_HELP_TITLE_BLOCK_LIBRARY_BROWSE},
    {IDC_TITLE_BLOCK_NAMES_BROWSE, IDS_HELP_TITLE_BLOCK_NAMES_BROWSE},
    {IDC_TITLE_BLOCK_USE_TAG_SETS, IDS_HELP_TITLE_BLOCK_USE_TAG_SETS},
    {IDC_TITLE_BLOCK_TAG_SETS_BROWSE, IDS_HELP_TITLE_BLOCK_TAG_SETS_BROWSE},
    {IDC_TITLE_BLOCK_USE_TAGS, IDS_HELP_TITLE_BLOCK_USE_TAGS},
    {IDC_TITLE_BLOCK_TAGS_BROWSE, IDS_HELP_TITLE_BLOCK_TAGS_BROWSE},
    {IDC_TITLE_BLOCK_USE_TAG_VALUES, IDS_HELP_TITLE_BLOCK_USE_TAG_VALUES},
    {IDC_TITLE_BLOCK_TAG_VALUES, IDS_HELP_TITLE_BLOCK_TAG_VALUES},
    {IDC_TITLE_BLOCK_USE_SPELL_CHECK, IDS_HELP_TITLE_BLOCK_USE_SPELL_CHECK},
    {IDC_TITLE_BLOCK_SPELL_CHECK_BROWSE, IDS_HELP_TITLE_BLOCK_SPELL_CHECK_BROWSE},
};

constexpr LayoutRow layout[] = {
    {IDC_TITLE_BLOCK_TAGS_GROUP, kStretched},
};

// The check boxes of the tags; each enables the edit of its tag.
constexpr CompanionRow companions[] = {
    {ControlKind::CheckBox, IDC_TITLE_BLOCK_USE_TAG_SETS, u"_ORTHOVAL_TITLEBLOCK_TAGSETS"},
    {ControlKind::CheckBox, IDC_TITLE_BLOCK_USE_TAGS, u"_ORTHOVAL_TITLEBLOCK_TAGDEFS"},
    {ControlKind::CheckBox, IDC_TITLE_BLOCK_USE_TAG_VALUES, u"_ORTHOVAL_TITLEBLOCK_TAGVALUES"},
    {ControlKind::CheckBox, IDC_TITLE_BLOCK_USE_SPELL_CHECK, u"_ORTHOVAL_TITLEBLOCK_TAGSPELLCHECK"},
};

// The tags can be edited even if title blocks are not checked.
constexpr DependencyRow dependencies[] = {
    EnabledWhen(IDC_TITLE_BLOCK_ALLOW_ONE, IsOn(IDC_TITLE_BLOCK_CHECK)),
    EnabledWhen(IDC_TITLE_BLOCK_DEFAULT_MODEL, IsOn(IDC_TITLE_BLOCK_CHECK)),
    EnabledWhen(IDC_TITLE_BLOCK_LIBRARY_LABEL, IsOn(IDC_TITLE_BLOCK_CHECK)),
    EnabledWhen(IDC_TITLE_BLOCK_LIBRARY, IsOn(IDC_TITLE_BLOCK_CHECK)),
    EnabledWhen(IDC_TITLE_BLOCK_LIBRARY_BROWSE, IsOn(IDC_TITLE_BLOCK_CHECK)),
    EnabledWhen(IDC_TITLE_BLOCK_NAMES_LABEL, IsOn(IDC_TITLE_BLOCK_CHECK)),
    EnabledWhen(IDC_TITLE_BLOCK_NAMES, IsOn(IDC_TITLE_BLOCK_CHECK)),
    EnabledWhen(IDC_TITLE_BLOCK_NAMES_BROWSE, IsOn(IDC_TITLE_BLOCK_CHECK)),
    EnabledWhen(IDC_TITLE_BLOCK_USE_TAGS, IsOn(IDC_TITLE_BLOCK_USE_TAG_SETS)),
    EnabledWhen(IDC_TITLE_BLOCK_USE_TAG_VALUES, IsOn(IDC_TITLE_BLOCK_USE_TAG_SETS)),
    EnabledWhen(IDC_TITLE_BLOCK_USE_SPELL_CHECK, IsOn(IDC_TITLE_BLOCK_USE_TAG_SETS)),
    EnabledWhen(IDC_TITLE_BLOCK_TAG_SETS, IsOn(IDC_TITLE_BLOCK_USE_TAG_SETS)),
    EnabledWhen(IDC_TITLE_BLOCK_TAG_SETS_BROWSE, IsOn(IDC_TITLE_BLOCK_USE_TAG_SETS)),
    EnabledWhen(IDC_TITLE_BLOCK_TAGS, IsOn(IDC_TITLE_BLOCK_USE_TAG_SETS), IsOn(IDC_TITLE_BLOCK_USE_TAGS)),
    EnabledWhen(IDC_TITLE_BLOCK_TAGS_BROWSE, IsOn(IDC_TITLE_BLOCK_USE_TAG_SETS),
                IsOn(IDC_TITLE_BLOCK_USE_TAGS)),
    EnabledWhen(IDC_TITLE_BLOCK_TAG_VALUES, IsOn(IDC_TITLE_BLOCK_USE_TAG_SETS),
                IsOn(IDC_TITLE_BLOCK_USE_TAG_VALUES)),
    EnabledWhen(IDC_TITLE_BLOCK_SPELL_CHECK, IsOn(IDC_TITLE_BLOCK_USE_TAG_SETS),
                IsOn(IDC_TITLE_BLOCK_USE_SPELL_CHECK)),
    EnabledWhen(IDC_TITLE_BLOCK_SPELL_CHECK_BROWSE, IsOn(IDC_TITLE_BLOCK_USE_TAG_SETS),
                IsOn(IDC_TITLE_BLOCK_USE_SPELL_CHECK)),
};

constexpr BrowseRow browses[] = {
    BrowseFiles(IDC_TITLE_BLOCK_LIBRARY_BROWSE, u"_ORTHOVAL_TITLEBLOCK_CELLLIBS"),
    BrowseList(IDC_TITLE_BLOCK_NAMES_BROWSE, u"_ORTHOVAL_TITLEBLOCK_CELLS", u';', IDC_TITLE_BLOCK_NAMES),
    BrowseList(IDC_TITLE_BLOCK_TAG_SETS_BROWSE, u"_ORTHOVAL_TITLEBLOCK_TAGSETS", u';',
               IDC_TITLE_BLOCK_TAG_SETS),
    BrowseList(IDC_TITLE_BLOCK_TAGS_BROWSE, u"_ORTHOVAL_TITLEBLOCK_TAGDEFS", u';', IDC_TITLE_BLOCK_TAGS),
    BrowseList(IDC_TITLE_BLOCK_TAG_VALUES, u"_ORTHOVAL_TITLEBLOCK_TAGVALUES", u';', kFocusStays),
    BrowseList(IDC_TITLE_BLOCK_SPELL_CHECK_BROWSE, u"_ORTHOVAL_TITLEBLOCK_TAGSPELLCHECK", u';',
               IDC_TITLE_BLOCK_SPELL_CHECK),
};

// The check boxes are not stored: a non-empty text checks its box. The texts are
// saved whether their box is checked or not, so a text that was switched off but
// not emptied is back the next time.
void CheckBoxesOfTexts(PageValues& values, const SettingStore&, TableSelector)
{
    for (const CompanionRow& box : companions)
        values.CompanionNumberOf(box.controlId) = values.TextOf(box.variable).empty() ? 0 : 1;
}

bool ClearBoxesWithoutTagSets(PageValues& values)
{
    if (values.CompanionNumberOf(IDC_TITLE_BLOCK_USE_TAG_SETS) != 0)
        return false;
    for (const CompanionRow& box : companions)
        values.CompanionNumberOf(box.controlId) = 0;
    return true;
}
} // namespace

constexpr PageRows kTitleBlockRows = {
    .info = {.pageId = 22,
             .titleId = IDS_TITLE_TITLE_BLOCK,
             .templateId = IDD_PAGE_TITLE_BLOCK,
             .scrollWidth = 290,
             .scrollHeight = 480,
             .constructionRank = 200,
             .listRank = 210},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .companions = companions,
    .dependencies = dependencies,
    .browses = browses,
    .afterLoad = CheckBoxesOfTexts,
    .refresh = ClearBoxesWithoutTagSets,
};

} // namespace ov

#include "pages/core/page_rows.h"
#include "pages/signature_cell/ids.h"

namespace ov
{

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_CHECK_SIGNATURECELL", IDC_SIGNATURE_CELL_CHECK, IDS_HELP_SIGNATURE_CELL_CHECK),
    FlagRow(u"_ORTHOVAL_SIGNATURECELL_DEFAULT_MODEL", IDC_SIGNATURE_CELL_DEFAULT_MODEL,
            IDS_HELP_SIGNATURE_CELL_DEFAULT_MODEL),
    FlagRow(u"_ORTHOVAL_SIGNATURECELL_ALLOW_ONE", IDC_SIGNATURE_CELL_ALLOW_ONE,
            IDS_HELP_SIGNATURE_CELL_ALLOW_ONE),
    FlagRow(u"_ORTHOVAL_SIGNATURECELL_COUNT_EDF", IDC_SIGNATURE_CELL_COUNT_FIELDS,
            IDS_HELP_SIGNATURE_CELL_COUNT_FIELDS)
        .Saved(SaveRule::Never, "Its box is hidden: what the file says stays."),
    TextRow(u"_ORTHOVAL_SIGNATURECELL_CELLLIBS", SettingKindText, IDC_SIGNATURE_CELL_LIBRARY,
            IDS_HELP_SIGNATURE_CELL_LIBRARY),
    TextRow(u"_ORTHOVAL_SIGNATURECELL_CELLS", SettingKindText, IDC_SIGNATURE_CELL_NAMES,
            IDS_HELP_SIGNATURE_CELL_NAMES),
};

constexpr HelpRow extraHelp[] = {
    {IDC_SIGNATURE_CELL_LIBRARY_BROWSE, IDS_HELP_SIGNATURE_CELL_LIBRARY_BROWSE},
    {IDC_SIGNATURE_CELL_NAMES_BROWSE, IDS_HELP_SIGNATURE_CELL_NAMES_BROWSE},
};

constexpr DependencyRow dependencies[] = {
    EnabledWhen(IDC_SIGNATURE_CELL_ALLOW_ONE, IsOn(IDC_SIGNATURE_CELL_CHECK)),
    EnabledWhen(IDC_SIGNATURE_CELL_DEFAULT_MODEL, IsOn(IDC_SIGNATURE_CELL_CHECK)),
    EnabledWhen(IDC_SIGNATURE_CELL_LIBRARY_LABEL, IsOn(IDC_SIGNATURE_CELL_CHECK)),
    EnabledWhen(IDC_SIGNATURE_CELL_LIBRARY, IsOn(IDC_SIGNATURE_CELL_CHECK)),
    EnabledWhen(IDC_SIGNATURE_CELL_LIBRARY_BROWSE, IsOn(IDC_SIGNATURE_CELL_CHECK)),
    EnabledWhen(IDC_SIGNATURE_CELL_NAMES_LABEL, IsOn(IDC_SIGNATURE_CELL_CHECK)),
    EnabledWhen(IDC_SIGNATURE_CELL_NAMES, IsOn(IDC_SIGNATURE_CELL_CHECK)),
    EnabledWhen(IDC_SIGNATURE_CELL_NAMES_BROWSE, IsOn(IDC_SIGNATURE_CELL_CHECK)),
};

constexpr BrowseRow browses[] = {
    BrowseFiles(IDC_SIGNATURE_CELL_LIBRARY_BROWSE, u"_ORTHOVAL_SIGNATURECELL_CELLLIBS"),
    BrowseList(IDC_SIGNATURE_CELL_NAMES_BROWSE, u"_ORTHOVAL_SIGNATURECELL_CELLS", u';',
               IDC_SIGNATURE_CELL_NAMES),
};

constexpr PageRows kSignatureCellRows = {
    .info = {.pageId = 21,
             .titleId = IDS_TITLE_SIGNATURE_CELL,
             .templateId = IDD_PAGE_SIGNATURE_CELL,
             .scrollWidth = 290,
             .scrollHeight = 220,
             .constructionRank = 190,
             .listRank = 200},
    .settings = settings,
    .extraHelp = extraHelp,
    .dependencies = dependencies,
    .browses = browses,
    .loadMarksModified = true,
};

} // namespace ov

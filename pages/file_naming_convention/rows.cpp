#include "pages/core/page_rows.h"
#include "pages/file_naming_convention/ids.h"

namespace ov
{

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_CONVENTION_FILENAME_PROMPT", IDC_FILE_NAMING_PROMPT, IDS_HELP_FILE_NAMING_PROMPT),
    TextRow(u"_ORTHOVAL_CONVENTION_FILENAME", SettingKindText, IDC_FILE_NAMING_TEMPLATES,
            IDS_HELP_FILE_NAMING_TEMPLATES),
    TextRow(u"_ORTHOVAL_CONVENTION_FILENAME_DESCR", SettingKindText, IDC_FILE_NAMING_DESCRIPTIONS,
            IDS_HELP_FILE_NAMING_DESCRIPTIONS),
    TextRow(u"_ORTHOVAL_CONVENTION_FILENAME_HELP_FILE", SettingKindText, IDC_FILE_NAMING_DOCUMENT,
            IDS_HELP_FILE_NAMING_DOCUMENT),
    TextRow(u"_ORTHOVAL_CONVENTION_FILENAME_HELP_STRING", SettingKindText, IDC_FILE_NAMING_TEXT,
            IDS_HELP_FILE_NAMING_TEXT),
};

// If the list editor refuses the help text, the focus moves to the descriptions on
// this page, but to the help text itself on the Model Naming page.
constexpr BrowseRow browses[] = {
    BrowseList(IDC_FILE_NAMING_TEMPLATES_BROWSE, u"_ORTHOVAL_CONVENTION_FILENAME", u';',
               IDC_FILE_NAMING_TEMPLATES),
    BrowseList(IDC_FILE_NAMING_DESCRIPTIONS_BROWSE, u"_ORTHOVAL_CONVENTION_FILENAME_DESCR", u';',
               IDC_FILE_NAMING_DESCRIPTIONS),
    BrowseFile(IDC_FILE_NAMING_DOCUMENT_BROWSE, u"_ORTHOVAL_CONVENTION_FILENAME_HELP_FILE"),
    BrowseList(IDC_FILE_NAMING_TEXT_BROWSE, u"_ORTHOVAL_CONVENTION_FILENAME_HELP_STRING", u';',
               IDC_FILE_NAMING_DESCRIPTIONS),
};

constexpr PageRows kFileNamingConventionRows = {
    .info = {.pageId = 15,
             .titleId = IDS_TITLE_FILE_NAMING,
             .templateId = IDD_PAGE_FILE_NAMING,
             .scrollWidth = 290,
             .scrollHeight = 260,
             .constructionRank = 130,
             .listRank = 100},
    .settings = settings,
    .browses = browses,
};

} // namespace ov

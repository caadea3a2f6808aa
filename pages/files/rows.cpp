#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/files/ids.h"

namespace ov
{
namespace
{
constexpr const char16_t* jetDataSource = u"_ORTHOVAL_REPORT_TEMPLATE_JET_DSN_XLS";
constexpr char16_t olderDataSource[] = u"_ORTHOVAL_REPORT_TEMPLATE_DSN_XLS";

constexpr SettingRow settings[] = {
    TextRow(u"_ORTHOVAL_DICT_DIR", SettingKindPath, IDC_FILES_DICTIONARY, IDS_HELP_FILES_DICTIONARY),
    TextRow(u"_ORTHOVAL_DOCS_DIR", SettingKindPath, IDC_FILES_DOCUMENTS, IDS_HELP_FILES_DOCUMENTS),
    TextRow(u"_ORTHOVAL_FILEDSN_DIR", SettingKindPath, IDC_FILES_FEATURE_DSN, IDS_HELP_FILES_FEATURE_DSN),
    TextRow(u"_ORTHOVAL_REPORT_FILEDSN_DIR", SettingKindPath, IDC_FILES_REPORT_DSN,
            IDS_HELP_FILES_REPORT_DSN),
    TextRow(jetDataSource, SettingKindPath, IDC_FILES_JET_DSN, IDS_HELP_FILES_JET_DSN),
    TextRow(u"_ORTHOVAL_REPORT_TEMPLATE_ACE_DSN_XLS", SettingKindPath, IDC_FILES_ACE_DSN,
            IDS_HELP_FILES_ACE_DSN),
    TextRow(u"_ORTHOVAL_README_FILE", SettingKindPath, IDC_FILES_README, IDS_HELP_FILES_README),
    TextRow(u"_ORTHOVAL_SCRIPTS", SettingKindPath, IDC_FILES_SCRIPTS, IDS_HELP_FILES_SCRIPTS),
    TextRow(u"_ORTHOVAL_USERS_FILE", SettingKindPath, IDC_FILES_USERS, IDS_HELP_FILES_USERS),
    TextRow(u"_ORTHOVAL_REPORT_DISCIPLINES_DIR", SettingKindPath, IDC_FILES_DISCIPLINES,
            IDS_HELP_FILES_DISCIPLINES),
    TextRow(u"_ORTHOVAL_HTMLEXPORT_OUTDIR", SettingKindPath, IDC_FILES_HTML_OUT, IDS_HELP_FILES_HTML_OUT),
    TextRow(u"_ORTHOVAL_HTMLEXPORT_EXEFILE", SettingKindPath, IDC_FILES_HTML_EXE, IDS_HELP_FILES_HTML_EXE),
};

constexpr HelpRow extraHelp[] = {
    {IDC_FILES_DICTIONARY_BROWSE, IDS_HELP_FILES_DICTIONARY_BROWSE},
    {IDC_FILES_DOCUMENTS_BROWSE, IDS_HELP_FILES_DOCUMENTS_BROWSE},
    {IDC_FILES_FEATURE_DSN_BROWSE, IDS_HELP_FILES_FEATURE_DSN_BROWSE},
    {IDC_FILES_REPORT_DSN_BROWSE, IDS_HELP_FILES_REPORT_DSN_BROWSE},
    {IDC_FILES_JET_DSN_BROWSE, IDS_HELP_FILES_JET_DSN_BROWSE},
    {IDC_FILES_ACE_DSN_BROWSE, IDS_HELP_FILES_ACE_DSN_BROWSE},
    {IDC_FILES_README_BROWSE, IDS_HELP_FILES_README_BROWSE},
    {IDC_FILES_SCRIPTS_BROWSE, IDS_HELP_FILES_SCRIPTS_BROWSE},
    {IDC_FILES_USERS_BROWSE, IDS_HELP_FILES_USERS_BROWSE},
    {IDC_FILES_DISCIPLINES_BROWSE, IDS_HELP_FILES_DISCIPLINES_BROWSE},
    {IDC_FILES_HTML_OUT_BROWSE, IDS_HELP_FILES_HTML_OUT_BROWSE},
    {IDC_FILES_HTML_EXE_BROWSE, IDS_HELP_FILES_HTML_EXE_BROWSE},
};

// The two Excel fields contain a file, but their buttons open the folder browser.
constexpr BrowseRow browses[] = {
    BrowseFolder(IDC_FILES_DICTIONARY_BROWSE, u"_ORTHOVAL_DICT_DIR"),
    BrowseFolder(IDC_FILES_DOCUMENTS_BROWSE, u"_ORTHOVAL_DOCS_DIR"),
    BrowseFolder(IDC_FILES_FEATURE_DSN_BROWSE, u"_ORTHOVAL_FILEDSN_DIR"),
    BrowseFolder(IDC_FILES_REPORT_DSN_BROWSE, u"_ORTHOVAL_REPORT_FILEDSN_DIR"),
    BrowseFolder(IDC_FILES_JET_DSN_BROWSE, jetDataSource),
    BrowseFolder(IDC_FILES_ACE_DSN_BROWSE, u"_ORTHOVAL_REPORT_TEMPLATE_ACE_DSN_XLS"),
    BrowseFile(IDC_FILES_README_BROWSE, u"_ORTHOVAL_README_FILE"),
    BrowseFolder(IDC_FILES_SCRIPTS_BROWSE, u"_ORTHOVAL_SCRIPTS"),
    BrowseFile(IDC_FILES_USERS_BROWSE, u"_ORTHOVAL_USERS_FILE"),
    BrowseFolder(IDC_FILES_DISCIPLINES_BROWSE, u"_ORTHOVAL_REPORT_DISCIPLINES_DIR"),
    BrowseFolder(IDC_FILES_HTML_OUT_BROWSE, u"_ORTHOVAL_HTMLEXPORT_OUTDIR"),
    BrowseFile(IDC_FILES_HTML_EXE_BROWSE, u"_ORTHOVAL_HTMLEXPORT_EXEFILE"),
};

// Files of earlier versions have one variable for all Excel drivers. Saving writes
// the newer one and leaves the older line unchanged.
void TakeOlderDataSource(PageValues& values, const SettingStore& store, TableSelector table)
{
    Text& path = values.TextOf(jetDataSource);
    if (path.empty())
        path = store.GetSettingValue(olderDataSource, table);
}

constexpr const char16_t* olderVariables[] = {olderDataSource};
} // namespace

constexpr PageRows kFilesRows = {
    .info = {.pageId = 11,
             .titleId = IDS_TITLE_FILES,
             .templateId = IDD_PAGE_FILES,
             .scrollWidth = 290,
             .scrollHeight = 450,
             .constructionRank = 100,
             .listRank = 110},
    .settings = settings,
    .extraHelp = extraHelp,
    .browses = browses,
    .olderVariables = olderVariables,
    .afterLoad = TakeOlderDataSource,
};

} // namespace ov

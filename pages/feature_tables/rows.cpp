#include "pages/core/page_rows.h"
#include "pages/feature_tables/ids.h"

namespace ov
{

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_USEDICTVERSIONING", IDC_FEATURE_TABLES_DICT_VERSIONING,
            IDS_HELP_FEATURE_TABLES_DICT_VERSIONING),
    FlagRow(u"_ORTHOVAL_SUPPORT_TRICAD", IDC_FEATURE_TABLES_TRICAD, IDS_HELP_FEATURE_TABLES_TRICAD),
    FlagRow(u"_ORTHOVAL_CHECK_SHAPESASLINEAR", IDC_FEATURE_TABLES_SHAPES_AS_LINEAR,
            IDS_HELP_FEATURE_TABLES_SHAPES_AS_LINEAR),
    FlagRow(u"_ORTHOVAL_FEATURES_SHOWHIDDEN", IDC_FEATURE_TABLES_SHOW_HIDDEN,
            IDS_HELP_FEATURE_TABLES_SHOW_HIDDEN),
    FlagRow(u"_ORTHOVAL_FEATURES_SHOWSUGGESTED", IDC_FEATURE_TABLES_SHOW_SUGGESTED,
            IDS_HELP_FEATURE_TABLES_SHOW_SUGGESTED),
    FlagRow(u"_ORTHOVAL_CHECK_ATTACHED_TAGS", IDC_FEATURE_TABLES_ATTACHED_TAGS,
            IDS_HELP_FEATURE_TABLES_ATTACHED_TAGS),
    FlagRow(u"_ORTHOVAL_TABLE_ORDERBY_DESCRIPTION", IDC_FEATURE_TABLES_ORDER_BY_DESCRIPTION,
            IDS_HELP_FEATURE_TABLES_ORDER_BY_DESCRIPTION),
    TextRow(u"_ORTHOVAL_ALLOWED_TABLE_NAMES", SettingKindText, IDC_FEATURE_TABLES_ALLOWED,
            IDS_HELP_FEATURE_TABLES_ALLOWED),
    TextRow(u"_ORTHOVAL_DISALLOWED_TABLE_NAMES", SettingKindText, IDC_FEATURE_TABLES_DISALLOWED,
            IDS_HELP_FEATURE_TABLES_DISALLOWED),
    TextRow(u"_ORTHOVAL_TABLE_BACKUP_MAX", SettingKindText, IDC_FEATURE_TABLES_BACKUP_MAX,
            IDS_HELP_FEATURE_TABLES_BACKUP_MAX),
    TextRow(u"_ORTHOVAL_SQL_LONG_STRING", SettingKindText, IDC_FEATURE_TABLES_SQL_LONG_STRING,
            IDS_HELP_FEATURE_TABLES_SQL_LONG_STRING),
};

constexpr HelpRow extraHelp[] = {
    {IDC_FEATURE_TABLES_ALLOWED_BROWSE, IDS_HELP_FEATURE_TABLES_ALLOWED_BROWSE},
    {IDC_FEATURE_TABLES_BACKUP_MAX_SPIN, IDS_HELP_FEATURE_TABLES_BACKUP_MAX},
};

constexpr LayoutRow layout[] = {
    {IDC_FEATURE_TABLES_TRICAD, kStretched},
};

// Table names are separated by commas, unlike the lists of other pages.
constexpr BrowseRow browses[] = {
    BrowseList(IDC_FEATURE_TABLES_ALLOWED_BROWSE, u"_ORTHOVAL_ALLOWED_TABLE_NAMES", u',', kFocusStays),
    BrowseList(IDC_FEATURE_TABLES_DISALLOWED_BROWSE, u"_ORTHOVAL_DISALLOWED_TABLE_NAMES", u',', kFocusStays),
};

constexpr SpinRow spins[] = {
    {IDC_FEATURE_TABLES_BACKUP_MAX_SPIN, IDC_FEATURE_TABLES_BACKUP_MAX, 0, 10000, kFasterAndFaster},
};

constexpr PageRows kFeatureTablesRows = {
    .info = {.pageId = 10,
             .titleId = IDS_TITLE_FEATURE_TABLES,
             .templateId = IDD_PAGE_FEATURE_TABLES,
             .scrollWidth = 290,
             .scrollHeight = 420,
             .constructionRank = 90,
             .listRank = 90},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .browses = browses,
    .spins = spins,
};

} // namespace ov

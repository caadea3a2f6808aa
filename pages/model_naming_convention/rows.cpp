#include "pages/core/page_rows.h"
#include "pages/model_naming_convention/ids.h"

namespace ov
{

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_CONVENTION_MODELNAME_PROMPT", IDC_MODEL_NAMING_PROMPT, IDS_HELP_MODEL_NAMING_PROMPT),
    TextRow(u"_ORTHOVAL_CONVENTION_MODELNAME", SettingKindText, IDC_MODEL_NAMING_TEMPLATES,
            IDS_HELP_MODEL_NAMING_TEMPLATES),
    TextRow(u"_ORTHOVAL_CONVENTION_MODELNAME_DESCR", SettingKindText, IDC_MODEL_NAMING_DESCRIPTIONS,
            IDS_HELP_MODEL_NAMING_DESCRIPTIONS),
    TextRow(u"_ORTHOVAL_CONVENTION_MODELNAME_HELP_FILE", SettingKindText, IDC_MODEL_NAMING_DOCUMENT,
            IDS_HELP_MODEL_NAMING_DOCUMENT),
    TextRow(u"_ORTHOVAL_CONVENTION_MODELNAME_HELP_STRING", SettingKindText, IDC_MODEL_NAMING_TEXT,
            IDS_HELP_MODEL_NAMING_TEXT),
};

constexpr BrowseRow browses[] = {
    BrowseList(IDC_MODEL_NAMING_TEMPLATES_BROWSE, u"_ORTHOVAL_CONVENTION_MODELNAME", u';',
               IDC_MODEL_NAMING_TEMPLATES),
    BrowseList(IDC_MODEL_NAMING_DESCRIPTIONS_BROWSE, u"_ORTHOVAL_CONVENTION_MODELNAME_DESCR", u';',
               IDC_MODEL_NAMING_DESCRIPTIONS),
    BrowseFile(IDC_MODEL_NAMING_DOCUMENT_BROWSE, u"_ORTHOVAL_CONVENTION_MODELNAME_HELP_FILE"),
    BrowseList(IDC_MODEL_NAMING_TEXT_BROWSE, u"_ORTHOVAL_CONVENTION_MODELNAME_HELP_STRING", u';',
               IDC_MODEL_NAMING_TEXT),
};

constexpr PageRows kModelNamingConventionRows = {
    .info = {.pageId = 17,
             .titleId = IDS_TITLE_MODEL_NAMING,
             .templateId = IDD_PAGE_MODEL_NAMING,
             .scrollWidth = 290,
             .scrollHeight = 270,
             .constructionRank = 150,
             .listRank = 140},
    .settings = settings,
    .browses = browses,
};

} // namespace ov

#include "pages/model_naming/rows.h"

#include "pages/core/layout_flags.h"
#include "resources/page_ids.h"

namespace ov
{
namespace
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

constexpr LayoutRow layout[] = {
    {IDC_MODEL_NAMING_PROMPT, kFixed},
    {IDC_MODEL_NAMING_TEMPLATES_LABEL, kFixed},
    {IDC_MODEL_NAMING_TEMPLATES, kStretched},
    {IDC_MODEL_NAMING_TEMPLATES_BROWSE, kTopRight},
    {IDC_MODEL_NAMING_DESCRIPTIONS_LABEL, kFixed},
    {IDC_MODEL_NAMING_DESCRIPTIONS, kStretched},
    {IDC_MODEL_NAMING_DESCRIPTIONS_BROWSE, kTopRight},
    {IDC_MODEL_NAMING_DOCUMENT_LABEL, kFixed},
    {IDC_MODEL_NAMING_DOCUMENT, kStretched},
    {IDC_MODEL_NAMING_DOCUMENT_BROWSE, kTopRight},
    {IDC_MODEL_NAMING_TEXT_LABEL, kFixed},
    {IDC_MODEL_NAMING_TEXT, kStretched},
    {IDC_MODEL_NAMING_TEXT_BROWSE, kTopRight},
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

constexpr PageRows rows = {
    .pageId = 17,
    .settings = settings,
    .extraHelp = {},
    .layout = layout,
    .browses = browses,
};
} // namespace

const PageRows& ModelNamingRows()
{
    return rows;
}

} // namespace ov

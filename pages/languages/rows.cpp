#include "pages/core/page_rows.h"
#include "pages/languages/ids.h"

namespace ov
{

constexpr SettingRow settings[] = {
    TextRow(u"_ORTHOVAL_MENU_NAME", SettingKindText, IDC_LANGUAGES_MENU_NAME, IDS_HELP_LANGUAGES_MENU_NAME),
    TextRow(u"_ORTHOVAL_BILINGUAL_TEXT_LANGUAGE_1", SettingKindText, IDC_LANGUAGES_LANGUAGE_1,
            IDS_HELP_LANGUAGES_LANGUAGE_1),
    TextRow(u"_ORTHOVAL_BILINGUAL_TEXT_LANGUAGE_2", SettingKindText, IDC_LANGUAGES_LANGUAGE_2,
            IDS_HELP_LANGUAGES_LANGUAGE_2),
    TextRow(u"_ORTHOVAL_BILINGUAL_TEXT_KEYIN_1", SettingKindText, IDC_LANGUAGES_KEYIN_1,
            IDS_HELP_LANGUAGES_KEYIN_1),
    TextRow(u"_ORTHOVAL_BILINGUAL_TEXT_KEYIN_2", SettingKindText, IDC_LANGUAGES_KEYIN_2,
            IDS_HELP_LANGUAGES_KEYIN_2),
    TextRow(u"_ORTHOVAL_BILINGUAL_TEXT_INITIAL_KEYIN", SettingKindText, IDC_LANGUAGES_INITIAL_KEYIN,
            IDS_HELP_LANGUAGES_INITIAL_KEYIN),
    TextRow(u"_ORTHOVAL_BILINGUAL_TEXT_TEMPLATE_FILE", SettingKindPath, IDC_LANGUAGES_TEMPLATE_FILE,
            IDS_HELP_LANGUAGES_TEMPLATE_FILE),
};

constexpr HelpRow extraHelp[] = {
    {IDC_LANGUAGES_TEMPLATE_FILE_BROWSE, IDS_HELP_LANGUAGES_TEMPLATE_FILE_BROWSE},
};

constexpr LayoutRow layout[] = {
    {IDC_LANGUAGES_BILINGUAL_FRAME, kStretched},
};

constexpr BrowseRow browses[] = {
    BrowseList(IDC_LANGUAGES_KEYIN_1_BROWSE, u"_ORTHOVAL_BILINGUAL_TEXT_KEYIN_1", u';',
               IDC_LANGUAGES_KEYIN_1),
    BrowseList(IDC_LANGUAGES_KEYIN_2_BROWSE, u"_ORTHOVAL_BILINGUAL_TEXT_KEYIN_2", u';',
               IDC_LANGUAGES_KEYIN_2),
    BrowseList(IDC_LANGUAGES_INITIAL_KEYIN_BROWSE, u"_ORTHOVAL_BILINGUAL_TEXT_INITIAL_KEYIN", u';',
               IDC_LANGUAGES_INITIAL_KEYIN),
    BrowseFile(IDC_LANGUAGES_TEMPLATE_FILE_BROWSE, u"_ORTHOVAL_BILINGUAL_TEXT_TEMPLATE_FILE"),
};

constexpr PageRows kLanguagesRows = {
    .info = {.pageId = 12,
             .titleId = IDS_TITLE_LANGUAGES,
             .templateId = IDD_PAGE_LANGUAGES,
             .scrollWidth = 290,
             .scrollHeight = 290,
             .constructionRank = 110,
             .listRank = 120},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .browses = browses,
};

} // namespace ov

#include "pages/core/encoding.h"
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/reporting/ids.h"

#include <iterator>

namespace ov
{
namespace
{
constexpr char16_t nameVariable[] = u"_ORTHOVAL_REPORT_NAMING";
constexpr char16_t folderVariable[] = u"_ORTHOVAL_REPORT_OUTPUT_DEFAULT_NAME";
constexpr char16_t modelsVariable[] = u"_ORTHOVAL_REPORT_AUTOGETMODELS";

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_REPORT_PROMPTMAXLOG", IDC_REPORTING_PROMPT_MAX_ERRORS,
            IDS_HELP_REPORTING_PROMPT_MAX_ERRORS),
    FlagRow(u"_ORTHOVAL_REPORT_AUTOGETREFS", IDC_REPORTING_ADD_REFERENCES, IDS_HELP_REPORTING_ADD_REFERENCES),
    TextRow(u"_ORTHOVAL_REPORT_MAXLOGGABLE", SettingKindInteger, IDC_REPORTING_MAX_ERRORS,
            IDS_HELP_REPORTING_MAX_ERRORS),
    TextRow(u"_ORTHOVAL_REPORT_IGNORED_REFFILES", SettingKindText, IDC_REPORTING_IGNORED,
            IDS_HELP_REPORTING_IGNORED),
    TextRow(u"_ORTHOVAL_REPORT_REFS_NESTLEVEL", SettingKindInteger, IDC_REPORTING_NEST_LEVEL,
            IDS_HELP_REPORTING_NEST_LEVEL),
    FlagRow(u"_ORTHOVAL_REPORT_REFS_LEGACY_NESTING", IDC_REPORTING_LEGACY_NESTING,
            IDS_HELP_REPORTING_LEGACY_NESTING),
    TextRow(nameVariable, SettingKindText, IDC_REPORTING_NAME, IDS_HELP_REPORTING_NAME),
    TextRow(folderVariable, SettingKindText, IDC_REPORTING_FOLDER, IDS_HELP_REPORTING_FOLDER),
    HiddenRow(modelsVariable, SettingKindInteger, Encoding::Verbatim, IDS_HELP_REPORTING_MODELS),
};

// The buttons of a group show the help text of the setting that they choose.
constexpr HelpRow extraHelp[] = {
    {IDC_REPORTING_IGNORED_BROWSE, IDS_HELP_REPORTING_IGNORED_BROWSE},
    {IDC_REPORTING_MODELS_LABEL, IDS_HELP_REPORTING_MODELS},
    {IDC_REPORTING_MODELS, IDS_HELP_REPORTING_MODELS},
    {IDC_REPORTING_MODELS_USER_DEFINABLE, IDS_HELP_REPORTING_MODELS},
    {IDC_REPORTING_NAME_FRAME, IDS_HELP_REPORTING_NAME},
    {IDC_REPORTING_NAME_NONE, IDS_HELP_REPORTING_NAME},
    {IDC_REPORTING_NAME_USER_FILE, IDS_HELP_REPORTING_NAME},
    {IDC_REPORTING_NAME_INITIALS_FILE, IDS_HELP_REPORTING_NAME},
    {IDC_REPORTING_NAME_INITIALS_MODEL_FILE, IDS_HELP_REPORTING_NAME},
    {IDC_REPORTING_NAME_USER_DEFINED, IDS_HELP_REPORTING_NAME},
    {IDC_REPORTING_FOLDER_FRAME, IDS_HELP_REPORTING_FOLDER},
    {IDC_REPORTING_FOLDER_NONE, IDS_HELP_REPORTING_FOLDER},
    {IDC_REPORTING_FOLDER_STANDARD, IDS_HELP_REPORTING_FOLDER},
    {IDC_REPORTING_FOLDER_DISCIPLINE, IDS_HELP_REPORTING_FOLDER},
    {IDC_REPORTING_FOLDER_USER_DEFINED, IDS_HELP_REPORTING_FOLDER},
};

// The caption of the one long button wraps on a narrow page.
constexpr LayoutRow layout[] = {
    {IDC_REPORTING_MODELS, kStretched},
    {IDC_REPORTING_NAME_FRAME, kStretched},
    {IDC_REPORTING_NAME_INITIALS_MODEL_FILE, kStretched},
    {IDC_REPORTING_FOLDER_FRAME, kStretched},
};

constexpr int promptTheUser = 5;

constexpr CompanionRow companions[] = {
    {ControlKind::DropDownList, IDC_REPORTING_MODELS, modelsVariable, promptTheUser},
    {ControlKind::CheckBox, IDC_REPORTING_MODELS_USER_DEFINABLE, modelsVariable, 1},
    {ControlKind::RadioGroup, IDC_REPORTING_NAME_NONE, nameVariable},
    {ControlKind::RadioGroup, IDC_REPORTING_FOLDER_NONE, folderVariable},
};

constexpr unsigned models[] = {IDS_REPORTING_ALL_MODELS,         IDS_REPORTING_ACTIVE_MODEL,
                               IDS_REPORTING_DESIGN_MODELS,      IDS_REPORTING_SHEET_MODELS,
                               IDS_REPORTING_MODELS_WITH_BORDER, IDS_REPORTING_PROMPT_USER,
                               IDS_REPORTING_DEFAULT_MODEL};

constexpr EntriesRow entries[] = {
    {IDC_REPORTING_MODELS, models},
};

// The number of a model, negative if the user may not change it.
constexpr RangeRow ranges[] = {
    {modelsVariable, -static_cast<double>(std::size(models)), std::size(models)},
};

constexpr const char16_t* namePresets[] = {
    u"$$USERFULLNAME$$-$$CURRENTFILE$$",
    u"$$USERINITIALS$$-$$CURRENTFILE$$",
    u"$$USERINITIALS$$-$$CURRENTMODEL$$-$$CURRENTFILE$$",
};
constexpr const char16_t* folderPresets[] = {
    u"$(ORTHOVAL_CURRENT_STANDARD)",
    u"$(ORTHOVAL_CURRENT_DISCIPLINE)",
};

// The last button of a group, after "None" and the presets, lets the user edit the
// text.
constexpr DependencyRow dependencies[] = {
    EnabledWhen(IDC_REPORTING_NAME, {IDC_REPORTING_NAME_NONE, 1 + std::size(namePresets)}),
    EnabledWhen(IDC_REPORTING_FOLDER, {IDC_REPORTING_FOLDER_NONE, 1 + std::size(folderPresets)}),
};

// If the list editor is refused, no control keeps the keyboard focus: this page has
// always moved the focus to an edit without a window.
constexpr BrowseRow browses[] = {
    BrowseFiles(IDC_REPORTING_IGNORED_BROWSE, u"_ORTHOVAL_REPORT_IGNORED_REFFILES", kFocusRemoved),
};

constexpr SpinRow spins[] = {
    {IDC_REPORTING_MAX_ERRORS_SPIN, IDC_REPORTING_MAX_ERRORS, 1, 10000},
    {IDC_REPORTING_NEST_LEVEL_SPIN, IDC_REPORTING_NEST_LEVEL, -1, 99},
};

void WorkOutChoices(PageValues& values, const SettingStore&, TableSelector)
{
    const LockableChoice choice = ReadLockableChoice(values.TextOf(modelsVariable), promptTheUser);
    const bool isInList = choice.index < static_cast<int>(std::size(models));
    values.CompanionNumberOf(IDC_REPORTING_MODELS) = isInList ? choice.index : -1;
    values.CompanionNumberOf(IDC_REPORTING_MODELS_USER_DEFINABLE) = choice.userDefinable ? 1 : 0;
    values.CompanionNumberOf(IDC_REPORTING_NAME_NONE) =
        PresetChoice(values.TextOf(nameVariable), namePresets);
    values.CompanionNumberOf(IDC_REPORTING_FOLDER_NONE) =
        PresetChoice(values.TextOf(folderVariable), folderPresets);
}

bool PutPresets(PageValues& values)
{
    ApplyPreset(values.CompanionNumberOf(IDC_REPORTING_NAME_NONE), namePresets, values.TextOf(nameVariable));
    ApplyPreset(values.CompanionNumberOf(IDC_REPORTING_FOLDER_NONE), folderPresets,
                values.TextOf(folderVariable));
    return true;
}

void PutModels(PageValues& values)
{
    values.TextOf(modelsVariable) =
        WriteLockableChoice({values.CompanionNumberOf(IDC_REPORTING_MODELS),
                             values.CompanionNumberOf(IDC_REPORTING_MODELS_USER_DEFINABLE) != 0});
}
} // namespace

constexpr PageRows kReportingRows = {
    .info = {.pageId = 19,
             .titleId = IDS_TITLE_REPORTING,
             .templateId = IDD_PAGE_REPORTING,
             .scrollWidth = 290,
             .scrollHeight = 630,
             .constructionRank = 170,
             .listRank = 170},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .companions = companions,
    .entries = entries,
    .dependencies = dependencies,
    .browses = browses,
    .spins = spins,
    .ranges = ranges,
    .afterLoad = WorkOutChoices,
    .refresh = PutPresets,
    .beforeSave = PutModels,
};

} // namespace ov

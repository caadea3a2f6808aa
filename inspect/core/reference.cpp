#include "inspect/core/reference.h"

#include "controls/core/tooltip_markup.h"
#include "pages/core/page_catalogue.h"
#include "pages/core/page_template.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"

#include <algorithm>

namespace ov
{
namespace
{
Text CaptionOfSetting(const SettingPlace& place)
{
    const PageTemplate& layout = *FindTemplate(place.page->info.templateId);
    const TextView variable = place.row->variable;
    for (const BarRow& bar : place.page->bars) {
        if (bar.variable == variable)
            return CaptionOf(layout, bar.controlId);
    }
    if (place.row->control == ControlKind::RadioGroup)
        return CaptionOfGroup(layout, place.row->controlId);
    if (place.row->controlId != 0)
        return CaptionOf(layout, place.row->controlId);
    for (const CompanionRow& row : place.page->companions) {
        if (row.variable == variable)
            return CaptionOf(layout, row.controlId);
    }
    return {};
}

std::string_view KindOf(const SettingPlace& place, const SettingDescription& setting)
{
    if (place.row->encoding == Encoding::Flag || place.row->encoding == Encoding::FlagUnlessZero)
        return "flag";
    if (!setting.choices.empty() && place.row->kind == SettingKindInteger)
        return "choice";
    if (setting.range || place.row->kind == SettingKindInteger || place.row->kind == SettingKindReal)
        return "number";
    if (setting.isList)
        return "list";
    // The kind of the row says how the value is written; a path is what a file or folder is chosen for.
    return BrowseOf(place) != nullptr ? "path" : "text";
}

std::optional<Text> InitialValue(const SettingPlace& place)
{
    const TextView variable = place.row->variable;
    const bool hasDay = std::ranges::any_of(place.page->companions, [&](const CompanionRow& row) {
        return row.variable == variable && row.control == ControlKind::DatePicker;
    });
    if (hasDay)
        return std::nullopt;
    if (place.row->control != ControlKind::None || place.row->saveRule == SaveRule::Never)
        return place.row->HoldsText() ? Text(place.row->initialText)
                                      : NumberToStore(place.row->encoding, place.row->initialNumber);
    SettingStore store;
    PageValues(*place.page).Save(store, false);
    return store.GetSettingValue(variable, kCurrentTable);
}

std::vector<Text> ConditionsOf(const SettingPlace& place)
{
    std::vector<Text> conditions;
    const TextView variable = place.row->variable;
    for (const DependencyRow& dependency : place.page->dependencies) {
        const char16_t* dependent = VariableOfControl(*place.page, dependency.controlId);
        if (dependent == nullptr || dependent != variable)
            continue;
        for (const Condition& condition : dependency.conditions) {
            const char16_t* other =
                condition.controlId != 0 ? VariableOfControl(*place.page, condition.controlId) : nullptr;
            if (other == nullptr || other == variable)
                continue;
            Text text = DescribeCondition(*place.page, condition);
            if (std::ranges::find(conditions, text) == conditions.end())
                conditions.push_back(std::move(text));
        }
    }
    return conditions;
}

Text Section(TextView help, TooltipSection section)
{
    std::size_t position = 0;
    return Text(ExtractSection(help, section, position));
}
} // namespace

SettingDescription Describe(const SettingPlace& place)
{
    const TextView help = FindString(place.row->commentHelpId);
    SettingDescription setting;
    setting.variable = place.row->variable;
    setting.page = FindString(place.page->info.titleId);
    setting.caption = CaptionOfSetting(place);
    setting.heading = Section(help, TooltipSection::Heading);
    setting.help = Description(help);
    if (const auto format = ListFormatOf(place)) {
        setting.isList = true;
        setting.list = *format;
    }
    const std::span<const Choice> choices = ChoicesOf(place);
    setting.choices.assign(choices.begin(), choices.end());
    setting.range = RangeOf(place);
    setting.kind = KindOf(place, setting);
    setting.initial = InitialValue(place);
    setting.enabledBy = ConditionsOf(place);
    setting.isWritten = place.row->saveRule != SaveRule::Never;
    return setting;
}

std::vector<SettingDescription> DescribeAll()
{
    std::vector<SettingDescription> settings;
    for (const PageInfo* page : PaneRows()) {
        for (const SettingPlace& place : AllSettings()) {
            if (place.page->info.pageId == page->pageId)
                settings.push_back(Describe(place));
        }
    }
    return settings;
}

std::vector<OlderVariable> OlderVariables()
{
    std::vector<OlderVariable> older;
    for (const PageInfo* info : PaneRows()) {
        for (const PageRows* page : AllPageRows()) {
            if (page->info.pageId != info->pageId)
                continue;
            for (const char16_t* variable : page->olderVariables)
                older.push_back({variable, Text(FindString(info->titleId))});
        }
    }
    return older;
}

} // namespace ov

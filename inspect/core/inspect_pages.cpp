// The rules about the pages that show the file.

#include "inspect/core/inspection.h"

namespace ov
{
namespace
{
/// The controls that edit a setting.
std::vector<int> ControlsOf(const SettingPlace& place)
{
    if (place.row->controlId != 0)
        return {place.row->controlId};
    std::vector<int> controls;
    if (const BrowseRow* browse = BrowseOf(place))
        controls.push_back(browse->buttonId);
    for (const CompanionRow& row : place.page->companions) {
        if (TextView(row.variable) == place.row->variable)
            controls.push_back(row.controlId);
    }
    return controls;
}

/// The first condition of the dependency that the value of another setting does not meet; null if
/// there is none. Conditions on the setting itself do not count.
const Condition* UnmetByOthers(const ShownPage& page, const DependencyRow& dependency, TextView variable)
{
    for (const Condition& condition : dependency.conditions) {
        if (condition.controlId == 0)
            continue;
        const char16_t* other = VariableOfControl(page.Rows(), condition.controlId);
        if (other == nullptr || TextView(other) == variable)
            continue;
        if (!page.Holds({dependency.controlId, dependency.effect, {condition}}))
            return &condition;
    }
    return nullptr;
}

void InspectEffect(Inspection& inspection, const ShownPage& page, const SettingPlace& place,
                   const InspectedFile::Variable& variable)
{
    for (const int control : ControlsOf(place)) {
        for (const DependencyRow& dependency : page.Rows().dependencies) {
            if (dependency.controlId != control)
                continue;
            const Condition* unmet = UnmetByOthers(page, dependency, place.row->variable);
            if (unmet == nullptr)
                continue;
            inspection.AddAt(
                RuleId::NoEffect, variable,
                {{"variable", Utf8FromText(place.row->variable)},
                 {"reason", "it needs " + Utf8FromText(DescribeCondition(page.Rows(), *unmet))}});
            return;
        }
    }
}
} // namespace

void InspectPages(Inspection& inspection)
{
    const SettingStore& store = inspection.Dialog().Store();
    for (const ShownPage& page : inspection.Dialog().Pages()) {
        if (page.Rows().dependencies.empty())
            continue;
        for (const SettingRow& row : page.Rows().settings) {
            const auto record = store.FindSetting(TextView(row.variable), kCurrentTable);
            if (!record || record->value.empty() || record->value == CompactView::OfBytes("0"))
                continue;
            if (const InspectedFile::Variable* variable = inspection.File().Find(row.variable))
                InspectEffect(inspection, page, *FindSetting(row.variable), *variable);
        }
    }
}

} // namespace ov

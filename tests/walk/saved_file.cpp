#include "tests/walk/saved_file.h"

#include "config/core/config_reader.h"
#include "inspect/core/save_preview.h"
#include "tests/pages/expected_pages.h"
#include "tests/support/test_files.h"
#include "tests/walk/chance.h"
#include "tests/walk/dialog_checks.h"
#include "tests/walk/shown_values.h"

#include <set>
#include <string_view>

namespace walk
{

namespace
{

constexpr ov::Charset charset = ov::Charset::OfProcess;

ov::SettingStore Read(const std::string& bytes)
{
    ov::SettingStore store;
    ov::ReadConfig(store, ov::kCurrentTable, bytes, charset);
    return store;
}

/// Every variable of the pages that Save writes.
std::set<ov::Text> PageVariables()
{
    std::set<ov::Text> names;
    for (const expected::Page& page : expected::Pages()) {
        for (const expected::Setting& setting : page.settings) {
            const std::string_view name = setting.variable;
            if (setting.meaning != expected::Meaning::LeftAlone)
                names.emplace(name.begin(), name.end());
        }
    }
    return names;
}

std::wstring Wide(const ov::Text& text)
{
    return {text.begin(), text.end()};
}

/// What has become of a variable that had this value; empty for nothing.
std::string FaultOfVariable(const ov::Text& name, const ov::Text& before, const ov::SettingStore& after)
{
    if (!after.HasSetting(name, ov::kCurrentTable))
        return IsEmptyList(Wide(before)) ? "" : Printable(Wide(name)) + " is missing\n";
    const ov::Text value = after.GetSettingValue(name, ov::kCurrentTable);
    if (value == before || !ComesBack(Wide(before)))
        return "";
    return Printable(Wide(name)) + " was " + Printable(Wide(before)) + " and is " + Printable(Wide(value)) +
           "\n";
}

/// What Save makes of the file when the dialog is opened on it, and nothing is changed. The header is
/// that of the file that was saved then.
std::string Preview(const std::string& bytes, const std::optional<std::string>& defaults,
                    const std::string& savedLater)
{
    const ov::InspectedFile file(bytes, charset);
    const auto header = ov::InspectedFile(savedLater, charset).SavedHeader();
    ov::InspectionSettings settings;
    settings.today = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
    if (header)
        settings.header = {{}, header->date, header->user, header->computer};
    if (defaults)
        settings.defaults = ov::FileBytesView{*defaults, charset};
    return ov::PreviewSave(file, settings).bytes;
}
} // namespace

std::string FaultOfSave(const std::optional<std::string>& read, const std::optional<std::string>& defaults,
                        const std::string& saved, bool mayLackLists)
{
    const ov::SettingStore after = Read(saved);
    const ov::SettingStore before = Read(read.value_or(""));
    const ov::SettingStore byDefault = Read(defaults.value_or(""));
    const auto isEmptyList = [](const ov::SettingStore& store, const ov::Text& name) {
        return IsEmptyList(Wide(store.GetSettingValue(name, ov::kCurrentTable)));
    };
    std::string faults;
    const std::set<ov::Text> pageVariables = PageVariables();
    for (const ov::Text& name : pageVariables) {
        if (!mayLackLists && !after.HasSetting(name, ov::kCurrentTable) && !isEmptyList(before, name) &&
            !isEmptyList(byDefault, name))
            faults += Printable(Wide(name)) + " is missing\n";
    }
    before.VisitInOrder(ov::kCurrentTable, [&](const ov::SettingRecord& record) {
        const ov::Text name(record.name);
        if (!pageVariables.contains(name))
            faults += FaultOfVariable(name, ov::Text(record.value), after);
        return true;
    });
    return faults;
}

std::string FaultOfSecondSave(const std::string& once, const std::optional<std::string>& defaults,
                              const std::string& twice)
{
    const std::string difference = uidriver::Difference(Preview(once, defaults, twice), twice);
    if (!difference.empty())
        return "the file is not the one that ovprefs shows beforehand:\n" + difference;
    const ov::SettingStore before = Read(once);
    const ov::SettingStore after = Read(twice);
    std::string faults;
    before.VisitInOrder(ov::kCurrentTable, [&](const ov::SettingRecord& record) {
        const ov::Text name(record.name);
        // 0, of a list without a selection, is read as one of its entries.
        const bool isModels = name == u"_ORTHOVAL_REPORT_AUTOGETMODELS" && record.value == ov::Text(u"0");
        // Without a fixed period, the older variable defines one again.
        const bool isPeriod = name == u"_ORTHOVAL_SCANPERIOD_SETTINGS" &&
                              before.HasSetting(u"_ORTHOVAL_SCANPERIOD_VALUE", ov::kCurrentTable);
        // In place of an empty path, the one of the older variable is read.
        const bool isOlder = name == u"_ORTHOVAL_REPORT_TEMPLATE_JET_DSN_XLS" && record.value.empty() &&
                             before.HasSetting(u"_ORTHOVAL_REPORT_TEMPLATE_DSN_XLS", ov::kCurrentTable);
        if (!isModels && !isPeriod && !isOlder)
            faults += FaultOfVariable(name, ov::Text(record.value), after);
        return true;
    });
    // The pages add theirs, also such as the first save left out, being lists without an entry.
    const std::set<ov::Text> pageVariables = PageVariables();
    after.VisitInOrder(ov::kCurrentTable, [&](const ov::SettingRecord& record) {
        if (!pageVariables.contains(ov::Text(record.name)) &&
            !before.FindSetting(record.name, ov::kCurrentTable))
            faults += Printable(Wide(ov::Text(record.name))) + " has come\n";
        return true;
    });
    return faults;
}

} // namespace walk

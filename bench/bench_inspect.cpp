// Measures the inspection of configuration files beside reading them: many files of an office in one
// process, and one large file.

#include "bench/config_input.h"
#include "bench/measure.h"
#include "config/core/config_reader.h"
#include "inspect/core/inspection.h"

#include <cstdio>
#include <ctime>
#include <exception>
#include <optional>

namespace
{

using namespace ov::bench;

constexpr int kFiles = 1000;
constexpr int kVariables = 200;
constexpr int kManyVariables = 100000;
constexpr int kTurns = 5;

// The settings of the pages, each under a comment, and variables of the office for the rest.
std::string MakeOfficeFile(int variables)
{
    std::string bytes = MakeConfigFile(variables, true, "HR_BENCH_");
    std::size_t line = 0;
    for (const ov::SettingPlace& place : ov::AllSettings()) {
        line = bytes.find("HR_BENCH_", line);
        if (line == std::string::npos)
            break;
        const std::string name = ov::Utf8FromText(place.row->variable);
        bytes.replace(line, bytes.find(' ', line) - line, name);
        line += name.size();
    }
    return bytes;
}

ov::InspectionSettings Settings()
{
    using namespace std::chrono;
    ov::InspectionSettings settings;
    settings.today = year_month_day(year(2026), month(11), day(20));
    settings.header.machine = {u"Friday 20 November 2026, 19:12:00", u"bench", u"bench"};
    settings.pathExists = [](const ov::Text&) { return true; };
    return settings;
}

double ProcessSeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

void MeasureManyFiles(Table& table, Targets& targets)
{
    const std::string bytes = MakeOfficeFile(kVariables);
    std::size_t findings = 0;
    const double before = ProcessSeconds();
    ov::Inspector inspector(Settings());
    for (int i = 0; i < kFiles; ++i)
        findings += inspector.Inspect(ov::InspectedFile(bytes, ov::DetectCharset(bytes))).size();
    const double seconds = ProcessSeconds() - before;
    Require(findings > 0, "nothing was found");
    table.AddRow({std::to_string(kFiles) + " files of " + std::to_string(kVariables), Decimal(seconds, 2),
                  std::to_string(findings)});
    targets.AtMost("checking 1000 files of 200 variables, CPU time", seconds, 1.5, " s");
}

void MeasureOneFile(Table& table, Targets& targets, const std::string& name, const std::string& bytes)
{
    Race race;
    std::optional<ov::SettingStore> store;
    const auto read = race.Add(
        [&] {
            store.emplace();
            ov::ReadConfig(*store, ov::kCurrentTable, bytes, ov::DetectCharset(bytes));
        },
        [&] { store.reset(); });
    ov::Inspector inspector(Settings());
    std::optional<ov::InspectedFile> file;
    std::vector<ov::Finding> findings;
    const auto check = race.Add(
        [&] {
            file.emplace(bytes, ov::DetectCharset(bytes));
            findings = inspector.Inspect(*file);
        },
        [&] { file.reset(); });
    race.Run(kTurns);
    const double ratio = race.Best(check) / race.Best(read);
    table.AddRow({name, Decimal(race.Best(read), 1), Decimal(race.Best(check), 1), Decimal(ratio, 1),
                  std::to_string(findings.size())});
    targets.AtMost("checking " + name + " beside reading it", ratio, 4, " times");
}

} // namespace

int main()
{
    try {
        Targets targets;
        Table files("Checking many files in one process", {"files", "CPU s", "findings"});
        MeasureManyFiles(files, targets);
        files.Print();
        Table large("Checking one file of 100,000 variables",
                    {"names", "read ms", "check ms", "ratio", "findings"});
        MeasureOneFile(large, targets, "the office's names", MakeOfficeFile(kManyVariables));
        MeasureOneFile(large, targets, "names of no page", MakeConfigFile(kManyVariables));
        large.Print();
        targets.Print();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_inspect: %s\n", error.what());
        return 1;
    }
    return 0;
}

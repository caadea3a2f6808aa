// Measures the inspection of configuration files beside reading them: many files of an office in one
// process, and one large file.

#include "bench/config_input.h"
#include "bench/measure.h"
#include "config/core/config_reader.h"
#include "inspect/core/inspection.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <exception>
#include <limits>
#include <optional>
#include <utility>

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

// The processor time of a work, in milliseconds.
template <class Work>
double ProcessMilliseconds(Work work)
{
    const double before = ProcessSeconds();
    work();
    return (ProcessSeconds() - before) * 1000;
}

// By processor time: what takes seconds is interrupted on a busy machine, and one of the two more often.
void MeasureOneFile(Table& table, Targets& targets, const std::string& name, const std::string& bytes)
{
    double bestRead = std::numeric_limits<double>::max();
    double bestCheck = bestRead;
    std::size_t count = 0;
    ov::Inspector inspector(Settings());
    for (int turn = 0; turn < kTurns; ++turn) {
        ov::SettingStore store;
        bestRead = std::min(bestRead, ProcessMilliseconds([&] {
                                ov::ReadConfig(store, ov::kCurrentTable, bytes, ov::DetectCharset(bytes));
                            }));
        // The command line gives the bytes away as well.
        std::string copy = bytes;
        std::optional<ov::InspectedFile> file;
        std::vector<ov::Finding> findings;
        bestCheck = std::min(bestCheck, ProcessMilliseconds([&] {
                                 file.emplace(std::move(copy), ov::DetectCharset(bytes));
                                 findings = inspector.Inspect(*file);
                             }));
        count = findings.size();
    }
    const double ratio = bestCheck / bestRead;
    table.AddRow(
        {name, Decimal(bestRead, 1), Decimal(bestCheck, 1), Decimal(ratio, 1), std::to_string(count)});
    targets.AtMost("checking " + name + " beside reading it, CPU time", ratio, 4, " times");
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

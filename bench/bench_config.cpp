// Measures reading, writing and saving of configuration files. Reading and writing are also given as
// ratios to the least that any reader must do: read the file and look for its line ends. A save is
// the writing, the backup, and the wait for the disk.

#include "bench/config_input.h"
#include "config/core/config_reader.h"
#include "config/core/config_writer.h"
#include "config/core/posix_file_port.h"
#include "config/core/save.h"
#include "config/core/setting_store.h"
#include "config/core/text_lines.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <stdexcept>

namespace
{

// A measurement of something that failed is worth nothing.
void Require(bool succeeded, const char* what)
{
    if (!succeeded)
        throw std::runtime_error(what);
}

class BenchSurroundings final : public ov::SaveSurroundings
{
  public:
    std::tm LocalTime() override
    {
        std::tm time{};
        time.tm_mday = 1;
        return time;
    }
    ov::Text UserName() override { return u"bench"; }
    ov::Text ComputerName() override { return {}; }
};

// The best of several runs, in milliseconds.
double Milliseconds(int runs, const std::function<void()>& work)
{
    double best = std::numeric_limits<double>::max();
    for (int run = 0; run < runs; ++run) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
        best = std::min(best, taken.count());
    }
    return best;
}

void Measure(int variables, int runs, const std::filesystem::path& file)
{
    const std::string bytes = ov::bench::MakeConfigFile(variables);
    Require(static_cast<bool>(std::ofstream(file, std::ios::binary) << bytes << std::flush),
            "cannot write the file");
    const ov::Text path = ov::TextFromUtf8(file.string());
    ov::PosixFilePort files;

    std::ptrdiff_t lines = 0;
    const double limit = Milliseconds(runs, [&] {
        lines = 0;
        const auto count = [&lines](std::string_view block) {
            lines += std::count(block.begin(), block.end(), '\n');
        };
        Require(ov::ReadBlocks(files, path, count).ok, "cannot read the file's blocks");
    });
    Require(lines == std::count(bytes.begin(), bytes.end(), '\n'), "lines are missing");
    ov::SettingStore store;
    const double read = Milliseconds(runs, [&] {
        const ov::ReadResult result = ov::ReadConfigFile(store, ov::kCurrentTable, path, files);
        Require(result.outcome == ov::ReadOutcome::Read, "cannot read the settings");
    });
    Require(store.Count(ov::kCurrentTable) == static_cast<std::size_t>(variables), "settings are missing");
    std::string out;
    const double write = Milliseconds(
        runs, [&] { Require(ov::WriteConfig(store, u"#", out).ok, "cannot write the settings"); });
    BenchSurroundings surroundings;
    const double save = Milliseconds(runs, [&] {
        const auto notice = [](const ov::Text&) { Require(false, "no backup could be made"); };
        Require(ov::SaveConfigFile(store, path, files, surroundings, notice).Saved(), "cannot save");
    });
    // A save writes the same with a longer header.
    Require(std::filesystem::file_size(file) >= out.size(), "the saved file is too short");

    const double megabytes = static_cast<double>(bytes.size()) / 1e6;
    std::printf("%10zu %10.2f %9td %10.4f %10.4f %6.1f %10.4f %6.1f %8.0f %10.4f\n",
                store.Count(ov::kCurrentTable), megabytes, lines, limit, read, read / limit, write,
                write / limit, megabytes / write * 1e3, save);
}

} // namespace

int main()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "ov-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        std::fputs("bench_config: no temporary directory\n", stderr);
        return 1;
    }
    const std::filesystem::path directory = pattern;
    std::puts(
        " variables         MB     lines   limit ms    read ms  ratio   write ms  ratio     MB/s    save ms");
    int code = 0;
    try {
        Measure(200, 200, directory / "small.cfg");
        Measure(10000, 20, directory / "large.cfg");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_config: %s\n", error.what());
        code = 1;
    }
    std::filesystem::remove_all(directory);
    return code;
}

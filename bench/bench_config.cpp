// Measures reading and writing of configuration files. Each time is also given as a ratio to the
// least that any reader must do: read the file and look for its line ends.

#include "bench/config_input.h"
#include "config/core/config_reader.h"
#include "config/core/config_writer.h"
#include "config/core/posix_file_port.h"
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

namespace
{

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
    std::ofstream(file, std::ios::binary) << bytes;
    const ov::Text path = ov::TextFromUtf8(file.string());
    ov::PosixFilePort files;

    std::ptrdiff_t lines = 0;
    const double limit = Milliseconds(runs, [&] {
        lines = 0;
        ov::ReadBlocks(files, path, [&lines](std::string_view block) {
            lines += std::count(block.begin(), block.end(), '\n');
        });
    });
    ov::SettingStore store;
    const double read =
        Milliseconds(runs, [&] { ov::ReadConfigFile(store, ov::kCurrentTable, path, files); });
    std::string out;
    const double write = Milliseconds(runs, [&] { ov::WriteConfig(store, u"#", out); });

    const double megabytes = static_cast<double>(bytes.size()) / 1e6;
    std::printf("%10zu %10.2f %9td %10.4f %10.4f %6.1f %10.4f %6.1f %8.0f\n", store.Count(ov::kCurrentTable),
                megabytes, lines, limit, read, read / limit, write, write / limit, megabytes / write * 1e3);
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
    std::puts(" variables         MB     lines   limit ms    read ms  ratio   write ms  ratio     MB/s");
    Measure(200, 200, directory / "small.cfg");
    Measure(10000, 20, directory / "large.cfg");
    std::filesystem::remove_all(directory);
    return 0;
}

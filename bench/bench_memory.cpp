// Measures the memory that reading a configuration file needs, in comparison with other libraries. The
// program starts itself again for each figure, so that no earlier reading affects it. Also reports the
// time of such a first reading, which has to request all its memory from the system.

#include "bench/config_input.h"
#include "bench/contenders.h"
#include "bench/folder.h"
#include "bench/measure.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <malloc.h>
#include <new>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

// The bytes allocated by the C++ operators and not yet freed, in the sizes that the allocator used.
std::size_t g_allocated = 0;
std::size_t g_allocatedPeak = 0;

} // namespace

void* operator new(std::size_t size)
{
    void* const memory = std::malloc(std::max<std::size_t>(size, 1));
    if (memory == nullptr)
        throw std::bad_alloc();
    g_allocated += malloc_usable_size(memory);
    g_allocatedPeak = std::max(g_allocatedPeak, g_allocated);
    return memory;
}

void operator delete(void* memory) noexcept
{
    g_allocated -= malloc_usable_size(memory);
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    ::operator delete(memory);
}

namespace
{

using namespace ov::bench;

struct Usage {
    double resident;  ///< The maximum growth of the resident memory, in bytes.
    double allocated; ///< The allocated memory at its peak, in bytes.
    double milliseconds;
};

// A line of the system's status report about this process, in bytes.
double StatusBytes(const std::string& name)
{
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        double kilobytes = 0;
        if (word == name + ":" && status >> kilobytes)
            return kilobytes * 1024;
    }
    throw std::runtime_error("the system does not report " + name);
}

// Runs in the started process: reads the file and reports the cost.
int ReadOnce(const Contender& contender, const char* path)
{
    // Resets the peak, so that it counts from here on.
    std::ofstream("/proc/self/clear_refs") << 5;
    const double residentBefore = StatusBytes("VmRSS");
    const std::size_t allocatedBefore = g_allocated;
    g_allocatedPeak = g_allocated;
    std::unique_ptr<Document> document;
    Race race;
    const Race::Entry read = race.Add([&] { document = contender.read(path); });
    race.Run(1);
    const std::size_t allocated = g_allocatedPeak - allocatedBefore;
    std::printf("%.0f %zu %.6f\n", StatusBytes("VmHWM") - residentBefore, allocated, race.Best(read));
    return 0;
}

Usage Start(const char* contender, const char* path)
{
    std::array<int, 2> ends{};
    Require(pipe(ends.data()) == 0, "no pipe");
    const pid_t child = fork();
    Require(child >= 0, "cannot start another process");
    if (child == 0) {
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        close(ends[1]);
        execl("/proc/self/exe", "bench_memory", contender, path, nullptr);
        _exit(127);
    }
    close(ends[1]);
    std::FILE* const answer = fdopen(ends[0], "r");
    Require(answer != nullptr, "no answer");
    Usage usage{};
    const int got =
        std::fscanf(answer, "%lf %lf %lf", &usage.resident, &usage.allocated, &usage.milliseconds);
    std::fclose(answer);
    int status = 0;
    Require(waitpid(child, &status, 0) == child && status == 0 && got == 3, "a reading process failed");
    return usage;
}

void Measure(int variables, int turns, const Folder& folder, Table& table, Targets& targets)
{
    const std::filesystem::path plain = folder / "plain.cfg";
    const std::filesystem::path grouped = folder / "grouped.cfg";
    const std::string bytes = MakeConfigFile(variables);
    WriteBytes(plain, bytes);
    WriteBytes(grouped, bytes, true);
    const auto size = static_cast<double>(bytes.size());

    // The contenders take turns, because their times are compared too.
    std::vector<Usage> best;
    for (int turn = 0; turn < turns; ++turn) {
        for (std::size_t i = 0; i < Contenders().size(); ++i) {
            const std::filesystem::path& file = Contenders()[i].needsGroup ? grouped : plain;
            const Usage usage = Start(std::to_string(i).c_str(), file.c_str());
            if (turn == 0)
                best.push_back(usage);
            // Reports the worst memory and the best time of all turns.
            best[i].resident = std::max(best[i].resident, usage.resident);
            best[i].allocated = std::max(best[i].allocated, usage.allocated);
            best[i].milliseconds = std::min(best[i].milliseconds, usage.milliseconds);
        }
    }
    for (std::size_t i = 0; i < best.size(); ++i) {
        const Contender& contender = Contenders()[i];
        table.AddRow({contender.name, std::to_string(variables), Decimal(size / 1e6, 1),
                      Decimal(best[i].resident / 1e6, 1), Decimal(best[i].resident / size, 2),
                      contender.countsMemory ? Decimal(best[i].allocated / size, 2) : "-",
                      Decimal(best[i].milliseconds, 1)});
    }
    const std::string what = "memory for reading " + std::to_string(variables) + " variables";
    targets.AtMost(what + ", resident", best.front().resident / size, 2.5, " bytes a byte");
    targets.AtMost(what + ", allocated", best.front().allocated / size, 2.5, " bytes a byte");
}

} // namespace

// Measures if called without arguments. With a contender's index and a path, reads that file once.
int main(int argc, char** argv)
{
    try {
        if (argc == 3)
            return ReadOnce(Contenders().at(std::strtoul(argv[1], nullptr, 10)), argv[2]);
        const Folder folder;
        Table table("Memory at its peak while reading, in a process of its own",
                    {"reader", "variables", "file MB", "resident MB", "a byte of file", "allocated a byte",
                     "first read ms"});
        Targets targets;
        Measure(100000, 7, folder, table, targets);
        Measure(1000000, 3, folder, table, targets);
        table.Print();
        targets.Print();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_memory: %s\n", error.what());
        return 1;
    }
    return 0;
}

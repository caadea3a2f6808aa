// Measures reading, writing and saving of configuration files, in comparison with other libraries on the
// same files. The baseline is the minimum work of any reader: reading the file and finding its line
// ends.

#include "bench/config_input.h"
#include "bench/contenders.h"
#include "bench/file_port.h"
#include "bench/folder.h"
#include "bench/measure.h"
#include "config/core/config_reader.h"
#include "config/core/file_blocks.h"
#include "config/core/save.h"
#include "config/core/setting_store.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace
{

using namespace ov::bench;

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

// The benchmark needs no questions and no notices.
class BenchPrompts final : public ov::SavePrompts
{
  public:
    bool MayReplace(ov::ReplaceReason, const ov::Text&) override
    {
        Require(false, "the file was changed");
        return false;
    }
    void TellNoBackup(const ov::Text&) override { Require(false, "no backup could be made"); }
};

// The time for reading a file in blocks and finding its line ends, in two ways; the faster one counts.
class Limit
{
  public:
    Limit(Race& race, const std::filesystem::path& file, const std::string& bytes)
        : m_path(file.u16string()), m_lines(std::count(bytes.begin(), bytes.end(), '\n')),
          m_counting(
              Add(race, [](std::string_view block) { return std::count(block.begin(), block.end(), '\n'); })),
          m_searching(Add(race, [](std::string_view block) {
              std::ptrdiff_t lines = 0;
              while (const void* end = std::memchr(block.data(), '\n', block.size())) {
                  ++lines;
                  block.remove_prefix(
                      static_cast<std::size_t>(static_cast<const char*>(end) - block.data() + 1));
              }
              return lines;
          }))
    {
    }

    std::ptrdiff_t Lines() const { return m_lines; }

    double Milliseconds(const Race& race) const
    {
        return std::min(race.Best(m_counting), race.Best(m_searching));
    }

    const char* Way(const Race& race) const
    {
        return race.Best(m_counting) <= race.Best(m_searching) ? "std::count" : "memchr";
    }

  private:
    template <class Scan>
    Race::Entry Add(Race& race, Scan scan)
    {
        const auto work = [path = m_path, expected = m_lines, scan] {
            SystemFilePort files;
            std::ptrdiff_t lines = 0;
            const auto add = [&lines, &scan](std::string_view block) { lines += scan(block); };
            Require(ov::ReadBlocks(files, path, add).ok, "cannot read the file's blocks");
            Require(lines == expected, "lines are missing");
        };
        return race.Add(work);
    }

    ov::Text m_path;
    std::ptrdiff_t m_lines;
    Race::Entry m_counting;
    Race::Entry m_searching;
};

// "1.23 (4.5)": milliseconds, and their ratio to the limit's time.
std::string WithRatio(double milliseconds, double limit)
{
    return Decimal(milliseconds, milliseconds < 10 ? 3 : 1) + " (" + Decimal(milliseconds / limit, 1) + ")";
}

class ConfigBench
{
  public:
    ConfigBench()
    {
        std::vector<std::string> read = {"variables", "MB", "lines", "limit ms"};
        std::vector<std::string> write = {"variables", "limit ms"};
        for (const Contender& contender : Contenders()) {
            read.push_back(contender.name + " ms");
            if (&contender == &Contenders().front())
                read.emplace_back("again ms");
            if (contender.writes) {
                write.push_back(contender.name + " ms");
                write.push_back("MB/s");
            }
        }
        write.emplace_back("whole save ms");
        m_read = Table("Reading; in brackets how often the limit's time", std::move(read));
        m_write = Table("Writing to bytes, and the whole save", std::move(write));
    }

    void Measure(int variables, int turns, int saves, bool inOrder = true)
    {
        const std::string bytes = MakeConfigFile(variables, inOrder);
        const std::string label = std::to_string(variables) + (inOrder ? "" : " unsorted");
        const std::filesystem::path plain = m_folder / "plain.cfg";
        const std::filesystem::path grouped = m_folder / "grouped.cfg";
        WriteBytes(plain, bytes);
        WriteBytes(grouped, bytes, true);

        Race race;
        const Limit limit(race, plain, bytes);
        std::vector<std::unique_ptr<Document>> documents(Contenders().size());
        std::vector<Race::Entry> reads;
        for (std::size_t i = 0; i < documents.size(); ++i) {
            const Contender& contender = Contenders()[i];
            reads.push_back(
                race.Add([&document = documents[i], &contender,
                          file = contender.needsGroup ? grouped : plain] { document = contender.read(file); },
                         [&document = documents[i], variables] {
                             Require(document->Count() == static_cast<std::size_t>(variables),
                                     "variables are missing");
                             document.reset();
                         }));
        }
        // The store is not empty, as when the user chooses another file.
        ov::SettingStore store;
        SystemFilePort files;
        const Race::Entry again = race.Add([&, path = plain.u16string()] {
            Require(ov::ReadConfigFile(store, ov::kCurrentTable, path, files).outcome ==
                        ov::ReadOutcome::Read,
                    "cannot read the settings again");
        });
        race.Run(turns);
        const double least = limit.Milliseconds(race);
        std::vector<std::string> row = {label, Megabytes(bytes.size()), std::to_string(limit.Lines()),
                                        Decimal(least, 3)};
        for (const Race::Entry read : reads) {
            row.push_back(WithRatio(race.Best(read), least));
            if (read == reads.front())
                row.push_back(WithRatio(race.Best(again), least));
        }
        m_read.AddRow(std::move(row));
        if (std::exchange(m_limitWay, limit.Way(race)).empty())
            std::printf("The limit is read in blocks; its line ends are found by %s.\n\n", limit.Way(race));
        const WriteTimes written = MeasureWriting(label, turns, saves, least, plain, grouped, bytes.size());
        Judge(variables, label, race, least, reads, written, bytes.size());
    }

    // Lines that all add to the same variable.
    void MeasureLists(int lines, int turns)
    {
        Race race;
        std::vector<std::pair<Race::Entry, Race::Entry>> entries;
        std::vector<std::unique_ptr<Document>> documents(3);
        std::vector<Limit> limits;
        constexpr std::string_view kOperators = "><+";
        for (std::size_t i = 0; i < kOperators.size(); ++i) {
            const std::filesystem::path file = m_folder / ("list" + std::to_string(i) + ".cfg").c_str();
            const std::string bytes = MakeListFile(lines, kOperators[i]);
            WriteBytes(file, bytes);
            limits.emplace_back(race, file, bytes);
            auto& document = documents[i];
            const auto read = [&document, file] { document = Contenders().front().read(file); };
            read();
            entries.emplace_back(
                race.Add(read), race.Add([&document] { Require(document->Write() > 0, "nothing written"); }));
        }
        race.Run(turns);
        for (std::size_t i = 0; i < kOperators.size(); ++i) {
            const double least = limits[i].Milliseconds(race);
            const std::string line = "NAME " + std::string(1, kOperators[i]) + " x";
            m_lists.AddRow({line, std::to_string(lines), Decimal(least, 3),
                            WithRatio(race.Best(entries[i].first), least),
                            Decimal(race.Best(entries[i].second), 3)});
            m_targets.AtMost("reading " + std::to_string(lines) + " lines " + line,
                             race.Best(entries[i].first), 15, " ms");
        }
    }

    void Print() const
    {
        m_read.Print();
        m_write.Print();
        m_lists.Print();
        m_targets.Print();
    }

  private:
    struct WriteTimes {
        double own;      ///< This program's time, in milliseconds.
        double bestPeer; ///< 0 if there are no peers.
        double save;
    };

    static std::string Megabytes(std::size_t size) { return Decimal(static_cast<double>(size) / 1e6, 2); }

    WriteTimes MeasureWriting(const std::string& label, int turns, int saves, double least,
                              const std::filesystem::path& plain, const std::filesystem::path& grouped,
                              std::size_t size)
    {
        Race race;
        std::vector<std::unique_ptr<Document>> documents;
        std::vector<Race::Entry> writes;
        for (const Contender& contender : Contenders()) {
            if (!contender.writes)
                continue;
            documents.push_back(contender.read(contender.needsGroup ? grouped : plain));
            // Line ends may be shorter and the header may be missing; everything else must be there.
            const std::size_t enough = contender.keepsComment ? size - size / 20 : 1;
            writes.push_back(race.Add([document = documents.back().get(), enough] {
                Require(document->Write() >= enough, "the written file is too short");
            }));
        }
        race.Run(turns);
        documents.clear();

        WriteTimes times{};
        std::vector<std::string> row = {label, Decimal(least, 3)};
        for (std::size_t i = 0; i < writes.size(); ++i) {
            const double best = race.Best(writes[i]);
            row.push_back(WithRatio(best, least));
            row.push_back(Decimal(static_cast<double>(size) / best / 1e3, 0));
            if (i == 0)
                times.own = best;
            else
                times.bestPeer = times.bestPeer == 0 ? best : std::min(times.bestPeer, best);
        }
        times.save = MeasureSave(plain, saves, size);
        row.push_back(WithRatio(times.save, least));
        m_write.AddRow(std::move(row));
        return times;
    }

    // Includes writing, the backup and waiting for the disk.
    static double MeasureSave(const std::filesystem::path& file, int turns, std::size_t size)
    {
        ov::SettingStore store;
        SystemFilePort files;
        BenchSurroundings surroundings;
        const ov::Text path = file.u16string();
        std::optional<ov::KnownFile> known;
        Require(ov::ReadConfigFile(store, ov::kCurrentTable, path, files, &known).outcome ==
                    ov::ReadOutcome::Read,
                "cannot read the settings");
        BenchPrompts prompts;
        Race race;
        const Race::Entry save = race.Add([&] {
            Require(ov::SaveConfigFile(store, path, known, files, surroundings, prompts).Saved(),
                    "cannot save");
        });
        race.Run(turns);
        // A save writes the same content with a longer header.
        Require(std::filesystem::file_size(file) >= size, "the saved file is too short");
        return race.Best(save);
    }

    void Judge(int variables, const std::string& label, const Race& race, double least,
               const std::vector<Race::Entry>& reads, const WriteTimes& written, std::size_t size)
    {
        const double own = race.Best(reads.front());
        const std::string count = label + " variables";
        if (variables <= 200) {
            m_targets.AtMost("reading " + count, own, 0.15, " ms", 3);
            m_targets.AtMost("writing " + count, written.own, 0.1, " ms", 3);
            m_targets.AtMost("saving " + count, written.save, 2, " ms");
        }
        if (variables >= 100000)
            m_targets.AtMost("reading " + count, own / least, 4, " times the limit");
        double bestPeer = 0;
        for (std::size_t i = 1; i < reads.size(); ++i)
            bestPeer = bestPeer == 0 ? race.Best(reads[i]) : std::min(bestPeer, race.Best(reads[i]));
        if (bestPeer > 0)
            m_targets.AtLeast("reading " + count + " beside the quickest other library", bestPeer / own, 1,
                              " times as quick", 1);
        if (variables >= 100000) {
            // Twice the speed of the fastest peer is enough if that is lower.
            const auto speed = [size](double milliseconds) {
                return static_cast<double>(size) / milliseconds / 1e3;
            };
            const double wanted = written.bestPeer > 0 ? std::min(400.0, 2 * speed(written.bestPeer)) : 400.0;
            m_targets.AtLeast("writing " + count, speed(written.own), wanted, " MB/s");
        }
    }

    Folder m_folder;
    Table m_read{"", {}};
    Table m_write{"", {}};
    Table m_lists{"Many lines for one variable", {"line", "lines", "limit ms", "read ms", "write ms"}};
    Targets m_targets;
    std::string m_limitWay;
};

} // namespace

// The arguments are numbers of variables. Without arguments, all sizes are measured.
int main(int argc, char** argv)
{
    std::vector<int> sizes;
    for (int i = 1; i < argc; ++i)
        sizes.push_back(std::max(std::atoi(argv[i]), 1));
    if (sizes.empty())
        sizes = {200, 10000, 100000, 1000000};
    try {
        const std::string missing = MissingContenders();
        if (!missing.empty())
            std::printf("Not in this build, hence without a column: %s.\n\n", missing.c_str());
        ConfigBench bench;
        for (const int size : sizes) {
            // More turns for short measurements, which other load on the machine distorts more.
            const int turns = std::clamp(2000000 / size, 5, 1000);
            bench.Measure(size, turns, std::min(turns, 50));
            // The size of a file written by hand.
            if (size == 100000)
                bench.Measure(size, turns, turns, false);
        }
        bench.MeasureLists(100000, 20);
        bench.Print();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_config: %s\n", error.what());
        return 1;
    }
    return 0;
}

// Kills processes while they save, at every step and at random times, and checks the files that are
// left on the disk.

#include "tests/save/real_folder.h"
#include "tests/save/step_file_port.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <ctime>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace ov
{
namespace
{

using test::StepFault;
using Clock = std::chrono::steady_clock;

const std::string kOld = "OLD = content\r\n";

// The situation before a save.
struct Situation {
    const char* name;
    const char* file;
    const char* backup; ///< The content under the backup's name before the save, if any.
    bool link = false;
};

class KilledSave : public test::RealFolder
{
  protected:
    // Runs a process that saves with the step port; true if it was killed.
    template <class Arm>
    bool SaveInAnotherProcess(const test::NewContent& content, Arm arm)
    {
        const pid_t child = fork();
        if (child == 0) {
            test::StepFilePort port(files);
            port.end = [] { raise(SIGKILL); };
            arm(port);
            _exit(Save(m_name, content, port).Saved() ? 0 : 1);
        }
        int status = -1;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        if (WIFSIGNALED(status)) {
            EXPECT_EQ(WTERMSIG(status), SIGKILL);
            return true;
        }
        EXPECT_EQ(status, 0);
        return false;
    }

    // Empties the folder and sets up the situation again.
    void Arrange(const Situation& situation)
    {
        for (const std::string& name : Names())
            std::filesystem::remove(folder / name);
        m_name = situation.file;
        Put(situation.link ? "target.cfg" : m_name, kOld);
        if (situation.link)
            std::filesystem::create_symlink("target.cfg", folder / m_name);
        if (situation.backup != nullptr)
            Put("a.bak", situation.backup);
    }

    std::string m_name = "a.cfg";
    const test::NewContent m_small{1};
};

TEST_F(KilledSave, AtEachStepACompleteCopyIsLeft)
{
    const Situation situations[] = {{"File", "a.cfg", nullptr},
                                    {"StaleBackup", "a.cfg", "STALE = content\r\n"},
                                    {"FileNamedAsBackup", "a.bak", nullptr},
                                    {"Link", "a.cfg", nullptr, true}};
    for (const Situation& situation : situations) {
        for (const StepFault end : {StepFault::EndsBefore, StepFault::EndsWithin, StepFault::EndsAfter}) {
            int kills = 0;
            for (bool killed = true; killed;) {
                const int step = kills + 1;
                SCOPED_TRACE(testing::Message() << situation.name << ", " << int(end) << " at " << step);
                const bool inPlace = situation.backup != nullptr || m_name == "a.bak";
                Arrange(situation);
                killed = SaveInAnotherProcess(m_small, [&](test::StepFilePort& port) {
                    port.faults = {{step, end}};
                    port.partOfWrite = m_small.bytes.size() / 2;
                });
                kills += killed ? 1 : 0;
                const auto file = Get(m_name);
                // The only interval without a complete copy: during the write in place.
                const bool inWindow = inPlace && end == StepFault::EndsWithin &&
                                      file == m_small.bytes.substr(0, m_small.bytes.size() / 2);
                EXPECT_TRUE(file == kOld || file == m_small.bytes || Get("a.bak") == kOld ||
                            Get("target.bak") == kOld || inWindow);
                if (!killed) {
                    EXPECT_EQ(file, m_small.bytes);
                }
            }
            EXPECT_GE(kills, 9);
        }
    }
}

// Kills this process after the given time, at any point of its work.
void KillAfter(std::chrono::nanoseconds time)
{
    sigevent event{};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGKILL;
    timer_t timer{};
    const long nanoseconds = std::max<long>(static_cast<long>(time.count()), 1);
    itimerspec when{};
    when.it_value = {nanoseconds / 1'000'000'000, nanoseconds % 1'000'000'000};
    if (timer_create(CLOCK_MONOTONIC, &event, &timer) != 0 || timer_settime(timer, 0, &when, nullptr) != 0)
        _exit(2);
}

TEST_F(KilledSave, AtRandomInstantsOfALargeSaveACompleteCopyIsLeft)
{
    const test::NewContent large(10, 50'000);
    const Situation situation{"File", "a.cfg", nullptr};
    std::string old = large.bytes;
    std::reverse(old.begin(), old.end());

    Arrange(situation);
    Put(m_name, old);
    test::StepFilePort measured(files);
    // The operations before the rename change nothing.
    int beforeRename = 0;
    Clock::time_point begin;
    measured.afterEach = [&] {
        if (measured.renamed)
            return;
        beforeRename = measured.steps;
        begin = Clock::now();
    };
    ASSERT_TRUE(Save(m_name, large, measured).Saved());
    const std::chrono::nanoseconds whole = Clock::now() - begin;

    std::mt19937 random(20'261'120);
    int rounds = 0;
    int killed = 0;
    int unfinished = 0;
    for (const auto end = Clock::now() + std::chrono::seconds(3); rounds < 20 || Clock::now() < end;
         ++rounds) {
        Arrange(situation);
        Put(m_name, old);
        const std::chrono::nanoseconds time(std::uniform_int_distribution<long>(0, whole.count())(random));
        killed += SaveInAnotherProcess(large, [&](test::StepFilePort& port) {
            port.afterEach = [&port, beforeRename, time] {
                if (port.steps == beforeRename)
                    KillAfter(time);
            };
        });
        const auto file = Get("a.cfg");
        const auto backup = Get("a.bak");
        ASSERT_TRUE(file == old || file == large.bytes || backup == old) << "round " << rounds;
        unfinished += file && file != old && file != large.bytes ? 1 : 0;
    }
    EXPECT_GT(killed, 0);
    RecordProperty("rounds", rounds);
    RecordProperty("killed", killed);
    RecordProperty("unfinished", unfinished);
}

} // namespace
} // namespace ov

// Makes every operation of a save fail, run out of memory or be the last of the process, alone and in
// pairs, in every situation that a save can find. After every single operation a complete copy of the
// file, old or new, must exist under the file's name or the backup's name.

#include "config/core/config_writer.h"
#include "config/core/save.h"
#include "tests/core/memory_file_port.h"
#include "tests/core/scoped_locale.h"
#include "tests/core/test_prompts.h"
#include "tests/core/test_surroundings.h"
#include "tests/save/step_file_port.h"

#include <gtest/gtest.h>

#include <new>
#include <optional>
#include <ostream>
#include <vector>

namespace ov
{
namespace
{

using test::MemoryFilePort;
using test::StepFault;
using test::StepFilePort;

const Text kPath = u"office.cfg";
const Text kBackup = u"office.bak";
const Text kTarget = u"share/common.cfg";
const Text kTargetBackup = u"share/common.bak";
const std::string kOld = "OLD = content\r\n";
const std::string kStale = "STALE = content\r\n";

// What the program knows about the file before the save.
enum class Known {
    AsItIs,  ///< Its actual content.
    Nothing, ///< It was not read.
    Other,   ///< It was read and has been changed since.
};

// A situation that a save can find.
struct Situation {
    const char* name;
    std::optional<std::string> old; ///< The content before the save.
    bool inPlace = false;           ///< No backup can be made.
    bool fails = false;             ///< The save fails even without a fault.
    Text path = kPath;
    void (*arrange)(MemoryFilePort& files) = [](MemoryFilePort&) {};
    Known known = Known::AsItIs;
    bool answer = true;      ///< The answer to the question whether to replace the file.
    bool keeps = false;      ///< The old content is kept even if the save succeeds.
    bool unreadable = false; ///< If it cannot be renamed either, it is overwritten without a copy.
    std::optional<std::string> first = std::nullopt; ///< The content before the notice, if different.
};

void PrintTo(const Situation& situation, std::ostream* stream)
{
    *stream << situation.name;
}

const Situation kSituations[] = {
    {.name = "File", .old = kOld},
    {.name = "EmptyFile", .old = ""},
    {.name = "LongFile", .old = std::string(1000, 'x')},
    {.name = "NoFile", .old = {}},
    {.name = "StaleBackup",
     .old = kOld,
     .inPlace = true,
     .arrange = [](MemoryFilePort& files) { files.contents[kBackup] = kStale; }},
    {.name = "StaleBackupOfALongFile",
     .old = std::string(1000, 'x'),
     .inPlace = true,
     .arrange = [](MemoryFilePort& files) { files.contents[kBackup] = kStale; }},
    {.name = "FileNamedAsBackup", .old = kOld, .inPlace = true, .path = kBackup},
    {.name = "FileThatIsItsBackup",
     .old = kOld,
     .inPlace = true,
     .arrange = [](MemoryFilePort& files) { files.links[kBackup] = kPath; }},
    {.name = "Link",
     .old = kOld,
     .arrange =
         [](MemoryFilePort& files) {
             files.contents[kTarget] = files.contents[kPath];
             files.contents.erase(kPath);
             files.links[kPath] = kTarget;
         }},
    {.name = "LinkToNothing",
     .old = {},
     .arrange = [](MemoryFilePort& files) { files.links[kPath] = kTarget; }},
    {.name = "OpenElsewhere",
     .old = kOld,
     .inPlace = true,
     .arrange = [](MemoryFilePort& files) { files.pinned = {kPath}; }},
    {.name = "OpenElsewhereForAll",
     .old = kOld,
     .inPlace = true,
     .fails = true,
     .arrange =
         [](MemoryFilePort& files) {
             files.pinned = {kPath};
             files.readOnly = {kPath};
         }},
    {.name = "ReadOnly", .old = kOld, .arrange = [](MemoryFilePort& files) { files.readOnly = {kPath}; }},
    {.name = "ReadOnlyWithStaleBackup",
     .old = kOld,
     .inPlace = true,
     .fails = true,
     .arrange =
         [](MemoryFilePort& files) {
             files.readOnly = {kPath};
             files.contents[kBackup] = kStale;
         }},
    {.name = "FullDisk",
     .old = kOld,
     .fails = true,
     .arrange = [](MemoryFilePort& files) { files.capacity = 100; }},
    {.name = "FullDiskAndStaleBackup",
     .old = kOld,
     .inPlace = true,
     .fails = true,
     .arrange =
         [](MemoryFilePort& files) {
             files.capacity = 100;
             files.contents[kBackup] = kStale;
         }},
    {.name = "NotRead", .old = kOld, .known = Known::Nothing, .keeps = true},
    {.name = "ChangedSinceRead", .old = kOld, .known = Known::Other, .keeps = true},
    {.name = "NotReadAndDeclined", .old = kOld, .fails = true, .known = Known::Nothing, .answer = false},
    {.name = "ChangedAndDeclined", .old = kOld, .fails = true, .known = Known::Other, .answer = false},
    {.name = "NotReadWithStaleBackup",
     .old = kOld,
     .arrange = [](MemoryFilePort& files) { files.contents[kBackup] = kStale; },
     .known = Known::Nothing,
     .keeps = true},
    {.name = "NotReadAndOpenElsewhere",
     .old = kOld,
     .inPlace = true,
     .arrange = [](MemoryFilePort& files) { files.pinned = {kPath}; },
     .known = Known::Nothing,
     .keeps = true},
    {.name = "ChangedAndOpenElsewhere",
     .old = kOld,
     .inPlace = true,
     .arrange = [](MemoryFilePort& files) { files.pinned = {kPath}; },
     .known = Known::Other,
     .keeps = true},
    {.name = "NotReadNamedAsBackup", .old = kOld, .path = kBackup, .known = Known::Nothing, .keeps = true},
    {.name = "NotReadOnAFullDisk",
     .old = kOld,
     .fails = true,
     .arrange = [](MemoryFilePort& files) { files.capacity = 100; },
     .known = Known::Nothing},
    {.name = "NotReadAndNeitherToBeRenamedNorRead",
     .old = kOld,
     .inPlace = true,
     .fails = true,
     .arrange =
         [](MemoryFilePort& files) {
             files.pinned = {kPath};
             files.unreadable = {kPath};
         },
     .known = Known::Nothing},
    {.name = "ReadBeforeButNotAgain",
     .old = kOld,
     .arrange = [](MemoryFilePort& files) { files.unreadable = {kPath}; },
     .keeps = true,
     .unreadable = true},
    {.name = "ChangedDuringTheNotice",
     .old = kOld,
     .inPlace = true,
     .arrange = [](MemoryFilePort& files) { files.contents[kBackup] = kStale; },
     .keeps = true,
     .first = "FIRST = content\r\n"},
};

// Thrown to simulate the end of the process.
struct End {
};

class SaveFault : public testing::TestWithParam<Situation>
{
  protected:
    // One save with injected faults, and its results.
    struct Run {
        Run(MemoryFilePort before, std::optional<KnownFile> knownBefore)
            : files(std::move(before)), known(std::move(knownBefore))
        {
        }
        MemoryFilePort files;
        std::optional<KnownFile> known;
        StepFilePort port{files};
        test::TestPrompts prompts;
        std::optional<SaveResult> result{}; ///< Nothing if it threw or the process ended.
        bool threw = false;
    };

    SaveFault()
    {
        m_store.SetSetting(u"A", u"1", SettingKindInteger, u"", kCurrentTable);
        EXPECT_TRUE(WriteConfig(m_store, test::TestSurroundings::Header(), m_new));
        m_parts = {0, 1, m_new.size() / 2, m_new.size() - 1, m_new.size()};
        if (GetParam().old)
            m_before.contents[GetParam().path] = GetParam().first.value_or(*GetParam().old);
        GetParam().arrange(m_before);
    }

    // Saves; after every operation a complete copy must exist.
    void Save(Run& run)
    {
        run.port.end = [] { throw End(); };
        run.port.afterEach = [&] { ExpectCompleteCopy(run); };
        run.prompts.answer = GetParam().answer;
        run.prompts.onNotice = [&] {
            if (GetParam().first)
                run.files.contents[GetParam().path] = *GetParam().old;
        };
        test::TestSurroundings surroundings;
        try {
            SaveResult result =
                SaveConfigFile(m_store, GetParam().path, run.known, run.port, surroundings, run.prompts);
            if (!run.port.ended)
                run.result = std::move(result);
        } catch (const std::bad_alloc&) {
            run.threw = true;
        } catch (const End&) {
        }
        ExpectCompleteCopy(run);
    }

    std::optional<KnownFile> KnownBefore() const
    {
        const auto content = Content(m_before, GetParam().path);
        if (!content || GetParam().known == Known::Nothing)
            return std::nullopt;
        return KnownFile{GetParam().path, GetParam().known == Known::Other ? *content + "\r\n" : *content};
    }

    static std::optional<std::string> Content(const MemoryFilePort& files, const Text& path)
    {
        const auto link = files.links.find(path);
        const auto found = files.contents.find(link == files.links.end() ? path : link->second);
        return found == files.contents.end() ? std::nullopt : std::optional(found->second);
    }

    // The content of the file if the save does not change it.
    static std::optional<std::string> Old(const Run& run)
    {
        return GetParam().first && run.prompts.notices.empty() ? GetParam().first : GetParam().old;
    }

    static bool HasOldContent(const Run& run)
    {
        return std::ranges::any_of(run.files.contents,
                                   [&](const auto& file) { return file.second == Old(run); });
    }

    // If it can be neither renamed nor read after the notice, it is overwritten without a copy.
    static bool IsOverwrittenBlindly(const Run& run)
    {
        return !run.prompts.notices.empty() && !run.port.renamed &&
               (GetParam().unreadable || run.port.failedReads > 1);
    }

    // Without a backup there is one interval without a complete copy: from the write itself until the
    // content is restored. A file that is to be kept always has one.
    void ExpectCompleteCopy(const Run& run) const
    {
        if (GetParam().keeps && IsOverwrittenBlindly(run))
            return;
        const bool inPlace = !run.port.renamed && !GetParam().keeps;
        if (!GetParam().old || (inPlace && run.port.unfinishedWrite))
            return;
        const bool oldStands = HasOldContent(run);
        const bool stands = Content(run.files, GetParam().path) == m_new && !GetParam().keeps;
        EXPECT_TRUE(stands || oldStands) << "after operation " << run.port.steps;
        // The old copy is removed only when the new one is on the disk.
        EXPECT_TRUE(oldStands || !run.files.unflushed || inPlace) << "after operation " << run.port.steps;
    }

    // Checks the result of a save that has returned.
    void ExpectTrueResult(const Run& run) const
    {
        if (run.threw) {
            auto before = m_before.contents;
            if (GetParam().first)
                before[GetParam().path] = *Old(run);
            EXPECT_EQ(run.files.contents, before) << "thrown after something was touched";
            EXPECT_EQ(run.files.links, m_before.links);
        }
        if (!run.result)
            return;
        ExpectKnownContent(run);
        const auto file = Content(run.files, GetParam().path);
        if (run.result->Saved()) {
            EXPECT_EQ(file, m_new);
            EXPECT_FALSE(run.files.unflushed);
            ExpectKeptContent(run);
            return;
        }
        switch (run.result->oldContent) {
        case OldContent::NoneBefore:
            EXPECT_EQ(GetParam().old, std::nullopt);
            break;
        case OldContent::Stands:
            EXPECT_EQ(file, Old(run));
            break;
        case OldContent::UnderBackupName:
            EXPECT_EQ(Content(run.files, run.result->backupPath), Old(run));
            break;
        case OldContent::Lost:
            EXPECT_TRUE(IsOverwrittenBlindly(run));
            break;
        }
    }

    // Kept content is where the question or the result says. No other files are left.
    void ExpectKeptContent(const Run& run) const
    {
        if (run.result->keptPath.empty() && run.prompts.questions.empty())
            return;
        const Text kept =
            run.result->keptPath.empty() ? run.prompts.questions[0].keptPath : run.result->keptPath;
        EXPECT_EQ(Content(run.files, kept), Old(run));
    }

    // The next save does not ask about what this one left, and asks about everything else.
    void ExpectKnownContent(const Run& run) const
    {
        const auto before = KnownBefore();
        const bool same =
            run.known.has_value() == before.has_value() && (!before || run.known->content == before->content);
        if (run.result->Saved() || !same) {
            ASSERT_TRUE(run.known);
            EXPECT_EQ(run.known->path, GetParam().path);
            EXPECT_EQ(run.known->content, Content(run.files, GetParam().path));
        }
    }

    // Runs the save with the fault at each operation in turn, until there is no such operation. Returns
    // the number of runs with a fault.
    template <class Check>
    int SweepOne(StepFault fault, std::size_t part, Check check)
    {
        for (int k = 1;; ++k) {
            SCOPED_TRACE(testing::Message() << "fault " << int(fault) << " at " << k << ", part " << part);
            Run run(m_before, KnownBefore());
            run.port.faults = {{k, fault}};
            run.port.partOfWrite = part;
            Save(run);
            if (run.port.steps < k)
                return k - 1;
            check(run);
        }
    }

    // The same with two faults.
    template <class Check>
    void SweepTwo(StepFault one, StepFault other, std::size_t part, Check check)
    {
        for (int first = 1;; ++first) {
            for (int second = first + 1;; ++second) {
                SCOPED_TRACE(testing::Message() << "faults " << int(one) << " at " << first << ", "
                                                << int(other) << " at " << second << ", part " << part);
                Run run(m_before, KnownBefore());
                run.port.faults = {{first, one}, {second, other}};
                run.port.partOfWrite = part;
                Save(run);
                if (run.port.steps < first)
                    return;
                if (run.port.steps < second)
                    break;
                check(run);
            }
        }
    }

    const test::ScopedLocale m_locale{"C"};
    SettingStore m_store;
    std::string m_new;
    std::vector<std::size_t> m_parts; ///< The numbers of bytes that an incomplete write may write.
    MemoryFilePort m_before;
};

TEST_P(SaveFault, WithoutAFaultACompleteCopyStandsAfterEveryOperation)
{
    Run run(m_before, KnownBefore());
    Save(run);
    ASSERT_TRUE(run.result);
    EXPECT_EQ(run.result->Saved(), !GetParam().fails);
    EXPECT_EQ(run.port.renamed, GetParam().old && GetParam().answer && !GetParam().inPlace);
    EXPECT_EQ(run.files.openFiles, 0);
    ExpectTrueResult(run);
    EXPECT_EQ(run.prompts.questions.size(), GetParam().known == Known::AsItIs ? 0u : 1u);
    EXPECT_EQ(HasOldContent(run), GetParam().keeps || (GetParam().fails && GetParam().old));
    if (GetParam().fails) {
        EXPECT_EQ(run.files.contents, m_before.contents);
    }
}

TEST_P(SaveFault, EachOperationMayFail)
{
    for (const std::size_t part : m_parts) {
        const int struck = SweepOne(StepFault::Fails, part, [&](const Run& run) {
            EXPECT_TRUE(run.result);
            EXPECT_EQ(run.files.openFiles, 0);
            ExpectTrueResult(run);
        });
        EXPECT_GT(struck, 2);
    }
}

TEST_P(SaveFault, EachOperationMayBeDoneAndSayThatItFailed)
{
    SweepOne(StepFault::FailsDone, 0, [&](const Run& run) {
        EXPECT_TRUE(run.result);
        ExpectTrueResult(run);
    });
}

TEST_P(SaveFault, OneOfTwoFailingOperationsMayBeDone)
{
    const auto check = [&](const Run& run) { ExpectTrueResult(run); };
    SweepTwo(StepFault::FailsDone, StepFault::Fails, m_new.size() / 2, check);
    SweepTwo(StepFault::Fails, StepFault::FailsDone, m_new.size() / 2, check);
}

TEST_P(SaveFault, MemoryMayRunOutInEachOperation)
{
    for (const std::size_t part : m_parts) {
        SweepOne(StepFault::OutOfMemory, part, [&](const Run& run) {
            EXPECT_TRUE(run.threw || run.result);
            EXPECT_EQ(run.files.openFiles, 0);
            ExpectTrueResult(run);
        });
    }
}

TEST_P(SaveFault, ProcessMayEndBeforeWithinAndAfterEachOperation)
{
    for (const StepFault end : {StepFault::EndsBefore, StepFault::EndsWithin, StepFault::EndsAfter}) {
        for (const std::size_t part : m_parts)
            SweepOne(end, part, [&](const Run& run) { EXPECT_TRUE(run.port.ended); });
    }
}

// The length of an incomplete write only matters for single faults; here it is one half.
TEST_P(SaveFault, EachPairOfOperationsMayFail)
{
    const auto check = [&](const Run& run) {
        EXPECT_EQ(run.files.openFiles, 0);
        ExpectTrueResult(run);
    };
    const std::size_t half = m_new.size() / 2;
    SweepTwo(StepFault::Fails, StepFault::Fails, half, check);
    SweepTwo(StepFault::Fails, StepFault::OutOfMemory, half, check);
    SweepTwo(StepFault::OutOfMemory, StepFault::Fails, half, check);
}

// An end before or after an operation leaves the state that every run checks after each operation.
TEST_P(SaveFault, ProcessMayEndWithinAnOperationAfterAnotherFailed)
{
    for (const StepFault fault : {StepFault::Fails, StepFault::FailsDone}) {
        SweepTwo(fault, StepFault::EndsWithin, m_new.size() / 2,
                 [&](const Run& run) { EXPECT_TRUE(run.port.ended); });
    }
}

INSTANTIATE_TEST_SUITE_P(Situations, SaveFault, testing::ValuesIn(kSituations),
                         [](const auto& situation) { return situation.param.name; });

} // namespace
} // namespace ov

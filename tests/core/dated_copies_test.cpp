// Dated copies: which are made and removed, with every operation failing in turn, and over random
// sequences of changes.

#include "launch/core/copy_name.h"
#include "launch/core/dated_copies.h"
#include "tests/core/forwarding_port.h"
#include "tests/core/launch_scene.h"

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <random>

namespace ov
{
namespace
{

using namespace std::chrono_literals;
using namespace std::string_literals;
using test::LaunchScene;

const LocalTime kNoon = std::chrono::local_days(std::chrono::year(2026) / 11 / 22) + 12h;
const Text kPath = u"office.cfg";

// What happens around a change: a copy before it, and the end of it afterwards, when the file has changed.
CopyResult KeepDatedCopy(const Text& path, const CopyPlace& place, LocalTime now, const FilePorts& ports)
{
    CopyResult result = TakeDatedCopy(path, place, now, ports);
    const CopyResult earlier{result.Succeeded() ? CopyOutcome::NotNeeded : result.outcome, {}, {}};
    SettleDatedCopy(path, earlier, place, now, ports);
    return result;
}

TEST(DatedCopiesTest, IsMadeOnceForEachContent)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    const CopyResult first = KeepDatedCopy(kPath, {}, kNoon, scene.ports);
    EXPECT_EQ(first.outcome, CopyOutcome::Made);
    EXPECT_EQ(first.path, u"office.cfg 2026-11-22 12.00.00.copy");
    EXPECT_EQ(scene.memory.contents[first.path], "A = 1\r\n");
    EXPECT_FALSE(scene.memory.unflushed);

    const CopyResult again = KeepDatedCopy(kPath, {}, kNoon + 1h, scene.ports);
    EXPECT_EQ(again.outcome, CopyOutcome::NotNeeded);
    EXPECT_EQ(again.path, first.path);
    EXPECT_EQ(scene.memory.contents.size(), 2U);
}

TEST(DatedCopiesTest, StayApartAndInOrderWithinASecondAndWhenTheClockIsSetBack)
{
    LaunchScene scene;
    for (const LocalTime now : {kNoon, kNoon, kNoon - 24h, kNoon + 1s}) {
        scene.memory.contents[kPath] += "x";
        ASSERT_EQ(KeepDatedCopy(kPath, {}, now, scene.ports).outcome, CopyOutcome::Made);
    }
    const CopyList list = ListDatedCopies(kPath, {}, scene.ports);
    ASSERT_TRUE(list.result);
    ASSERT_EQ(list.copies.size(), 4U);
    EXPECT_EQ(list.copies[0].path, u"office.cfg 2026-11-22 12.00.01.copy");
    EXPECT_EQ(list.copies[1].path, u"office.cfg 2026-11-22 12.00.00-3.copy");
    EXPECT_EQ(list.copies[2].path, u"office.cfg 2026-11-22 12.00.00-2.copy");
    EXPECT_EQ(list.copies[3].path, u"office.cfg 2026-11-22 12.00.00.copy");
    EXPECT_EQ(list.copies[1].time, kNoon);
    EXPECT_EQ(list.copies[1].number, 3);
    EXPECT_EQ(list.copies[1].size, 3U);
}

TEST(DatedCopiesTest, ANewCopySurvivesCopiesFromTheFuture)
{
    LaunchScene scene;
    for (int copy = 0; copy < 3; ++copy) {
        scene.memory.contents[kPath] += "x";
        KeepDatedCopy(kPath, {.count = 3}, kNoon + 9000h, scene.ports);
    }
    scene.memory.contents[kPath] = "present";
    const CopyResult result = KeepDatedCopy(kPath, {.count = 3}, kNoon, scene.ports);
    EXPECT_EQ(scene.memory.contents[result.path], "present");
    EXPECT_EQ(ListDatedCopies(kPath, {}, scene.ports).copies.size(), 3U);
}

TEST(DatedCopiesTest, AMissingFileNeedsNoCopy)
{
    LaunchScene scene;
    EXPECT_EQ(KeepDatedCopy(kPath, {}, kNoon, scene.ports).outcome, CopyOutcome::NoFile);
    EXPECT_TRUE(scene.memory.contents.empty());
}

TEST(DatedCopiesTest, AnUnreadableFileIsAFailure)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    scene.memory.unreadable = {kPath};
    const CopyResult result = KeepDatedCopy(kPath, {}, kNoon, scene.ports);
    EXPECT_EQ(result.outcome, CopyOutcome::FileUnreadable);
    EXPECT_EQ(result.systemText, test::kFaultText);
    EXPECT_FALSE(result.Succeeded());
}

TEST(DatedCopiesTest, AMissingFolderOfChoiceIsAFailure)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    const CopyResult result = KeepDatedCopy(kPath, {.folder = u"copies"}, kNoon, scene.ports);
    EXPECT_EQ(result.outcome, CopyOutcome::FolderUnreadable);
    EXPECT_EQ(scene.memory.contents.size(), 1U);
}

TEST(DatedCopiesTest, AFolderIsNoCopy)
{
    LaunchScene scene;
    scene.memory.directories = {u"office.cfg 2026-11-21 12.00.00.copy"};
    EXPECT_TRUE(ListDatedCopies(kPath, {}, scene.ports).copies.empty());
}

TEST(DatedCopiesTest, AFullDiskLeavesNothing)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    scene.memory.capacity = 3;
    EXPECT_EQ(KeepDatedCopy(kPath, {}, kNoon, scene.ports).outcome, CopyOutcome::WriteFailed);
    EXPECT_EQ(scene.memory.contents.size(), 1U);
}

TEST(DatedCopiesTest, AFailedCopyRemovesNoOtherCopy)
{
    LaunchScene scene;
    for (const char* const content : {"1", "2", "3"}) {
        scene.memory.contents[kPath] = content;
        TakeDatedCopy(kPath, {}, kNoon, scene.ports);
    }
    scene.memory.contents[kPath] = "longer than the disk has space for";
    scene.memory.capacity = 3;
    EXPECT_FALSE(KeepDatedCopy(kPath, {.count = 1}, kNoon, scene.ports).Succeeded());
    EXPECT_EQ(scene.EndingIn(u".copy").size(), 3U);
}

// A port that stores other bytes than it was given, as a failing disk does.
class LyingPort final : public test::ForwardingPort
{
  public:
    using ForwardingPort::ForwardingPort;
    FileResult Write(FileHandle file, std::string_view bytes) override
    {
        return ForwardingPort::Write(file, bytes.substr(1));
    }
};

TEST(DatedCopiesTest, ACopyThatReadsBackDifferentlyIsRemoved)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    LyingPort lying(scene.memory);
    EXPECT_EQ(KeepDatedCopy(kPath, {}, kNoon, {lying, scene.folders}).outcome, CopyOutcome::NotVerified);
    EXPECT_EQ(scene.memory.contents.size(), 1U);
}

TEST(DatedCopiesTest, PartsOfEndedProcessesAreRemovedAfterADay)
{
    LaunchScene scene;
    const CopyNames names(kPath, {}, scene.ports);
    scene.memory.contents[kPath] = "A = 1\r\n";
    const Text old = names.UnfinishedNameOf({kNoon - 25h, 1});
    const Text recent = names.UnfinishedNameOf({kNoon - 1h, 1});
    scene.memory.contents[old] = scene.memory.contents[recent] = "A =";
    KeepDatedCopy(kPath, {}, kNoon, scene.ports);
    EXPECT_FALSE(scene.memory.contents.contains(old));
    EXPECT_TRUE(scene.memory.contents.contains(recent));
    EXPECT_EQ(ListDatedCopies(kPath, {}, scene.ports).copies.size(), 1U);
}

TEST(DatedCopiesTest, TheStampOfAnotherProcessIsSkipped)
{
    // The listing does not show a part that appears right after it.
    class LateListing final : public FolderPort
    {
      public:
        explicit LateListing(LaunchScene& scene) : m_scene(scene) {}
        TextView Separators() const override { return u"/"; }
        FileResult Facts(const Text& path, FileFacts& facts) override
        {
            return m_scene.folders.Facts(path, facts);
        }
        FileResult List(const Text& folder, std::vector<Text>& names) override
        {
            FileResult result = m_scene.folders.List(folder, names);
            m_scene.memory.contents[u"office.cfg 2026-11-22 12.00.00.part"] = "";
            return result;
        }
        FileResult TryRenaming(const Text&) override { return {}; }
        FileResult TryWriting(const Text&) override { return {}; }
        Text FullFolder(const Text& folder) override { return m_scene.folders.FullFolder(folder); }
        Text Folded(TextView name) const override { return Text(name); }

      private:
        LaunchScene& m_scene;
    };
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    LateListing late(scene);
    const CopyResult result = TakeDatedCopy(kPath, {}, kNoon, {scene.memory, late});
    EXPECT_EQ(result.path, u"office.cfg 2026-11-22 12.00.00-2.copy");
    EXPECT_EQ(scene.memory.contents[u"office.cfg 2026-11-22 12.00.00.part"], "");
}

TEST(DatedCopiesTest, IsRemovedAgainIfTheFileDidNotChange)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    const CopyResult taken = TakeDatedCopy(kPath, {}, kNoon, scene.ports);
    SettleDatedCopy(kPath, taken, {}, kNoon, scene.ports);
    EXPECT_EQ(scene.memory.contents.size(), 1U);
}

TEST(DatedCopiesTest, AnEarlierCopyRemainsIfTheFileDidNotChange)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    TakeDatedCopy(kPath, {}, kNoon, scene.ports);
    SettleDatedCopy(kPath, TakeDatedCopy(kPath, {}, kNoon + 1h, scene.ports), {}, kNoon, scene.ports);
    EXPECT_EQ(scene.memory.contents.size(), 2U);
}

TEST(DatedCopiesTest, IsMadeAgainIfAnotherProgramHasRemovedIt)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    const CopyResult first = TakeDatedCopy(kPath, {}, kNoon, scene.ports);
    const CopyResult second = TakeDatedCopy(kPath, {}, kNoon + 1h, scene.ports);
    ASSERT_EQ(second.outcome, CopyOutcome::NotNeeded);
    SettleDatedCopy(kPath, first, {}, kNoon + 2h, scene.ports);
    ASSERT_TRUE(scene.EndingIn(u".copy").empty());
    scene.memory.contents[kPath] = "A = 2\r\n";
    SettleDatedCopy(kPath, second, {}, kNoon + 3h, scene.ports);
    ASSERT_EQ(scene.EndingIn(u".copy").size(), 1U);
    EXPECT_EQ(scene.memory.contents[scene.EndingIn(u".copy").front()], "A = 1\r\n");
}

TEST(DatedCopiesTest, RemainsIfTheFileChangedOrIsGone)
{
    for (const bool gone : {false, true}) {
        LaunchScene scene;
        scene.memory.contents[kPath] = "A = 1\r\n";
        TakeDatedCopy(kPath, {}, kNoon, scene.ports);
        scene.memory.contents[kPath] = "A = 2\r\n";
        const CopyResult taken = TakeDatedCopy(kPath, {}, kNoon, scene.ports);
        scene.memory.contents[kPath] = "A = 3\r\n";
        if (gone)
            scene.memory.contents.erase(kPath);
        SettleDatedCopy(kPath, taken, {.count = 1}, kNoon, scene.ports);
        EXPECT_EQ(scene.EndingIn(u".copy"), std::vector{taken.path});
    }
}

TEST(DatedCopiesTest, EachFaultLosesNothing)
{
    const std::string present = "A = 9\r\n";
    const std::vector<std::string> copied{"A = 1\r\n", "A = 2\r\n"};
    const auto arrange = [&](LaunchScene& scene) {
        for (std::size_t copy = 0; copy < copied.size(); ++copy) {
            scene.memory.contents[kPath] = copied[copy];
            TakeDatedCopy(kPath, {}, kNoon + std::chrono::hours(copy), {scene.memory, scene.folders});
        }
        scene.memory.contents[kPath] = present;
    };
    const auto invariant = [&](const LaunchScene& scene) {
        EXPECT_EQ(scene.memory.contents.at(kPath), present);
        EXPECT_TRUE(scene.Has(copied[1]));
        for (const Text& copy : scene.EndingIn(u".copy"))
            EXPECT_EQ(scene.memory.contents.at(copy).size(), present.size()) << "a part has a copy's name";
    };
    test::RunWithEachFault(
        arrange,
        [](LaunchScene& scene) { return KeepDatedCopy(kPath, {.count = 2}, kNoon + 9h, scene.ports); },
        invariant,
        [&](LaunchScene& scene, const CopyResult& result, bool faultless) {
            EXPECT_TRUE(result.Succeeded() || !faultless);
            EXPECT_TRUE(!result.Succeeded() || scene.memory.contents[result.path] == present);
            EXPECT_TRUE(result.Succeeded() || scene.EndingIn(u".copy").size() == 2);
            if (faultless) {
                EXPECT_EQ(scene.EndingIn(u".copy").size(), 2U);
                EXPECT_FALSE(scene.Has(copied[0]));
            }
        });
}

TEST(DatedCopiesTest, NoPartRemainsAfterRunningOutOfMemory)
{
    int failures = 0;
    for (int step = 1; step < 30; ++step) {
        LaunchScene scene;
        scene.memory.contents[kPath] = "A = 1\r\n";
        scene.steps.faults = {{step, test::StepFault::OutOfMemory}};
        try {
            TakeDatedCopy(kPath, {}, kNoon, scene.ports);
        } catch (const std::bad_alloc&) {
            ++failures;
        }
        EXPECT_EQ(scene.EndingIn(u".part").size(), 0U) << step;
    }
    EXPECT_GE(failures, 5);
}

TEST(DatedCopiesTest, AFolderThatCannotBeListedOrExaminedLosesNothing)
{
    for (int call = 1; call <= 12; ++call) {
        LaunchScene scene;
        for (const char* const content : {"1", "2", "3"}) {
            scene.memory.contents[kPath] = content;
            TakeDatedCopy(kPath, {}, kNoon, scene.ports);
        }
        scene.folders.failing = {scene.folders.calls + call};
        const auto before = scene.memory.contents;
        PruneDatedCopies(kPath, {.count = 3}, kNoon, scene.ports);
        EXPECT_EQ(scene.memory.contents, before) << call;
    }
}

// Names that are hard to handle, also ones that look like the copy of another file.
const Text kHardNames[] = {
    u"office.cfg",
    u"office",
    u"a.b.c",
    u".cfg",
    u"office.bak",
    u"B\u00fcro.cfg",
    u"100% #1;2",
    u"x (2).cfg",
    u"office.cfg ",
    u"other.cfg 2026-11-22 12.00.00.copy",
    u"office.cfg 2026-11-22 12.00.00.cfg",
    u"office.cfg 2026-11-22 12.00.00 (2).copy",
    u"office 2026-11-22.copy",
};

TEST(DatedCopiesPropertyTest, TheLastContentsRemainAndNothingElseIsTouched)
{
    for (unsigned seed = 0; seed < 60; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        LaunchScene scene;
        scene.memory.directories = {u"copies"};
        struct Edited {
            Text path;
            CopyPlace place;
            std::deque<std::string> kept; // Newest first.
        };
        std::map<Text, Edited> files;
        while (files.size() < 4) {
            const Text path = kHardNames[random() % std::size(kHardNames)];
            files[path] = {
                path, {.folder = random() % 2 == 0 ? Text() : Text(u"copies"), .count = random() % 4}, {}};
        }
        LocalTime now = kNoon;
        for (int step = 0; step < 60; ++step) {
            Edited& file = std::next(files.begin(), static_cast<long>(random() % files.size()))->second;
            scene.memory.contents[file.path] = std::to_string(random() % 3);
            now += std::chrono::seconds(static_cast<long>(random() % 5) - 2);
            ASSERT_TRUE(KeepDatedCopy(file.path, file.place, now, scene.ports).Succeeded());
            const std::string& content = scene.memory.contents[file.path];
            if (file.kept.empty() || file.kept.front() != content)
                file.kept.push_front(content);
            file.kept.resize(std::min(file.kept.size(), std::max<std::size_t>(file.place.count, 1)));
        }
        std::size_t expected = 0;
        for (const auto& [path, file] : files) {
            std::deque<std::string> kept;
            for (const DatedCopy& copy : ListDatedCopies(path, file.place.folder, scene.ports).copies)
                kept.push_back(scene.memory.contents[copy.path]);
            EXPECT_EQ(kept, file.kept) << Utf8FromText(path);
            expected += file.kept.size() + scene.memory.contents.contains(path);
        }
        EXPECT_EQ(scene.memory.contents.size(), expected);
    }
}

} // namespace
} // namespace ov

// Bringing back a dated copy, with every operation failing in turn.

#include "launch/core/restore_copy.h"
#include "tests/core/launch_scene.h"

#include <gtest/gtest.h>

namespace ov
{
namespace
{

using namespace std::chrono_literals;
using test::LaunchScene;

const LocalTime kNoon = std::chrono::local_days(std::chrono::year(2026) / 11 / 22) + 12h;
const Text kPath = u"office.cfg";
const Text kBackup = u"office.bak";
const std::string kWanted = "A = wanted\r\n";
const std::string kPresent = "A = present, and longer\r\n";

// A file with one copy of an earlier content; returns the copy's path.
Text Arrange(LaunchScene& scene)
{
    scene.memory.contents[kPath] = kWanted;
    Text copy = TakeDatedCopy(kPath, {}, kNoon, {scene.memory, scene.folders}).path;
    scene.memory.contents[kPath] = kPresent;
    return copy;
}

TEST(RestoreCopyTest, KeepsTheReplacedContent)
{
    LaunchScene scene;
    const Text copy = Arrange(scene);
    const RestoreResult result = RestoreCopy(kPath, copy, {.count = 1}, kNoon + 1h, scene.ports);
    EXPECT_EQ(result.outcome, RestoreOutcome::Restored);
    EXPECT_EQ(scene.memory.contents[kPath], kWanted);
    EXPECT_EQ(scene.memory.contents[result.kept.path], kPresent);
    EXPECT_EQ(scene.memory.contents[copy], kWanted) << "Restoring removes no copy";
    EXPECT_EQ(scene.memory.contents.size(), 3U);
}

TEST(RestoreCopyTest, TheContentThatTheFileHasIsNotWritten)
{
    LaunchScene scene;
    const Text copy = Arrange(scene);
    scene.memory.contents[kPath] = kWanted;
    scene.memory.readOnly = {kPath};
    scene.memory.pinned = {kPath};
    EXPECT_EQ(RestoreCopy(kPath, copy, {}, kNoon, scene.ports).outcome, RestoreOutcome::NotNeeded);
    EXPECT_EQ(scene.memory.contents.size(), 2U);
}

TEST(RestoreCopyTest, ADeletedFileComesBack)
{
    LaunchScene scene;
    const Text copy = Arrange(scene);
    scene.memory.contents.erase(kPath);
    EXPECT_EQ(RestoreCopy(kPath, copy, {}, kNoon, scene.ports).outcome, RestoreOutcome::Restored);
    EXPECT_EQ(scene.memory.contents[kPath], kWanted);
    EXPECT_EQ(scene.memory.contents.size(), 2U);
}

TEST(RestoreCopyTest, IsRefusedWhereASaveWouldWarn)
{
    LaunchScene scene;
    const Text copy = Arrange(scene);
    scene.memory.contents[kBackup] = "left";
    RestoreResult result = RestoreCopy(kPath, copy, {}, kNoon, scene.ports);
    EXPECT_EQ(result.outcome, RestoreOutcome::NotSaved);
    EXPECT_EQ(result.save.outcome, UnattendedOutcome::BackupInTheWay);
    EXPECT_EQ(result.save.backupPath, kBackup);
    EXPECT_EQ(scene.memory.contents[kBackup], "left");
    EXPECT_EQ(scene.memory.contents[kPath], kPresent);

    scene.memory.contents.erase(kBackup);
    scene.memory.pinned = {kPath};
    result = RestoreCopy(kPath, copy, {}, kNoon, scene.ports);
    EXPECT_EQ(result.save.outcome, UnattendedOutcome::NoBackup);
    EXPECT_EQ(result.save.systemText, test::kFaultText);
    EXPECT_EQ(scene.memory.contents[kPath], kPresent);
}

TEST(RestoreCopyTest, NothingIsWrittenUnlessThePresentContentIsKept)
{
    LaunchScene scene;
    const Text copy = Arrange(scene);
    const RestoreResult result = RestoreCopy(kPath, copy, {.folder = u"none"}, kNoon, scene.ports);
    EXPECT_EQ(result.outcome, RestoreOutcome::NotKept);
    EXPECT_EQ(result.kept.outcome, CopyOutcome::FolderUnreadable);
    EXPECT_EQ(scene.memory.contents[kPath], kPresent);

    scene.memory.unreadable = {kPath};
    EXPECT_EQ(RestoreCopy(kPath, copy, {}, kNoon, scene.ports).outcome, RestoreOutcome::FileUnreadable);
    EXPECT_EQ(RestoreCopy(kPath, u"none.copy", {}, kNoon, scene.ports).outcome,
              RestoreOutcome::CopyUnreadable);
    EXPECT_EQ(scene.memory.contents[kPath], kPresent);
}

TEST(RestoreCopyTest, EachFaultLosesNothing)
{
    Text copy;
    test::RunWithEachFault(
        [&](LaunchScene& scene) { copy = Arrange(scene); },
        [&](LaunchScene& scene) { return RestoreCopy(kPath, copy, {}, kNoon + 1h, scene.ports); },
        [](const LaunchScene& scene) {
            EXPECT_TRUE(scene.Has(kPresent));
            EXPECT_TRUE(scene.Has(kWanted));
        },
        [](LaunchScene& scene, const RestoreResult& result, bool faultless) {
            const bool restored = result.outcome == RestoreOutcome::Restored;
            EXPECT_TRUE(restored || !faultless);
            const bool underBackupName =
                !restored && result.save.save.oldContent == OldContent::UnderBackupName;
            const Text& present = underBackupName ? kBackup : kPath;
            EXPECT_EQ(scene.memory.contents[present], restored ? kWanted : kPresent);
        });
}

} // namespace
} // namespace ov

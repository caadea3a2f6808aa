// What a killed save leaves: recognised, and resolved with every operation failing in turn.

#include "config/core/save.h"
#include "inspect/core/save_preview.h"
#include "launch/core/interrupted_save.h"
#include "tests/core/launch_scene.h"

#include <gtest/gtest.h>

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
const Text kBackup = u"office.bak";
const std::string kHandWritten = "# mine\r\nA = 1\r\n_ORTHOVAL_LOGFILE = \"x\"\r\n";

// The file that a save makes of another one.
std::string SavedFrom(const std::string& content)
{
    return PreviewSave(InspectedFile(content, Charset::Windows1252), {}).bytes;
}

FileJudgement Judge(const std::string& file, const std::string& backup)
{
    return JudgeSavedFile(file, backup, Charset::Windows1252);
}

TEST(InterruptedSaveTest, ASavedFileIsComplete)
{
    const std::string saved = SavedFrom(kHandWritten);
    EXPECT_EQ(Judge(saved, kHandWritten).completeness, Completeness::Complete);
    EXPECT_EQ(Judge(saved, saved).completeness, Completeness::Complete);
    // The save may have added variables that the backup does not have.
    EXPECT_EQ(Judge(SavedFrom(kHandWritten + "zzz = 1\r\n"), saved).completeness, Completeness::Complete);
}

TEST(InterruptedSaveTest, TheBeginningOfASavedFileIsUnfinished)
{
    const std::string backup = "A = 1\r\n";
    const std::string saved = SavedFrom(backup);
    // Anywhere, at the end of a line, and below a variable, where a blank line follows.
    const std::string ends[] = {"", "\r\n", "\r\n\r\n"};
    std::mt19937 random(1);
    for (int sample = 0; sample < 60; ++sample) {
        const std::string& end = ends[sample % 3];
        std::size_t length = saved.find(end, random() % saved.size());
        if (length == std::string::npos)
            continue;
        length += std::min<std::size_t>(end.size(), 2);
        if (length == saved.size())
            continue;
        const FileJudgement judgement = Judge(saved.substr(0, length), backup);
        EXPECT_EQ(judgement.completeness, Completeness::Unfinished) << length << " of " << saved.size();
        EXPECT_NE(judgement.sign, UnfinishedSign::None);
    }
}

TEST(InterruptedSaveTest, EachSignIsNamed)
{
    const std::string saved = SavedFrom(kHandWritten);
    EXPECT_EQ(Judge("", saved).sign, UnfinishedSign::Empty);
    EXPECT_EQ(Judge(saved + "\0\0"s, saved).sign, UnfinishedSign::ZeroBytes);
    EXPECT_EQ(Judge(saved.substr(0, 20), saved).sign, UnfinishedSign::EndsInLine);
    EXPECT_EQ(Judge(saved.substr(0, saved.size() - 1), saved).sign, UnfinishedSign::EndsInLine);
    EXPECT_EQ(Judge(saved + "#\r\n", saved).sign, UnfinishedSign::EndsInComment);

    const std::string withTwoMore = saved + "zz1 = 1\r\nzz2 = 2\r\n";
    const FileJudgement judgement = Judge(saved, withTwoMore);
    EXPECT_EQ(judgement.sign, UnfinishedSign::LacksVariables);
    EXPECT_EQ(judgement.lacking, 2U);
}

TEST(InterruptedSaveTest, WhatSaveDidNotWriteIsNotJudged)
{
    const std::string saved = SavedFrom(kHandWritten);
    for (const std::string& file : {kHandWritten, "A = 1"s, "\xEF\xBB\xBF"s + saved, saved + "A = 1\r\n"}) {
        EXPECT_EQ(Judge(file, saved).completeness, Completeness::Unknown) << file.substr(0, 20);
        EXPECT_EQ(Judge(file, saved).sign, UnfinishedSign::None);
    }
    EXPECT_EQ(Judge("", "").completeness, Completeness::Unknown);
    // A list that became empty is not written.
    EXPECT_EQ(Judge(saved, saved + "zz = a\r\nzz > b\r\n").completeness, Completeness::Unknown);
}

TEST(InterruptedSaveTest, WithoutABackupNothingIsFound)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = kHandWritten;
    scene.memory.directories = {u"other.bak"};
    EXPECT_FALSE(ExamineInterruptedSave(kPath, Charset::OfProcess, scene.ports).found);
    EXPECT_FALSE(ExamineInterruptedSave(u"other.cfg", Charset::OfProcess, scene.ports).found);
    // A file that is its own backup, by name or by identity.
    scene.memory.contents[kBackup] = "x";
    EXPECT_FALSE(ExamineInterruptedSave(kBackup, Charset::OfProcess, scene.ports).found);
    scene.memory.contents.erase(kBackup);
    scene.memory.links[kBackup] = kPath;
    EXPECT_FALSE(ExamineInterruptedSave(kPath, Charset::OfProcess, scene.ports).found);
}

TEST(InterruptedSaveTest, AFileBesideTheFolderIsNoBackup)
{
    LaunchScene scene;
    scene.memory.contents[u"std.v2/office"] = kHandWritten;
    scene.memory.contents[u"std.bak"] = "x";
    EXPECT_FALSE(ExamineInterruptedSave(u"std.v2/office", Charset::OfProcess, scene.ports).found);
}

TEST(InterruptedSaveTest, BothFilesAreDescribed)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "";
    scene.memory.contents[kBackup] = kHandWritten;
    scene.folders.times = {{kPath, kNoon}, {kBackup, kNoon - 1h}};
    InterruptedSave save = ExamineInterruptedSave(kPath, Charset::OfProcess, scene.ports);
    ASSERT_TRUE(save.found);
    EXPECT_TRUE(save.IsFileBroken());
    EXPECT_EQ(save.file.path, kPath);
    EXPECT_EQ(save.file.size, 0U);
    EXPECT_EQ(save.file.changed, kNoon);
    EXPECT_EQ(save.backup.path, kBackup);
    EXPECT_EQ(save.backup.size, kHandWritten.size());
    EXPECT_EQ(save.backup.changed, kNoon - 1h);
    EXPECT_EQ(save.backup.judgement.completeness, Completeness::Complete);
    EXPECT_FALSE(save.sameContent);

    scene.memory.contents[kPath] = kHandWritten;
    save = ExamineInterruptedSave(kPath, Charset::OfProcess, scene.ports);
    EXPECT_TRUE(save.sameContent);
    EXPECT_FALSE(save.IsFileBroken());

    scene.memory.contents.erase(kPath);
    save = ExamineInterruptedSave(kPath, Charset::OfProcess, scene.ports);
    EXPECT_FALSE(save.file.exists);
    EXPECT_TRUE(save.IsFileBroken());
}

TEST(InterruptedSaveTest, ADamagedBackupIsNotCalledComplete)
{
    LaunchScene scene;
    const std::string saved = SavedFrom(kHandWritten);
    scene.memory.contents[kPath] = saved;
    for (const std::string& backup : {""s, "A\0B"s, saved.substr(0, saved.size() - 5)}) {
        scene.memory.contents[kBackup] = backup;
        const auto save = ExamineInterruptedSave(kPath, Charset::OfProcess, scene.ports);
        EXPECT_EQ(save.backup.judgement.completeness, Completeness::Unfinished) << backup.size();
    }
    scene.memory.unreadable = {kBackup};
    const auto save = ExamineInterruptedSave(kPath, Charset::OfProcess, scene.ports);
    EXPECT_FALSE(save.backup.readable);
    EXPECT_EQ(save.backup.judgement.completeness, Completeness::Unknown);
}

// Every state in which a save ends when its process is killed.
TEST(InterruptedSaveTest, EveryKilledSaveIsFoundAndTheBackupIsTheOldFile)
{
    const std::string saved = SavedFrom(kHandWritten);
    int found = 0;
    for (int step = 1; step < 100; ++step) {
        LaunchScene scene;
        scene.memory.contents[kPath] = kHandWritten;
        scene.steps.faults = {{step, test::StepFault::EndsWithin}};
        scene.steps.partOfWrite = saved.size() / 2;
        class NoPrompts final : public SavePrompts
        {
            bool MayReplace(ReplaceReason, const Text&) override { return false; }
            void TellNoBackup(const Text&) override {}
        } prompts;
        std::optional<KnownFile> known = KnownFile{kPath, kHandWritten};
        bool ended = false;
        try {
            ended = !SaveBytes(saved, kPath, known, scene.steps, prompts).Saved();
        } catch (const test::ProcessEnded&) {
            ended = true;
        }
        const auto save = ExamineInterruptedSave(kPath, Charset::OfProcess, {scene.memory, scene.folders});
        EXPECT_EQ(save.found, scene.memory.contents.contains(kBackup));
        const bool isNew = scene.memory.contents[kPath] == saved;
        if (save.found) {
            ++found;
            EXPECT_EQ(save.backup.judgement.completeness, Completeness::Complete) << step;
            EXPECT_EQ(save.IsFileBroken(), !isNew) << step;
        }
        if (!ended && scene.steps.steps < step)
            break;
    }
    EXPECT_GE(found, 4);
}

// The two ways of resolving, on every state of the file.
class ResolveTest : public testing::TestWithParam<std::optional<std::string>>
{
  protected:
    const std::string m_old = "A = old\r\n";

    void Arrange(LaunchScene& scene) const
    {
        if (GetParam())
            scene.memory.contents[kPath] = *GetParam();
        scene.memory.contents[kBackup] = m_old;
    }
    void ExpectNothingLost(const LaunchScene& scene) const
    {
        EXPECT_TRUE(scene.Has(m_old));
        EXPECT_TRUE(!GetParam() || scene.Has(*GetParam()));
    }
};

INSTANTIATE_TEST_SUITE_P(States, ResolveTest,
                         testing::Values(std::nullopt, std::optional("A = n"s), std::optional(""s),
                                         std::optional("A = new, complete\r\n"s)));

TEST_P(ResolveTest, EachFaultOfRestoringTheBackupLosesNothing)
{
    test::RunWithEachFault(
        [this](LaunchScene& scene) { Arrange(scene); },
        [](LaunchScene& scene) { return RestoreBackup(kPath, {}, kNoon, scene.ports); },
        [this](const LaunchScene& scene) { ExpectNothingLost(scene); },
        [this](LaunchScene& scene, const ResolveResult& result, bool faultless) {
            auto& contents = scene.memory.contents;
            if (result.outcome == ResolveOutcome::Resolved) {
                EXPECT_EQ(contents[kPath], m_old);
                EXPECT_FALSE(contents.contains(kBackup));
            } else {
                EXPECT_FALSE(faultless);
                EXPECT_EQ(contents[kBackup], m_old);
                EXPECT_TRUE(!GetParam() ||
                            contents[result.asidePath.empty() ? kPath : result.asidePath] == *GetParam());
            }
            if (faultless) {
                EXPECT_EQ(contents.size(), GetParam() ? 2U : 1U);
                EXPECT_EQ(result.kept.outcome, GetParam() ? CopyOutcome::Made : CopyOutcome::NoFile);
            }
        });
}

TEST_P(ResolveTest, EachFaultOfKeepingTheFileLosesNothing)
{
    test::RunWithEachFault([this](LaunchScene& scene) { Arrange(scene); },
                           [](LaunchScene& scene) { return KeepFile(kPath, {}, kNoon, scene.ports); },
                           [this](const LaunchScene& scene) { ExpectNothingLost(scene); },
                           [this](LaunchScene& scene, const ResolveResult& result, bool faultless) {
                               auto& contents = scene.memory.contents;
                               EXPECT_EQ(contents.contains(kPath), GetParam().has_value());
                               EXPECT_TRUE(!GetParam() || contents[kPath] == *GetParam());
                               if (result.outcome == ResolveOutcome::Resolved) {
                                   EXPECT_FALSE(contents.contains(kBackup));
                                   EXPECT_EQ(contents[result.kept.path], m_old);
                               }
                               EXPECT_TRUE(result.outcome == ResolveOutcome::Resolved || !faultless);
                           });
}

TEST(ResolveOnceTest, ContentThatChangedMeanwhileIsNotRemoved)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = n";
    scene.memory.contents[kBackup] = "A = old\r\n";
    scene.steps.afterEach = [&] {
        const Text aside = u"office (replaced).cfg";
        if (scene.memory.contents.contains(aside) && !scene.memory.contents.contains(kBackup))
            scene.memory.contents[aside] = "A = newer";
    };
    const ResolveResult result = RestoreBackup(kPath, {}, kNoon, scene.ports);
    EXPECT_EQ(result.outcome, ResolveOutcome::Resolved);
    EXPECT_EQ(result.asidePath, u"office (replaced).cfg");
    EXPECT_EQ(scene.memory.contents[result.asidePath], "A = newer");
    EXPECT_EQ(scene.memory.contents[kPath], "A = old\r\n");
}

TEST(ResolveOnceTest, TheFileGetsItsNameBackIfTheBackupCannotBeRenamed)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = n";
    scene.memory.contents[kBackup] = "A = old\r\n";
    scene.memory.pinned = {kBackup};
    const ResolveResult result = RestoreBackup(kPath, {}, kNoon, scene.ports);
    EXPECT_EQ(result.outcome, ResolveOutcome::RenameFailed);
    EXPECT_EQ(result.systemText, test::kFaultText);
    EXPECT_EQ(result.asidePath, u"");
    EXPECT_EQ(scene.memory.contents[kPath], "A = n");
}

TEST(ResolveOnceTest, WithoutABackupNothingHappens)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    EXPECT_EQ(RestoreBackup(kPath, {}, kNoon, scene.ports).outcome, ResolveOutcome::NoBackup);
    EXPECT_EQ(KeepFile(kPath, {}, kNoon, scene.ports).outcome, ResolveOutcome::NoBackup);
    EXPECT_EQ(scene.memory.contents.size(), 1U);
}

TEST(ResolveOnceTest, WithoutAPlaceForTheCopyNothingHappens)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    scene.memory.contents[kBackup] = "A = 2\r\n";
    const auto before = scene.memory.contents;
    EXPECT_EQ(RestoreBackup(kPath, {.folder = u"none"}, kNoon, scene.ports).outcome, ResolveOutcome::NotKept);
    EXPECT_EQ(KeepFile(kPath, {.folder = u"none"}, kNoon, scene.ports).outcome, ResolveOutcome::NotKept);
    EXPECT_EQ(scene.memory.contents, before);
}

} // namespace
} // namespace ov

// What an administrator should know before a file is opened.

#include "inspect/core/save_preview.h"
#include "launch/core/file_look.h"
#include "tests/core/launch_scene.h"

#include <gtest/gtest.h>

namespace ov
{
namespace
{

using test::LaunchScene;

const Text kPath = u"office.cfg";

// The settings of every look, with a day that no test depends on.
LookSettings Settings()
{
    return {.charset = Charset::Windows1252, .today = std::chrono::year(2026) / std::chrono::November / 22};
}

FileLook Look(LaunchScene& scene, const LookSettings& settings = Settings())
{
    return LookBeforeOpen(kPath, settings, scene.ports);
}

TEST(FileLookTest, EachProblemOfAPathIsNamed)
{
    LaunchScene scene;
    scene.memory.directories = {u"folder"};
    scene.memory.devices = {u"pipe"};
    scene.memory.contents[u"file"] = "";
    const auto problem = [&](const Text& path) { return CheckPath(path, scene.ports).problem; };
    EXPECT_EQ(problem(u""), PathProblem::NoPath);
    EXPECT_EQ(problem(u"file"), PathProblem::None);
    EXPECT_EQ(problem(u"other"), PathProblem::NoFile);
    EXPECT_EQ(problem(u"folder"), PathProblem::IsFolder);
    EXPECT_EQ(problem(u"pipe"), PathProblem::NotRegular);
    EXPECT_EQ(problem(u"none/file"), PathProblem::NoFolder);
}

TEST(FileLookTest, AFileThatCannotBeReadIsReportedWithTheReason)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    scene.memory.unreadable = {kPath};
    const FileLook look = Look(scene);
    EXPECT_EQ(look.file.problem, PathProblem::CannotRead);
    EXPECT_EQ(look.file.systemText, test::kFaultText);
}

TEST(FileLookTest, LossesAreCountedByRule)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n%include a.cfg\r\n%include b.cfg\r\nB > x\r\n";
    const FileLook look = Look(scene);
    ASSERT_EQ(look.file.problem, PathProblem::None);
    ASSERT_GE(look.losses.size(), 2U);
    EXPECT_EQ(look.losses[0].rule, RuleId::DirectiveLost);
    EXPECT_EQ(look.losses[0].count, 2U);
    EXPECT_EQ(look.losses[0].line, 2U);
    EXPECT_EQ(look.losses[1].rule, RuleId::InheritedList);
    EXPECT_EQ(look.losses[1].count, 1U);
    for (const Finding& finding : look.findings)
        EXPECT_TRUE(IsLoss(RuleOf(finding.rule)));
    EXPECT_TRUE(look.HasRemarks());
}

TEST(FileLookTest, TheDifferenceIsThatOfTheNextSaveInUtf8)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n%include \xFC.cfg\r\n";
    const FileLook look = Look(scene);
    EXPECT_TRUE(look.canSave);
    EXPECT_EQ(look.difference.substr(0, 30), "--- office.cfg\n+++ office.cfg\n");
    EXPECT_NE(look.difference.find("\n-%include \xC3\xBC.cfg\r\n"), std::string::npos);
}

TEST(FileLookTest, AFileAsSaveLeavesItHasNoRemarks)
{
    LaunchScene scene;
    std::string& content = scene.memory.contents[kPath];
    content = "_ORTHOVAL_CHECK_CELLS = 1\r\n";
    const FileLook first = Look(scene);
    EXPECT_TRUE(first.HasRemarks());
    InspectionSettings inspection;
    inspection.today = Settings().today;
    for (int save = 0; save < 2; ++save)
        content = PreviewSave(InspectedFile(content, Charset::Windows1252), inspection).bytes;
    const FileLook look = Look(scene);
    EXPECT_EQ(look.difference, "");
    EXPECT_TRUE(look.losses.empty());
    EXPECT_FALSE(look.HasRemarks());
    EXPECT_NE(first.state, look.state);
}

TEST(FileLookTest, AccessIsThatOfASave)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    EXPECT_EQ(Look(scene).access, SaveAccess::Full);
    scene.memory.readOnly = {kPath};
    EXPECT_EQ(Look(scene).access, SaveAccess::Full) << "A read-only file is replaced";
    EXPECT_TRUE(Look(scene).readOnly);
    scene.memory.pinned = {kPath};
    EXPECT_EQ(Look(scene).access, SaveAccess::None);
    EXPECT_EQ(Look(scene).accessText, test::kFaultText);
    scene.memory.readOnly.clear();
    EXPECT_EQ(Look(scene).access, SaveAccess::NoBackup);
    EXPECT_FALSE(Look(scene).readOnly);
}

TEST(FileLookTest, TheDefaultsFileCounts)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    EXPECT_EQ(Look(scene).defaults.problem, PathProblem::NoPath);
    LookSettings settings = Settings();
    settings.defaultsPath = u"defaults.cfg";
    EXPECT_EQ(Look(scene, settings).defaults.problem, PathProblem::NoFile);
    const std::string before = Look(scene, settings).difference;
    scene.memory.contents[u"defaults.cfg"] = "# of the defaults\r\nA = 2\r\n";
    const FileLook look = Look(scene, settings);
    EXPECT_EQ(look.defaults.problem, PathProblem::None);
    EXPECT_NE(look.difference.find("+# of the defaults"), std::string::npos);
}

TEST(FileLookTest, AnInterruptedSaveIsFoundEvenIfTheFileIsMissing)
{
    LaunchScene scene;
    scene.memory.contents[u"office.bak"] = "A = 1\r\n";
    const FileLook look = Look(scene);
    EXPECT_EQ(look.file.problem, PathProblem::NoFile);
    EXPECT_TRUE(look.interrupted.IsFileBroken());
    EXPECT_TRUE(look.HasRemarks());
}

TEST(FileLookTest, TheStateChangesWithEverythingThatIsReported)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    std::vector<Text> states{Look(scene).state};
    EXPECT_EQ(Look(scene).state, states[0]);
    const auto change = [&](const char* what) {
        const Text state = Look(scene).state;
        EXPECT_EQ(std::ranges::count(states, state), 0) << what;
        states.push_back(state);
    };
    scene.memory.contents[kPath] = "A = 2\r\n";
    change("the content");
    scene.memory.contents[u"office.bak"] = "A = 2\r\n";
    change("a backup");
    scene.folders.times[u"office.bak"] += std::chrono::seconds(1);
    change("the backup's time");
    scene.memory.readOnly = {kPath};
    change("read-only");
    scene.memory.pinned = {kPath};
    change("locked");
    LookSettings settings = Settings();
    settings.defaultsPath = u"defaults.cfg";
    scene.memory.contents[u"defaults.cfg"] = "";
    EXPECT_EQ(Look(scene, settings).state, states.back()) << "Empty defaults lead to the same losses";
}

TEST(FileLookTest, ChangesNothing)
{
    LaunchScene scene;
    scene.memory.contents[kPath] = "A = 1\r\n";
    scene.memory.contents[u"office.bak"] = "A = 2\r\n";
    const auto before = scene.memory.contents;
    scene.steps.afterEach = [&] { EXPECT_EQ(scene.memory.contents, before); };
    Look(scene);
    EXPECT_EQ(scene.memory.openFiles, 0);
}

} // namespace
} // namespace ov

#include "config/core/config_reader.h"
#include "config/core/config_writer.h"
#include "config/core/save.h"
#include "tests/core/forwarding_port.h"
#include "tests/core/memory_file_port.h"
#include "tests/core/scoped_locale.h"
#include "tests/core/test_prompts.h"
#include "tests/core/test_surroundings.h"
#include "tests/save/step_file_port.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace ov
{
namespace
{

const Text kPath = u"dir/office.cfg";
const Text kBackup = u"dir/office.bak";
const std::string kOld = "OLD = content\r\n";

class SaveConfig : public testing::Test
{
  protected:
    SaveConfig() { m_store.SetSetting(u"A", u"1", SettingKindInteger, u"", kCurrentTable); }

    // Saves as after reading the file at the path.
    SaveResult Save(const Text& path = kPath)
    {
        m_known.reset();
        const auto link = m_files.links.find(path);
        const auto found = m_files.contents.find(link == m_files.links.end() ? path : link->second);
        if (found != m_files.contents.end())
            m_known = KnownFile{path, found->second};
        return SaveKnowing(path);
    }

    SaveResult SaveKnowing(const Text& path = kPath)
    {
        return SaveConfigFile(m_store, path, m_known, m_files, m_surroundings, m_prompts);
    }

    // The bytes that a successful save writes.
    std::string NewContent() const
    {
        std::string bytes;
        EXPECT_TRUE(WriteConfig(m_store, test::TestSurroundings::Header(), bytes));
        return bytes;
    }

    const test::ScopedLocale m_locale{"C"};
    SettingStore m_store;
    test::MemoryFilePort m_files;
    test::TestSurroundings m_surroundings;
    test::TestPrompts m_prompts;
    std::optional<KnownFile> m_known;
};

TEST_F(SaveConfig, ExistingFileLeavesNoBackupBehind)
{
    m_files.contents[kPath] = kOld;
    const SaveResult result = Save();
    EXPECT_TRUE(result.Saved());
    EXPECT_EQ(result.header, test::TestSurroundings::Header());
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, NewContent()}}));
    EXPECT_TRUE(m_prompts.notices.empty());
    EXPECT_EQ(m_files.openFiles, 0);
    EXPECT_FALSE(m_files.unflushed);
}

TEST_F(SaveConfig, NewFileInvolvesNoBackup)
{
    m_files.contents[kBackup] = "someone else's";
    EXPECT_TRUE(Save().Saved());
    EXPECT_EQ(m_files.contents[kPath], NewContent());
    EXPECT_EQ(m_files.contents[kBackup], "someone else's");
    EXPECT_TRUE(m_prompts.notices.empty());
}

TEST_F(SaveConfig, StaleBackupIsToldAndDeletedAfterTheWrite)
{
    m_files.contents[kPath] = kOld;
    m_files.contents[kBackup] = "stale";
    EXPECT_TRUE(Save().Saved());
    EXPECT_EQ(m_prompts.notices, std::vector<Text>{Text(test::kFaultText)});
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, NewContent()}}));
}

TEST_F(SaveConfig, StaleBackupIsToldBeforeTheFileIsTouched)
{
    m_files.contents[kPath] = kOld;
    m_files.contents[kBackup] = "stale";
    std::string atNotice;
    m_prompts.onNotice = [&] { atNotice = m_files.contents[kPath]; };
    Save();
    EXPECT_EQ(atNotice, kOld);
}

TEST_F(SaveConfig, OldContentIsReadOnlyOnceTheNoticeHasBeenAnswered)
{
    m_files.contents[kPath] = kOld;
    m_files.contents[kBackup] = "stale";
    // link, kind, compare, same file, rename, kind, read, copy (kind, create, write, flush, close), create,
    // reserve, write
    m_files.failing = {21};
    m_prompts.onNotice = [&] { m_files.contents[kPath] = "changed meanwhile"; };
    EXPECT_EQ(Save().outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(m_files.contents,
              (std::map<Text, std::string>{{kPath, "changed meanwhile"}, {kBackup, "stale"}}));
}

TEST_F(SaveConfig, FailingNoticeComesOutBeforeAnythingIsTouched)
{
    m_files.contents[kPath] = kOld;
    m_files.contents[kBackup] = "stale";
    m_prompts.onNotice = [] { throw std::runtime_error("No box"); };
    EXPECT_THROW(Save(), std::runtime_error);
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, kOld}, {kBackup, "stale"}}));
}

TEST_F(SaveConfig, FileOfUnknownKindIsSavedBehindABackup)
{
    m_files.contents[kPath] = kOld;
    m_files.failing = {2, 11}; // link, kind, compare, same file, rename, create, write, flush
    EXPECT_EQ(Save().outcome, SaveOutcome::FlushFailed);
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, kOld}}));
    m_files.calls = 0;
    m_files.failing = {2};
    EXPECT_TRUE(Save().Saved());
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, NewContent()}}));
    EXPECT_TRUE(m_prompts.notices.empty());
}

TEST_F(SaveConfig, AbsentFileOfUnknownKindIsCreatedAndNoOtherBackupDeleted)
{
    m_files.contents[kBackup] = "someone else's";
    m_files.failing = {2};
    EXPECT_TRUE(Save().Saved());
    EXPECT_EQ(m_files.contents,
              (std::map<Text, std::string>{{kPath, NewContent()}, {kBackup, "someone else's"}}));
}

TEST_F(SaveConfig, LinkIsWrittenThroughBehindABackupBesideItsTarget)
{
    m_files.links[kPath] = u"share/common.cfg";
    m_files.contents[u"share/common.cfg"] = kOld;
    // link, kind, compare, same file, rename, create, write, close, remove, read, rename
    m_files.failing = {10, 12, 17};
    const SaveResult result = Save();
    EXPECT_EQ(result.oldContent, OldContent::UnderBackupName);
    EXPECT_EQ(result.backupPath, u"share/common.bak");
    EXPECT_EQ(m_files.contents[u"share/common.bak"], kOld);
    m_files = {};
    m_files.links[kPath] = u"share/common.cfg";
    m_files.contents[u"share/common.cfg"] = kOld;
    EXPECT_TRUE(Save().Saved());
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{u"share/common.cfg", NewContent()}}));
}

TEST_F(SaveConfig, FileThatWasNotReadIsReplacedOnlyAfterAQuestionAndKept)
{
    m_files.contents[kPath] = kOld;
    m_prompts.onQuestion = [this] { EXPECT_EQ(m_files.contents[kPath], kOld); };
    EXPECT_TRUE(SaveKnowing().Saved());
    const test::ReplaceQuestion question{ReplaceReason::NotRead, u"dir/office (replaced).cfg"};
    EXPECT_EQ(m_prompts.questions, std::vector{question});
    EXPECT_EQ(m_files.contents,
              (std::map<Text, std::string>{{kPath, NewContent()}, {question.keptPath, kOld}}));
}

TEST_F(SaveConfig, FileThatWasReadUnderAnotherPathWasNotRead)
{
    m_files.contents[kPath] = kOld;
    m_known = KnownFile{u"dir/other.cfg", kOld};
    m_prompts.answer = false;
    EXPECT_EQ(SaveKnowing().outcome, SaveOutcome::Declined);
    ASSERT_EQ(m_prompts.questions.size(), 1u);
    EXPECT_EQ(m_prompts.questions[0].reason, ReplaceReason::NotRead);
    EXPECT_EQ(m_known->path, u"dir/other.cfg");
}

TEST_F(SaveConfig, FileThatDiffersFromWhatWasReadIsReplacedOnlyAfterAQuestion)
{
    for (const std::string& onDisk : {std::string("OLD = Content\r\n"), kOld + "#", std::string()}) {
        m_files = {};
        m_prompts = {};
        m_files.contents[kPath] = onDisk;
        m_known = KnownFile{kPath, kOld};
        EXPECT_TRUE(SaveKnowing().Saved());
        ASSERT_EQ(m_prompts.questions.size(), 1u);
        EXPECT_EQ(m_prompts.questions[0].reason, ReplaceReason::Changed);
        EXPECT_EQ(m_files.contents[m_prompts.questions[0].keptPath], onDisk);
    }
}

TEST_F(SaveConfig, DecliningTouchesNothingAndTheNextSaveAsksAgain)
{
    m_files.contents[kPath] = kOld;
    m_prompts.answer = false;
    for (std::size_t saves = 1; saves <= 2; ++saves) {
        const SaveResult result = SaveKnowing();
        EXPECT_EQ(result.outcome, SaveOutcome::Declined);
        EXPECT_EQ(result.oldContent, OldContent::Stands);
        EXPECT_EQ(m_prompts.questions.size(), saves);
        EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, kOld}}));
    }
}

TEST_F(SaveConfig, EmptyFileThatWasReadIsReplacedWithoutAQuestion)
{
    m_files.contents[kPath] = "";
    ASSERT_EQ(ReadConfigFile(m_store, kCurrentTable, kPath, m_files, &m_known).outcome, ReadOutcome::Read);
    EXPECT_TRUE(SaveKnowing().Saved());
    EXPECT_TRUE(m_prompts.questions.empty());
}

TEST_F(SaveConfig, FileThatWasDeletedIsSavedAsANewOne)
{
    m_known = KnownFile{kPath, kOld};
    EXPECT_TRUE(SaveKnowing().Saved());
    EXPECT_TRUE(m_prompts.questions.empty());
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, NewContent()}}));
}

TEST_F(SaveConfig, FileThatIsDeletedWithinTheSaveIsSavedAsANewOne)
{
    m_files.contents[kPath] = kOld;
    m_prompts.onQuestion = [this] { m_files.contents.erase(kPath); };
    EXPECT_TRUE(SaveKnowing().Saved());
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, NewContent()}}));
}

TEST_F(SaveConfig, SecondSaveComparesWithWhatTheFirstWrote)
{
    m_files.contents[kPath] = kOld;
    m_known = KnownFile{kPath, kOld};
    EXPECT_TRUE(SaveKnowing().Saved());
    EXPECT_TRUE(SaveKnowing().Saved());
    EXPECT_TRUE(m_prompts.questions.empty());
    m_files.contents[kPath] = kOld;
    EXPECT_TRUE(SaveKnowing().Saved());
    ASSERT_EQ(m_prompts.questions.size(), 1u);
    EXPECT_EQ(m_prompts.questions[0].reason, ReplaceReason::Changed);
}

TEST_F(SaveConfig, SaveAfterAFailedOneAsksNothingAboutWhatThatRestoredOrLeft)
{
    // link, kind, compare, same file, rename, create, write, close, remove
    for (const std::set<int>& failing : {std::set{10}, std::set{10, 12}}) {
        m_files = {};
        m_files.contents[kPath] = kOld;
        m_files.failing = failing;
        m_known = KnownFile{kPath, kOld};
        EXPECT_EQ(SaveKnowing().outcome, SaveOutcome::WriteFailed);
        m_files.failing.clear();
        m_files.contents.erase(kBackup);
        EXPECT_TRUE(SaveKnowing().Saved());
        EXPECT_EQ(m_files.contents[kPath], NewContent());
        EXPECT_TRUE(m_prompts.questions.empty());
    }
}

TEST_F(SaveConfig, ChangeBetweenTheComparisonAndTheRenameIsKeptAndTold)
{
    // Changes the file when the save asks whether it is its own backup.
    class ChangingPort final : public test::ForwardingPort
    {
      public:
        using ForwardingPort::ForwardingPort;
        std::function<void()> change;
        bool IsSameFile(const Text& first, const Text& second) override
        {
            change();
            return ForwardingPort::IsSameFile(first, second);
        }
    };
    m_files.contents[kPath] = kOld;
    m_known = KnownFile{kPath, kOld};
    ChangingPort port(m_files);
    port.change = [this] { m_files.contents[kPath] = "changed meanwhile"; };
    const SaveResult result = SaveConfigFile(m_store, kPath, m_known, port, m_surroundings, m_prompts);
    EXPECT_TRUE(result.Saved());
    EXPECT_EQ(result.keptPath, u"dir/office (replaced).cfg");
    EXPECT_EQ(m_files.contents,
              (std::map<Text, std::string>{{kPath, NewContent()}, {result.keptPath, "changed meanwhile"}}));
}

TEST_F(SaveConfig, FileThatCannotBeKeptIsNotReplaced)
{
    m_files.contents[kPath] = kOld;
    m_files.pinned = {kPath};
    m_files.unreadable = {kPath};
    const SaveResult result = SaveKnowing();
    EXPECT_EQ(result.outcome, SaveOutcome::KeepFailed);
    EXPECT_EQ(result.systemText, test::kFaultText);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_TRUE(m_prompts.notices.empty());
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, kOld}}));
}

TEST_F(SaveConfig, RenameThatWasDoneAndReportedAFailureIsFoundAndUndone)
{
    m_files.contents[kPath] = kOld;
    m_known = KnownFile{kPath, kOld};
    test::StepFilePort port(m_files);
    // link, kind, compare, same file, rename, kind, kind, compare, create
    port.faults = {{8, test::StepFault::FailsDone}, {15, test::StepFault::Fails}};
    const SaveResult result = SaveConfigFile(m_store, kPath, m_known, port, m_surroundings, m_prompts);
    EXPECT_EQ(result.outcome, SaveOutcome::CreateFailed);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, kOld}}));
    EXPECT_TRUE(m_prompts.notices.empty());
}

TEST_F(SaveConfig, EmptyPathIsRefused)
{
    const SaveResult result = Save(u"");
    EXPECT_EQ(result.outcome, SaveOutcome::NoPath);
    EXPECT_EQ(m_files.calls, 0);
}

TEST_F(SaveConfig, DirectoryIsRefusedBeforeAnythingIsRenamed)
{
    m_files.directories.insert(kPath);
    const SaveResult result = Save();
    EXPECT_EQ(result.outcome, SaveOutcome::PathIsDirectory);
    EXPECT_EQ(m_files.calls, 2);
}

TEST_F(SaveConfig, DeviceIsRefusedBeforeAnythingIsRenamed)
{
    m_files.devices.insert(kPath);
    EXPECT_EQ(Save().outcome, SaveOutcome::PathIsNoFile);
    EXPECT_EQ(m_files.calls, 2);
}

TEST_F(SaveConfig, NameThatOnlyNearlyEndsLikeABackupHasABackup)
{
    for (const char16_t* name : {u"office.bak.", u"office.bak ", u"office.bakx", u"officebak"}) {
        m_files = {};
        m_files.contents[name] = kOld;
        m_files.failing = {10, 12}; // link, kind, compare, same file, rename, create, write, close, remove
        EXPECT_EQ(Save(name).oldContent, OldContent::UnderBackupName);
        EXPECT_EQ(m_files.contents[BackupPath(name)], kOld);
    }
}

TEST_F(SaveConfig, WithoutABackupNothingIsWrittenWhereThereIsNoRoom)
{
    m_files.contents[kPath] = kOld;
    m_files.contents[kBackup] = "stale";
    m_files.capacity = 100;
    // There is no copy of the old content.
    m_files.failing = {10, 11}; // link, kind, compare, same file, rename, kind, open, open
    const SaveResult result = Save();
    EXPECT_EQ(result.outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, kOld}, {kBackup, "stale"}}));
}

TEST_F(SaveConfig, FileThatCanNeitherBeRenamedNorReadIsLostWithTheWrite)
{
    m_files.contents[kPath] = kOld;
    m_files.contents[kBackup] = "stale";
    // link, kind, compare, same file, rename, kind, open, open, create, reserve, write
    m_files.failing = {10, 11, 14};
    const SaveResult result = Save();
    EXPECT_EQ(result.outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(result.oldContent, OldContent::Lost);
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kBackup, "stale"}}));
}

TEST_F(SaveConfig, EveryByteButALineEndSurvivesReadingAndSaving)
{
    std::string value;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\n' && byte != '\r' && byte != '"' && byte != ';')
            value += static_cast<char>(byte);
    }
    value += '\0';
    m_files.contents[kPath] = "NAME = x" + value + "x\r\n";
    ASSERT_EQ(ReadConfigFile(m_store, kCurrentTable, kPath, m_files).outcome, ReadOutcome::Read);
    ASSERT_TRUE(Save().Saved());
    EXPECT_TRUE(m_files.contents[kPath].ends_with("NAME = \"x" + value + "x\"\r\n"));
}

TEST_F(SaveConfig, FileThatCannotBeCreatedFailsSilentlyAndTheOldOneComesBack)
{
    m_files.contents[kPath] = kOld;
    m_files.failing = {9}; // link, kind, compare, same file, rename, create
    const SaveResult result = Save();
    EXPECT_EQ(result.outcome, SaveOutcome::CreateFailed);
    EXPECT_EQ(result.systemText, test::kFaultText);
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, kOld}}));
    EXPECT_TRUE(m_prompts.notices.empty());
}

TEST_F(SaveConfig, FailedWriteFlushAndCloseAreToldAndTheOldFileComesBack)
{
    const SaveOutcome outcomes[] = {SaveOutcome::WriteFailed, SaveOutcome::FlushFailed,
                                    SaveOutcome::CloseFailed};
    int call = 10; // link, kind, compare, same file, rename, create, write, flush, close
    for (const SaveOutcome outcome : outcomes) {
        m_files = {};
        m_files.contents[kPath] = kOld;
        m_files.failing = {call++};
        const SaveResult result = Save();
        EXPECT_EQ(result.outcome, outcome);
        EXPECT_EQ(result.oldContent, OldContent::Stands);
        EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, kOld}}));
        EXPECT_EQ(m_files.openFiles, 0);
        EXPECT_EQ(result.systemText, test::kFaultText);
    }
}

TEST_F(SaveConfig, FailedWriteOfANewFileLeavesNoFile)
{
    m_files.failing = {4}; // link, kind, create, write
    const SaveResult result = Save();
    EXPECT_EQ(result.outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(result.oldContent, OldContent::NoneBefore);
    EXPECT_TRUE(m_files.contents.empty());
}

TEST_F(SaveConfig, WithoutABackupTheOldContentIsPutBack)
{
    m_files.contents[kPath] = kOld;
    m_files.contents[kBackup] = "stale";
    // link, kind, compare, same file, rename, kind, read, create, reserve, write
    m_files.failing = {16};
    const SaveResult result = Save();
    EXPECT_EQ(result.outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_EQ(m_files.contents[kPath], kOld);
    EXPECT_EQ(m_files.contents[kBackup], "stale");
    EXPECT_FALSE(m_files.unflushed);
}

TEST_F(SaveConfig, CharacterThatTheLocaleCannotWriteTouchesNothing)
{
    m_files.contents[kPath] = kOld;
    m_store.SetSetting(u"B", u"\u20AC", SettingKindText, u"", kCurrentTable);
    const SaveResult result = Save();
    EXPECT_EQ(result.outcome, SaveOutcome::CharacterRefused);
    EXPECT_EQ(result.variable, u"B");
    EXPECT_EQ(result.character, u"\u20AC");
    EXPECT_EQ(m_files.calls, 2);
    EXPECT_EQ(m_files.contents[kPath], kOld);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
}

TEST_F(SaveConfig, FailingClockComesOutBeforeAnythingIsTouched)
{
    m_files.contents[kPath] = kOld;
    m_surroundings.clockFails = true;
    EXPECT_THROW(Save(), std::invalid_argument);
    EXPECT_EQ(m_files.calls, 2);
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, kOld}}));
}

TEST_F(SaveConfig, FileNamedLikeABackupIsWrittenWithoutOneAndKept)
{
    for (const char16_t* name : {u"office.bak", u"office.BAK", u"office.Bak", u".bak"}) {
        m_files = {};
        m_files.contents[name] = kOld;
        EXPECT_TRUE(Save(name).Saved());
        EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{name, NewContent()}}));
        EXPECT_TRUE(m_prompts.notices.empty());
    }
}

TEST_F(SaveConfig, FileNamedLikeABackupIsPutBackWhenTheWriteFails)
{
    m_files.contents[u"office.bak"] = kOld;
    m_files.failing = {13}; // link, kind, compare, read, create, reserve, write
    EXPECT_EQ(Save(u"office.bak").outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{u"office.bak", kOld}}));
}

TEST_F(SaveConfig, ShortNameHasABackupLikeAnyOther)
{
    m_files.contents[u"a"] = kOld;
    const SaveResult result = Save(u"a");
    EXPECT_TRUE(result.Saved());
    EXPECT_EQ(result.backupPath, u".bak");
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{u"a", NewContent()}}));
}

TEST_F(SaveConfig, BackupPathReplacesWhatFollowsTheLastDot)
{
    EXPECT_EQ(BackupPath(u"C:\\a\\office.cfg"), u"C:\\a\\office.bak");
    EXPECT_EQ(BackupPath(u"office.old.cfg"), u"office.old.bak");
    EXPECT_EQ(BackupPath(u"office."), u"office.bak");
    EXPECT_EQ(BackupPath(u"office"), u".bak");
    EXPECT_EQ(BackupPath(u"C:\\a.b\\office"), u"C:\\a.bak");
}

TEST_F(SaveConfig, SystemTextInTheNoticeIsAtMost255Characters)
{
    class WordyPort final : public test::ForwardingPort
    {
      public:
        using ForwardingPort::ForwardingPort;
        FileResult Rename(const Text&, const Text&) override { return {false, Text(300, u'x')}; }
    };
    m_files.contents[kPath] = kOld;
    WordyPort wordy(m_files);
    m_known = KnownFile{kPath, kOld};
    EXPECT_TRUE(SaveConfigFile(m_store, kPath, m_known, wordy, m_surroundings, m_prompts).Saved());
    EXPECT_EQ(m_prompts.notices, std::vector<Text>{Text(255, u'x')});
}

TEST_F(SaveConfig, SavedFileReadsBackToTheSameTable)
{
    m_store.SetSetting(u"LIST", u"a;b;c", SettingKindText, u"\n#\n# A list.\n#\n", kCurrentTable);
    m_store.SetSetting(u"TEXT", u"some text", SettingKindText, u"", kCurrentTable);
    ASSERT_TRUE(Save().Saved());
    SettingStore readBack;
    ASSERT_EQ(ReadConfigFile(readBack, kCurrentTable, kPath, m_files).outcome, ReadOutcome::Read);
    EXPECT_EQ(readBack.Count(kCurrentTable), 3u);
    EXPECT_EQ(readBack.GetSettingValue(u"A", kCurrentTable), u"1");
    EXPECT_EQ(readBack.GetSettingValue(u"LIST", kCurrentTable), u"a;b;c");
    EXPECT_EQ(readBack.FindSetting(u"LIST", kCurrentTable)->comment, u"\n#\n# A list.\n#\n");
    EXPECT_EQ(readBack.GetSettingValue(u"TEXT", kCurrentTable), u"some text");
}

} // namespace
} // namespace ov

#include "config/core/save.h"

#include "config/core/config_reader.h"
#include "config/core/config_writer.h"
#include "tests/core/memory_file_port.h"
#include "tests/core/scoped_locale.h"
#include "tests/core/test_surroundings.h"

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

    SaveResult Save(const Text& path = kPath)
    {
        return SaveConfigFile(m_store, path, m_files, m_surroundings,
                              [this](const Text& message) { m_notices.push_back(message); });
    }

    // What a successful save writes.
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
    std::vector<Text> m_notices;
};

TEST_F(SaveConfig, ExistingFileLeavesNoBackupBehind)
{
    m_files.contents[kPath] = kOld;
    const SaveResult result = Save();
    EXPECT_TRUE(result.Saved());
    EXPECT_EQ(result.header, test::TestSurroundings::Header());
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, NewContent()}}));
    EXPECT_TRUE(m_notices.empty());
    EXPECT_EQ(m_files.openFiles, 0);
    EXPECT_FALSE(m_files.unflushed);
}

TEST_F(SaveConfig, NewFileInvolvesNoBackup)
{
    m_files.contents[kBackup] = "someone else's";
    EXPECT_TRUE(Save().Saved());
    EXPECT_EQ(m_files.contents[kPath], NewContent());
    EXPECT_EQ(m_files.contents[kBackup], "someone else's");
    EXPECT_TRUE(m_notices.empty());
}

TEST_F(SaveConfig, StaleBackupIsToldAndDeletedAfterTheWrite)
{
    m_files.contents[kPath] = kOld;
    m_files.contents[kBackup] = "stale";
    EXPECT_TRUE(Save().Saved());
    EXPECT_EQ(m_notices, std::vector<Text>{Text(test::kFaultText)});
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, NewContent()}}));
}

TEST_F(SaveConfig, StaleBackupIsToldBeforeTheFileIsTouched)
{
    m_files.contents[kPath] = kOld;
    m_files.contents[kBackup] = "stale";
    std::string atNotice;
    SaveConfigFile(m_store, kPath, m_files, m_surroundings,
                   [&](const Text&) { atNotice = m_files.contents[kPath]; });
    EXPECT_EQ(atNotice, kOld);
}

TEST_F(SaveConfig, OldContentIsReadOnlyOnceTheNoticeHasBeenAnswered)
{
    m_files.contents[kPath] = kOld;
    m_files.contents[kBackup] = "stale";
    m_files.failing = {11}; // link, kind, same file, rename, open, read, read, close, create, reserve, write
    const SaveResult result = SaveConfigFile(m_store, kPath, m_files, m_surroundings, [&](const Text&) {
        m_files.contents[kPath] = "changed meanwhile";
    });
    EXPECT_EQ(result.outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(m_files.contents[kPath], "changed meanwhile");
}

TEST_F(SaveConfig, FailingNoticeComesOutBeforeAnythingIsTouched)
{
    m_files.contents[kPath] = kOld;
    m_files.contents[kBackup] = "stale";
    EXPECT_THROW(SaveConfigFile(m_store, kPath, m_files, m_surroundings,
                                [](const Text&) { throw std::runtime_error("No box"); }),
                 std::runtime_error);
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, kOld}, {kBackup, "stale"}}));
}

TEST_F(SaveConfig, FileOfUnknownKindIsSavedBehindABackup)
{
    m_files.contents[kPath] = kOld;
    m_files.failing = {2, 7}; // link, kind, same file, rename, create, write, flush
    EXPECT_EQ(Save().outcome, SaveOutcome::FlushFailed);
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, kOld}}));
    m_files.calls = 0;
    m_files.failing = {2};
    EXPECT_TRUE(Save().Saved());
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, NewContent()}}));
    EXPECT_TRUE(m_notices.empty());
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
    m_files.failing = {6, 8, 9}; // link, kind, same file, rename, create, write, close, remove, rename
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
        m_files.failing = {6, 8}; // link, kind, same file, rename, create, write, close, remove
        EXPECT_EQ(Save(name).oldContent, OldContent::UnderBackupName);
        EXPECT_EQ(m_files.contents[BackupPath(name)], kOld);
    }
}

TEST_F(SaveConfig, WithoutABackupNothingIsWrittenWhereThereIsNoRoom)
{
    m_files.contents[kPath] = kOld;
    m_files.contents[kBackup] = "stale";
    m_files.capacity = 100;
    // Of the old content there is no copy.
    m_files.failing = {5, 6}; // link, kind, same file, rename, open, open
    const SaveResult result = Save();
    EXPECT_EQ(result.outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, kOld}, {kBackup, "stale"}}));
}

TEST_F(SaveConfig, FileThatCanNeitherBeRenamedNorReadIsLostWithTheWrite)
{
    m_files.contents[kPath] = kOld;
    m_files.contents[kBackup] = "stale";
    m_files.failing = {5, 6, 9}; // link, kind, same file, rename, open, open, create, reserve, write
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
    m_files.failing = {5}; // link, kind, same file, rename, create
    const SaveResult result = Save();
    EXPECT_EQ(result.outcome, SaveOutcome::CreateFailed);
    EXPECT_EQ(result.systemText, test::kFaultText);
    EXPECT_EQ(m_files.contents, (std::map<Text, std::string>{{kPath, kOld}}));
    EXPECT_TRUE(m_notices.empty());
}

TEST_F(SaveConfig, FailedWriteFlushAndCloseAreToldAndTheOldFileComesBack)
{
    const SaveOutcome outcomes[] = {SaveOutcome::WriteFailed, SaveOutcome::FlushFailed,
                                    SaveOutcome::CloseFailed};
    int call = 6;
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
    m_files.failing = {11}; // link, kind, same file, rename, open, read, read, close, create, reserve, write
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
        EXPECT_TRUE(m_notices.empty());
    }
}

TEST_F(SaveConfig, FileNamedLikeABackupIsPutBackWhenTheWriteFails)
{
    m_files.contents[u"office.bak"] = kOld;
    m_files.failing = {9}; // link, kind, open, read, read, close, create, reserve, write
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
    class WordyPort final : public FilePort
    {
      public:
        explicit WordyPort(FilePort& files) : m_files(files) {}
        FileKind Kind(const Text& path) override { return m_files.Kind(path); }
        Text LinkTarget(const Text& path) override { return m_files.LinkTarget(path); }
        bool IsSameFile(const Text& a, const Text& b) override { return m_files.IsSameFile(a, b); }
        FileResult OpenForReading(const Text& p, FileHandle& f) override
        {
            return m_files.OpenForReading(p, f);
        }
        FileResult Read(FileHandle f, std::span<char> b, std::size_t& n) override
        {
            return m_files.Read(f, b, n);
        }
        FileResult Create(const Text& p, CreateMode m, FileHandle& f) override
        {
            return m_files.Create(p, m, f);
        }
        FileResult Reserve(FileHandle f, std::size_t n) override { return m_files.Reserve(f, n); }
        FileResult Write(FileHandle f, std::string_view b) override { return m_files.Write(f, b); }
        FileResult Flush(FileHandle f) override { return m_files.Flush(f); }
        FileResult Close(FileHandle f) override { return m_files.Close(f); }
        FileResult Rename(const Text&, const Text&) override { return {false, Text(300, u'x')}; }
        FileResult Remove(const Text& p) override { return m_files.Remove(p); }

      private:
        FilePort& m_files;
    };
    m_files.contents[kPath] = kOld;
    WordyPort wordy(m_files);
    Text told;
    EXPECT_TRUE(
        SaveConfigFile(m_store, kPath, wordy, m_surroundings, [&told](const Text& m) { told = m; }).Saved());
    EXPECT_EQ(told, Text(255, u'x'));
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

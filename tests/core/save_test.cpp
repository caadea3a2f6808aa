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
    SaveConfig() { store_.SetSetting(u"A", u"1", SettingKindInteger, u"", kCurrentTable); }

    SaveResult Save(const Text& path = kPath)
    {
        return SaveConfigFile(store_, path, files_, surroundings_,
                              [this](const Text& message) { notices_.push_back(message); });
    }

    // What a successful save writes.
    std::string NewContent() const
    {
        std::string bytes;
        EXPECT_TRUE(WriteConfig(store_, test::TestSurroundings::Header(), bytes));
        return bytes;
    }

    const test::ScopedLocale locale_{"C"};
    SettingStore store_;
    test::MemoryFilePort files_;
    test::TestSurroundings surroundings_;
    std::vector<Text> notices_;
};

TEST_F(SaveConfig, ExistingFileLeavesNoBackupBehind)
{
    files_.contents[kPath] = kOld;
    const SaveResult result = Save();
    EXPECT_TRUE(result.Saved());
    EXPECT_EQ(result.header, test::TestSurroundings::Header());
    EXPECT_EQ(files_.contents, (std::map<Text, std::string>{{kPath, NewContent()}}));
    EXPECT_TRUE(notices_.empty());
    EXPECT_EQ(files_.openFiles, 0);
    EXPECT_FALSE(files_.unflushed);
}

TEST_F(SaveConfig, NewFileInvolvesNoBackup)
{
    files_.contents[kBackup] = "someone else's";
    EXPECT_TRUE(Save().Saved());
    EXPECT_EQ(files_.contents[kPath], NewContent());
    EXPECT_EQ(files_.contents[kBackup], "someone else's");
    EXPECT_TRUE(notices_.empty());
}

TEST_F(SaveConfig, StaleBackupIsToldAndDeletedAfterTheWrite)
{
    files_.contents[kPath] = kOld;
    files_.contents[kBackup] = "stale";
    EXPECT_TRUE(Save().Saved());
    EXPECT_EQ(notices_, std::vector<Text>{Text(test::kFaultText)});
    EXPECT_EQ(files_.contents, (std::map<Text, std::string>{{kPath, NewContent()}}));
}

TEST_F(SaveConfig, StaleBackupIsToldBeforeTheFileIsTouched)
{
    files_.contents[kPath] = kOld;
    files_.contents[kBackup] = "stale";
    std::string atNotice;
    SaveConfigFile(store_, kPath, files_, surroundings_,
                   [&](const Text&) { atNotice = files_.contents[kPath]; });
    EXPECT_EQ(atNotice, kOld);
}

TEST_F(SaveConfig, EmptyPathIsRefused)
{
    const SaveResult result = Save(u"");
    EXPECT_EQ(result.outcome, SaveOutcome::NoPath);
    EXPECT_EQ(files_.calls, 0);
}

TEST_F(SaveConfig, DirectoryIsRefusedBeforeAnythingIsRenamed)
{
    files_.directories.insert(kPath);
    const SaveResult result = Save();
    EXPECT_EQ(result.outcome, SaveOutcome::PathIsDirectory);
    EXPECT_EQ(files_.calls, 1);
}

TEST_F(SaveConfig, FileThatCannotBeCreatedFailsSilentlyAndTheOldOneComesBack)
{
    files_.contents[kPath] = kOld;
    files_.failing = {4}; // kind, same file, rename, create
    const SaveResult result = Save();
    EXPECT_EQ(result.outcome, SaveOutcome::CreateFailed);
    EXPECT_EQ(result.systemText, test::kFaultText);
    EXPECT_EQ(files_.contents, (std::map<Text, std::string>{{kPath, kOld}}));
    EXPECT_TRUE(notices_.empty());
}

TEST_F(SaveConfig, FailedWriteFlushAndCloseAreToldAndTheOldFileComesBack)
{
    const SaveOutcome outcomes[] = {SaveOutcome::WriteFailed, SaveOutcome::FlushFailed,
                                    SaveOutcome::CloseFailed};
    int call = 5;
    for (const SaveOutcome outcome : outcomes) {
        files_ = {};
        files_.contents[kPath] = kOld;
        files_.failing = {call++};
        const SaveResult result = Save();
        EXPECT_EQ(result.outcome, outcome);
        EXPECT_EQ(result.oldContent, OldContent::Stands);
        EXPECT_EQ(files_.contents, (std::map<Text, std::string>{{kPath, kOld}}));
        EXPECT_EQ(files_.openFiles, 0);
        EXPECT_EQ(result.systemText, test::kFaultText);
    }
}

TEST_F(SaveConfig, FailedWriteOfANewFileLeavesNoFile)
{
    files_.failing = {3}; // kind, create, write
    const SaveResult result = Save();
    EXPECT_EQ(result.outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(result.oldContent, OldContent::NoneBefore);
    EXPECT_TRUE(files_.contents.empty());
}

TEST_F(SaveConfig, WithoutABackupTheOldContentIsPutBack)
{
    files_.contents[kPath] = kOld;
    files_.contents[kBackup] = "stale";
    files_.failing = {9}; // kind, same file, rename, open, read, read, close, create, write
    const SaveResult result = Save();
    EXPECT_EQ(result.outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_EQ(files_.contents[kPath], kOld);
    EXPECT_EQ(files_.contents[kBackup], "stale");
    EXPECT_FALSE(files_.unflushed);
}

TEST_F(SaveConfig, CharacterThatTheLocaleCannotWriteTouchesNothing)
{
    files_.contents[kPath] = kOld;
    store_.SetSetting(u"B", u"\u20AC", SettingKindText, u"", kCurrentTable);
    const SaveResult result = Save();
    EXPECT_EQ(result.outcome, SaveOutcome::CharacterRefused);
    EXPECT_EQ(result.variable, u"B");
    EXPECT_EQ(result.character, u"\u20AC");
    EXPECT_EQ(files_.calls, 1);
    EXPECT_EQ(files_.contents[kPath], kOld);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
}

TEST_F(SaveConfig, FailingClockComesOutBeforeAnythingIsTouched)
{
    files_.contents[kPath] = kOld;
    surroundings_.clockFails = true;
    EXPECT_THROW(Save(), std::invalid_argument);
    EXPECT_EQ(files_.calls, 1);
    EXPECT_EQ(files_.contents, (std::map<Text, std::string>{{kPath, kOld}}));
}

TEST_F(SaveConfig, FileNamedLikeABackupIsWrittenWithoutOneAndKept)
{
    for (const char16_t* name :
         {u"office.bak", u"office.BAK", u"office.Bak", u".bak", u"office.bak.", u"office.bak "}) {
        files_ = {};
        files_.contents[name] = kOld;
        EXPECT_TRUE(Save(name).Saved());
        EXPECT_EQ(files_.contents, (std::map<Text, std::string>{{name, NewContent()}}));
        EXPECT_TRUE(notices_.empty());
    }
}

TEST_F(SaveConfig, FileNamedLikeABackupIsPutBackWhenTheWriteFails)
{
    files_.contents[u"office.bak"] = kOld;
    files_.failing = {7}; // kind, open, read, read, close, create, write
    EXPECT_EQ(Save(u"office.bak").outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(files_.contents, (std::map<Text, std::string>{{u"office.bak", kOld}}));
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
        explicit WordyPort(FilePort& files) : files_(files) {}
        FileKind Kind(const Text& path) override { return files_.Kind(path); }
        bool IsSameFile(const Text& a, const Text& b) override { return files_.IsSameFile(a, b); }
        FileResult OpenForReading(const Text& p, FileHandle& f) override
        {
            return files_.OpenForReading(p, f);
        }
        FileResult Read(FileHandle f, std::span<char> b, std::size_t& n) override
        {
            return files_.Read(f, b, n);
        }
        FileResult Create(const Text& p, CreateMode m, FileHandle& f) override
        {
            return files_.Create(p, m, f);
        }
        FileResult Write(FileHandle f, std::string_view b) override { return files_.Write(f, b); }
        FileResult Flush(FileHandle f) override { return files_.Flush(f); }
        FileResult Close(FileHandle f) override { return files_.Close(f); }
        FileResult Rename(const Text&, const Text&) override { return {false, Text(300, u'x')}; }
        FileResult Remove(const Text& p) override { return files_.Remove(p); }

      private:
        FilePort& files_;
    };
    files_.contents[kPath] = kOld;
    WordyPort wordy(files_);
    Text told;
    EXPECT_TRUE(
        SaveConfigFile(store_, kPath, wordy, surroundings_, [&told](const Text& m) { told = m; }).Saved());
    EXPECT_EQ(told, Text(255, u'x'));
}

TEST_F(SaveConfig, SavedFileReadsBackToTheSameTable)
{
    store_.SetSetting(u"LIST", u"a;b;c", SettingKindText, u"\n#\n# A list.\n#\n", kCurrentTable);
    store_.SetSetting(u"TEXT", u"some text", SettingKindText, u"", kCurrentTable);
    ASSERT_TRUE(Save().Saved());
    SettingStore readBack;
    ASSERT_TRUE(ReadConfigFile(readBack, kCurrentTable, kPath, files_).read);
    EXPECT_EQ(readBack.Count(kCurrentTable), 3u);
    EXPECT_EQ(readBack.GetSettingValue(u"A", kCurrentTable), u"1");
    EXPECT_EQ(readBack.GetSettingValue(u"LIST", kCurrentTable), u"a;b;c");
    EXPECT_EQ(readBack.FindSetting(u"LIST", kCurrentTable)->comment, u"\n#\n# A list.\n#\n");
    EXPECT_EQ(readBack.GetSettingValue(u"TEXT", kCurrentTable), u"some text");
}

} // namespace
} // namespace ov

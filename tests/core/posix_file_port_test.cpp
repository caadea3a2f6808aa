#include "config/core/config_reader.h"
#include "config/core/posix_file_port.h"
#include "config/core/save.h"
#include "tests/core/scoped_locale.h"
#include "tests/core/test_prompts.h"
#include "tests/core/test_surroundings.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <sys/resource.h>

namespace ov
{
namespace
{

namespace fs = std::filesystem;

class PosixFiles : public testing::Test
{
  protected:
    PosixFiles()
    {
        std::string pattern = (fs::temp_directory_path() / "ov-files-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("No temporary directory");
        m_directory = pattern;
    }
    ~PosixFiles() override { fs::remove_all(m_directory); }

    Text Path(const char* name) const { return TextFromUtf8((m_directory / name).string()); }
    void Put(const char* name, const std::string& bytes) const
    {
        std::ofstream(m_directory / name, std::ios::binary) << bytes;
    }
    std::string Get(const char* name) const
    {
        std::ifstream file(m_directory / name, std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }

    fs::path m_directory;
    PosixFilePort m_files;
};

TEST_F(PosixFiles, KindTellsFileDirectoryAndAbsence)
{
    Put("a", "x");
    EXPECT_EQ(m_files.Kind(Path("a")), FileKind::File);
    EXPECT_EQ(m_files.Kind(Path(".")), FileKind::Directory);
    EXPECT_EQ(m_files.Kind(Path("b")), FileKind::Absent);
    EXPECT_EQ(m_files.Kind(Path("a/b")), FileKind::Absent);
}

TEST_F(PosixFiles, WrittenBytesAreReadBack)
{
    FileHandle file{};
    ASSERT_TRUE(m_files.Create(Path("a"), CreateMode::New, file));
    EXPECT_TRUE(m_files.Write(file, "some bytes"));
    EXPECT_TRUE(m_files.Flush(file));
    EXPECT_TRUE(m_files.Close(file));
    ASSERT_TRUE(m_files.OpenForReading(Path("a"), file));
    char buffer[64];
    std::size_t count = 0;
    EXPECT_TRUE(m_files.Read(file, buffer, count));
    EXPECT_EQ(std::string(buffer, count), "some bytes");
    EXPECT_TRUE(m_files.Read(file, buffer, count));
    EXPECT_EQ(count, 0u);
    EXPECT_TRUE(m_files.Close(file));
}

TEST_F(PosixFiles, CreateNewLeavesAnExistingFile)
{
    Put("a", "old");
    FileHandle file{};
    const FileResult result = m_files.Create(Path("a"), CreateMode::New, file);
    EXPECT_FALSE(result);
    EXPECT_NE(result.systemText, u"");
    EXPECT_EQ(Get("a"), "old");
}

TEST_F(PosixFiles, SecondWriterIsShutOutAndEmptiesNothing)
{
    FileHandle first{};
    ASSERT_TRUE(m_files.Create(Path("a"), CreateMode::Truncate, first));
    ASSERT_TRUE(m_files.Write(first, "first"));
    FileHandle second{};
    EXPECT_FALSE(m_files.Create(Path("a"), CreateMode::Truncate, second));
    EXPECT_TRUE(m_files.Close(first));
    EXPECT_EQ(Get("a"), "first");
}

TEST_F(PosixFiles, RenameNeverReplaces)
{
    Put("a", "a");
    Put("b", "b");
    EXPECT_FALSE(m_files.Rename(Path("a"), Path("b")));
    EXPECT_EQ(Get("a"), "a");
    EXPECT_EQ(Get("b"), "b");
    EXPECT_TRUE(m_files.Remove(Path("b")));
    EXPECT_TRUE(m_files.Rename(Path("a"), Path("b")));
    EXPECT_EQ(Get("b"), "a");
    EXPECT_EQ(m_files.Kind(Path("a")), FileKind::Absent);
}

TEST_F(PosixFiles, MissingFileCannotBeOpenedRenamedOrRemoved)
{
    FileHandle file{};
    EXPECT_FALSE(m_files.OpenForReading(Path("a"), file));
    EXPECT_FALSE(m_files.Rename(Path("a"), Path("b")));
    EXPECT_FALSE(m_files.Remove(Path("a")));
}

TEST_F(PosixFiles, LinkIsTheSameFile)
{
    Put("a", "a");
    Put("b", "a");
    fs::create_symlink("a", m_directory / "link");
    EXPECT_TRUE(m_files.IsSameFile(Path("a"), Path("link")));
    EXPECT_FALSE(m_files.IsSameFile(Path("a"), Path("b")));
    EXPECT_FALSE(m_files.IsSameFile(Path("a"), Path("missing")));
}

TEST_F(PosixFiles, LinkTargetIsTheFullPathOfWhatALinkLeadsTo)
{
    fs::create_directory(m_directory / "share");
    Put("share/a", "a");
    fs::create_symlink("share/a", m_directory / "link");
    fs::create_symlink("link", m_directory / "second");
    fs::create_symlink("missing", m_directory / "dangling");
    const Text target = TextFromUtf8(fs::canonical(m_directory / "share" / "a").string());
    EXPECT_EQ(m_files.LinkTarget(Path("link")), target);
    EXPECT_EQ(m_files.LinkTarget(Path("second")), target);
    EXPECT_EQ(m_files.LinkTarget(Path("share/a")), u"");
    EXPECT_EQ(m_files.LinkTarget(Path("share")), u"");
    EXPECT_EQ(m_files.LinkTarget(Path("dangling")), Path("missing"));
    EXPECT_EQ(m_files.LinkTarget(Path("missing")), u"");
}

// A limit on a file's size simulates a full disk; its signal would end the process.
class FileSizeLimit
{
  public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        if (getrlimit(RLIMIT_FSIZE, &m_before) != 0)
            throw std::runtime_error("No file size limit");
        m_signal = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit small{bytes, m_before.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    ~FileSizeLimit()
    {
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &m_before), 0);
        std::signal(SIGXFSZ, m_signal);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    rlimit m_before{};
    void (*m_signal)(int) = SIG_DFL;
};

class PosixSave : public PosixFiles
{
  protected:
    PosixSave() { m_store.SetSetting(u"A", u"1", SettingKindInteger, u"", kCurrentTable); }

    SaveResult Save(const Text& path)
    {
        std::optional<KnownFile> known;
        SettingStore read;
        ReadConfigFile(read, kCurrentTable, path, m_files, &known);
        test::TestSurroundings surroundings;
        return SaveConfigFile(m_store, path, known, m_files, surroundings, m_prompts);
    }

    const test::ScopedLocale m_locale{"C"};
    SettingStore m_store;
    test::TestPrompts m_prompts;
};

TEST_F(PosixSave, FileIsReplacedAndNoBackupStays)
{
    Put("a.cfg", "old");
    EXPECT_TRUE(Save(Path("a.cfg")).Saved());
    EXPECT_TRUE(Get("a.cfg").ends_with("#\r\nA = 1\r\n"));
    EXPECT_FALSE(fs::exists(m_directory / "a.bak"));
    EXPECT_TRUE(m_prompts.notices.empty());
}

TEST_F(PosixSave, FileThatIsALinkToItsBackupIsNotDeleted)
{
    Put("a.bak", "old");
    fs::create_symlink("a.bak", m_directory / "a.cfg");
    EXPECT_TRUE(Save(Path("a.cfg")).Saved());
    EXPECT_TRUE(Get("a.cfg").ends_with("A = 1\r\n"));
    EXPECT_TRUE(m_prompts.notices.empty());
}

TEST_F(PosixSave, FullDiskFailsTheSaveAndTheOldFileComesBack)
{
    Put("a.cfg", "old");
    SaveResult result;
    {
        const FileSizeLimit limit(100);
        result = Save(Path("a.cfg"));
    }
    EXPECT_EQ(result.outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_EQ(Get("a.cfg"), "old");
    EXPECT_FALSE(fs::exists(m_directory / "a.bak"));
}

TEST_F(PosixSave, MissingFolderFailsSilently)
{
    const SaveResult result = Save(Path("missing/a.cfg"));
    EXPECT_EQ(result.outcome, SaveOutcome::CreateFailed);
    EXPECT_TRUE(m_prompts.notices.empty());
    EXPECT_TRUE(fs::is_empty(m_directory));
}

TEST_F(PosixSave, LinkStaysAndItsTargetIsReplaced)
{
    fs::create_directory(m_directory / "share");
    Put("share/common.cfg", "old");
    Put("a.bak", "someone else's");
    fs::create_symlink("share/common.cfg", m_directory / "a.cfg");
    EXPECT_TRUE(Save(Path("a.cfg")).Saved());
    EXPECT_TRUE(fs::is_symlink(m_directory / "a.cfg"));
    EXPECT_FALSE(fs::is_symlink(m_directory / "share" / "common.cfg"));
    EXPECT_TRUE(Get("share/common.cfg").ends_with("A = 1\r\n"));
    EXPECT_FALSE(fs::exists(m_directory / "share" / "common.bak"));
    EXPECT_EQ(Get("a.bak"), "someone else's");
    EXPECT_TRUE(m_prompts.notices.empty());
}

TEST_F(PosixSave, LinkToADirectoryIsRefused)
{
    fs::create_directory(m_directory / "share");
    fs::create_symlink("share", m_directory / "a.cfg");
    EXPECT_EQ(Save(Path("a.cfg")).outcome, SaveOutcome::PathIsDirectory);
    EXPECT_TRUE(fs::is_symlink(m_directory / "a.cfg"));
}

TEST_F(PosixSave, DirectoryIsRefused)
{
    fs::create_directory(m_directory / "a.cfg");
    EXPECT_EQ(Save(Path("a.cfg")).outcome, SaveOutcome::PathIsDirectory);
    EXPECT_TRUE(fs::is_directory(m_directory / "a.cfg"));
}

} // namespace
} // namespace ov

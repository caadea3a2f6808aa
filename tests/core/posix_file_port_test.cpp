#include "config/core/posix_file_port.h"

#include "config/core/save.h"
#include "tests/core/scoped_locale.h"
#include "tests/core/test_surroundings.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
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
        directory_ = pattern;
    }
    ~PosixFiles() override { fs::remove_all(directory_); }

    Text Path(const char* name) const { return TextFromUtf8((directory_ / name).string()); }
    void Put(const char* name, const std::string& bytes) const
    {
        std::ofstream(directory_ / name, std::ios::binary) << bytes;
    }
    std::string Get(const char* name) const
    {
        std::ifstream file(directory_ / name, std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }

    fs::path directory_;
    PosixFilePort files_;
};

TEST_F(PosixFiles, KindTellsFileDirectoryAndAbsence)
{
    Put("a", "x");
    EXPECT_EQ(files_.Kind(Path("a")), FileKind::File);
    EXPECT_EQ(files_.Kind(Path(".")), FileKind::Directory);
    EXPECT_EQ(files_.Kind(Path("b")), FileKind::Absent);
    EXPECT_EQ(files_.Kind(Path("a/b")), FileKind::Absent);
}

TEST_F(PosixFiles, WrittenBytesAreReadBack)
{
    FileHandle file{};
    ASSERT_TRUE(files_.Create(Path("a"), CreateMode::New, file));
    EXPECT_TRUE(files_.Write(file, "some bytes"));
    EXPECT_TRUE(files_.Flush(file));
    EXPECT_TRUE(files_.Close(file));
    ASSERT_TRUE(files_.OpenForReading(Path("a"), file));
    char buffer[64];
    std::size_t count = 0;
    EXPECT_TRUE(files_.Read(file, buffer, count));
    EXPECT_EQ(std::string(buffer, count), "some bytes");
    EXPECT_TRUE(files_.Read(file, buffer, count));
    EXPECT_EQ(count, 0u);
    EXPECT_TRUE(files_.Close(file));
}

TEST_F(PosixFiles, CreateNewLeavesAnExistingFile)
{
    Put("a", "old");
    FileHandle file{};
    const FileResult result = files_.Create(Path("a"), CreateMode::New, file);
    EXPECT_FALSE(result);
    EXPECT_NE(result.systemText, u"");
    EXPECT_EQ(Get("a"), "old");
}

TEST_F(PosixFiles, SecondWriterIsShutOutAndEmptiesNothing)
{
    FileHandle first{};
    ASSERT_TRUE(files_.Create(Path("a"), CreateMode::Truncate, first));
    ASSERT_TRUE(files_.Write(first, "first"));
    FileHandle second{};
    EXPECT_FALSE(files_.Create(Path("a"), CreateMode::Truncate, second));
    EXPECT_TRUE(files_.Close(first));
    EXPECT_EQ(Get("a"), "first");
}

TEST_F(PosixFiles, RenameNeverReplaces)
{
    Put("a", "a");
    Put("b", "b");
    EXPECT_FALSE(files_.Rename(Path("a"), Path("b")));
    EXPECT_EQ(Get("a"), "a");
    EXPECT_EQ(Get("b"), "b");
    EXPECT_TRUE(files_.Remove(Path("b")));
    EXPECT_TRUE(files_.Rename(Path("a"), Path("b")));
    EXPECT_EQ(Get("b"), "a");
    EXPECT_EQ(files_.Kind(Path("a")), FileKind::Absent);
}

TEST_F(PosixFiles, MissingFileCannotBeOpenedRenamedOrRemoved)
{
    FileHandle file{};
    EXPECT_FALSE(files_.OpenForReading(Path("a"), file));
    EXPECT_FALSE(files_.Rename(Path("a"), Path("b")));
    EXPECT_FALSE(files_.Remove(Path("a")));
}

TEST_F(PosixFiles, LinkIsTheSameFile)
{
    Put("a", "a");
    Put("b", "a");
    fs::create_symlink("a", directory_ / "link");
    EXPECT_TRUE(files_.IsSameFile(Path("a"), Path("link")));
    EXPECT_FALSE(files_.IsSameFile(Path("a"), Path("b")));
    EXPECT_FALSE(files_.IsSameFile(Path("a"), Path("missing")));
}

class PosixSave : public PosixFiles
{
  protected:
    PosixSave() { store_.SetSetting(u"A", u"1", SettingKindInteger, u"", kCurrentTable); }

    SaveResult Save(const Text& path)
    {
        test::TestSurroundings surroundings;
        return SaveConfigFile(store_, path, files_, surroundings, [this](const Text&) { ++notices_; });
    }

    const test::ScopedLocale locale_{"C"};
    SettingStore store_;
    int notices_ = 0;
};

TEST_F(PosixSave, FileIsReplacedAndNoBackupStays)
{
    Put("a.cfg", "old");
    EXPECT_TRUE(Save(Path("a.cfg")).Saved());
    EXPECT_TRUE(Get("a.cfg").ends_with("#\r\nA = 1\r\n"));
    EXPECT_FALSE(fs::exists(directory_ / "a.bak"));
    EXPECT_EQ(notices_, 0);
}

TEST_F(PosixSave, FileThatIsALinkToItsBackupIsNotDeleted)
{
    Put("a.bak", "old");
    fs::create_symlink("a.bak", directory_ / "a.cfg");
    EXPECT_TRUE(Save(Path("a.cfg")).Saved());
    EXPECT_TRUE(Get("a.cfg").ends_with("A = 1\r\n"));
    EXPECT_EQ(notices_, 0);
}

TEST_F(PosixSave, FullDiskFailsTheSaveAndTheOldFileComesBack)
{
    Put("a.cfg", "old");
    // The limit on a file's size stands for a full disk; its signal would end the process.
    const auto ignored = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{100, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const SaveResult result = Save(Path("a.cfg"));
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, ignored);
    EXPECT_EQ(result.outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_EQ(Get("a.cfg"), "old");
    EXPECT_FALSE(fs::exists(directory_ / "a.bak"));
}

TEST_F(PosixSave, MissingFolderFailsSilently)
{
    const SaveResult result = Save(Path("missing/a.cfg"));
    EXPECT_EQ(result.outcome, SaveOutcome::CreateFailed);
}

TEST_F(PosixSave, DirectoryIsRefused)
{
    fs::create_directory(directory_ / "a.cfg");
    EXPECT_EQ(Save(Path("a.cfg")).outcome, SaveOutcome::PathIsDirectory);
    EXPECT_TRUE(fs::is_directory(directory_ / "a.cfg"));
}

} // namespace
} // namespace ov

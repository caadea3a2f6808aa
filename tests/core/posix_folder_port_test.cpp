// The folder port for POSIX, on a real folder.

#include "config/core/posix_file_port.h"
#include "config/core/posix_folder_port.h"
#include "launch/core/path_parts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ov
{
namespace
{

namespace fs = std::filesystem;

/// Gives the superuser, who may write everything, the rights of another user until the scope ends.
class OrdinaryUser
{
  public:
    OrdinaryUser() : m_wasSuperuser(geteuid() == 0)
    {
        if (m_wasSuperuser) {
            EXPECT_EQ(setresuid(kNobody, kNobody, 0), 0);
        }
    }
    ~OrdinaryUser()
    {
        if (m_wasSuperuser) {
            EXPECT_EQ(setresuid(0, 0, 0), 0);
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    /// Lets that user own a file.
    static void Give(const fs::path& path)
    {
        if (geteuid() == 0) {
            ASSERT_EQ(chown(path.c_str(), kNobody, static_cast<gid_t>(-1)), 0);
        }
    }

  private:
    static constexpr uid_t kNobody = 65534;
    const bool m_wasSuperuser;
};

class PosixFolderPortTest : public testing::Test
{
  protected:
    void SetUp() override
    {
        std::string name = (fs::temp_directory_path() / "ov-folder-XXXXXX").string();
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        m_folder = fs::canonical(name);
    }
    void TearDown() override { fs::remove_all(m_folder); }

    Text PathOf(const char* name) const { return TextFromUtf8((m_folder / name).string()); }
    void Write(const char* name, const char* content) const { std::ofstream(m_folder / name) << content; }

    fs::path m_folder;
    PosixFolderPort m_folders;
    PosixFilePort m_files;
};

TEST_F(PosixFolderPortTest, ListsAllEntries)
{
    Write("a.cfg", "");
    Write("B\xC3\xBC ro", "");
    fs::create_directory(m_folder / "folder");
    std::vector<Text> names{u"before"};
    ASSERT_TRUE(m_folders.List(PathOf(""), names));
    std::ranges::sort(names);
    EXPECT_EQ(names, (std::vector<Text>{u"B\u00fc ro", u"a.cfg", u"folder"}));
    const FileResult missing = m_folders.List(PathOf("none"), names);
    EXPECT_FALSE(missing);
    EXPECT_FALSE(missing.systemText.empty());
}

TEST_F(PosixFolderPortTest, KnowsSizeTimeAndKind)
{
    Write("a.cfg", "12345");
    const timespec times[] = {{0, UTIME_OMIT}, {1795348800, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, (m_folder / "a.cfg").c_str(), times, 0), 0);
    FileFacts facts;
    ASSERT_TRUE(m_folders.Facts(PathOf("a.cfg"), facts));
    EXPECT_EQ(facts.kind, FileKind::File);
    EXPECT_EQ(facts.size, 5U);
    std::tm local = {};
    localtime_r(&times[1].tv_sec, &local);
    EXPECT_EQ(facts.changed, LocalTimeOf(local));
    ASSERT_TRUE(m_folders.Facts(PathOf("none"), facts));
    EXPECT_EQ(facts.kind, FileKind::Absent);
    ASSERT_TRUE(m_folders.Facts(PathOf(""), facts));
    EXPECT_EQ(facts.kind, FileKind::Directory);
}

TEST_F(PosixFolderPortTest, AWriterThatLocksTheFileIsNoticed)
{
    Write("a.cfg", "");
    EXPECT_TRUE(m_folders.TryRenaming(PathOf("a.cfg")));
    EXPECT_TRUE(m_folders.TryWriting(PathOf("a.cfg")));
    const int writer = open((m_folder / "a.cfg").c_str(), O_WRONLY | O_CLOEXEC);
    ASSERT_EQ(flock(writer, LOCK_EX), 0);
    EXPECT_FALSE(m_folders.TryWriting(PathOf("a.cfg")));
    close(writer);
    EXPECT_FALSE(m_folders.TryWriting(PathOf("none")));
    EXPECT_FALSE(fs::exists(m_folder / "none"));
}

TEST_F(PosixFolderPortTest, PermissionsAreNoticed)
{
    Write("a.cfg", "");
    OrdinaryUser::Give(m_folder / "a.cfg");
    OrdinaryUser::Give(m_folder);
    const OrdinaryUser user;
    fs::permissions(m_folder / "a.cfg", fs::perms::owner_read);
    FileFacts facts;
    ASSERT_TRUE(m_folders.Facts(PathOf("a.cfg"), facts));
    EXPECT_TRUE(facts.readOnly);
    EXPECT_FALSE(m_folders.TryWriting(PathOf("a.cfg")));
    fs::permissions(m_folder, fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_FALSE(m_folders.TryRenaming(PathOf("a.cfg")));
    fs::permissions(m_folder, fs::perms::owner_all);
}

TEST_F(PosixFolderPortTest, EachSpellingOfAPathHasTheSameKey)
{
    fs::create_directory(m_folder / "folder");
    Write("folder/a.cfg", "");
    fs::create_symlink(m_folder / "folder", m_folder / "link");
    fs::create_symlink("folder/a.cfg", m_folder / "b.cfg");
    const FilePorts ports{m_files, m_folders};
    const Text key = PathKey(PathOf("folder/a.cfg"), ports);
    EXPECT_EQ(key, PathOf("folder/a.cfg"));
    EXPECT_EQ(PathKey(PathOf("link/a.cfg"), ports), key);
    EXPECT_EQ(PathKey(PathOf("folder/../folder/./a.cfg"), ports), key);
    EXPECT_EQ(PathKey(PathOf("b.cfg"), ports), key);
    EXPECT_NE(PathKey(PathOf("folder/A.cfg"), ports), key);
    EXPECT_EQ(m_folders.FullFolder(PathOf("none")), PathOf("none/"));
}

} // namespace
} // namespace ov

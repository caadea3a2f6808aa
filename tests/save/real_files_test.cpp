// Saves on real file systems: full, read-only and protected ones, and to paths of all kinds.

#include "tests/save/real_folder.h"
#include "tests/save/step_file_port.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <linux/fs.h>
#include <memory>
#include <sched.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ov
{
namespace
{

namespace fs = std::filesystem;
using Strings = std::set<std::string>;

const std::string kOld = "OLD = content\r\n";
const std::string kStale = "STALE = content\r\n";

class RealSave : public test::RealFolder
{
  protected:
    RealSave() { m_small = std::make_unique<test::NewContent>(1); }

    void ExpectRefused(const std::string& name)
    {
        const SaveResult result = Save(name, *m_small);
        EXPECT_EQ(result.outcome, SaveOutcome::PathIsNoFile);
        EXPECT_EQ(prompts.notices.size(), 0u);
    }

    std::unique_ptr<test::NewContent> m_small;
};

TEST_F(RealSave, FileThatIsReadElsewhereIsReplacedAndItsReaderKeepsTheOldOne)
{
    Put("a.cfg", kOld);
    std::ifstream reader(folder / "a.cfg", std::ios::binary);
    EXPECT_TRUE(Save("a.cfg", *m_small).Saved());
    EXPECT_EQ(Get("a.cfg"), m_small->bytes);
    EXPECT_EQ(Names(), Strings{"a.cfg"});
    std::ostringstream bytes;
    bytes << reader.rdbuf();
    EXPECT_EQ(bytes.str(), kOld);
}

TEST_F(RealSave, PermissionsAreThoseOfANewFileExceptInPlace)
{
    const auto permissions = [this] { return fs::status(folder / "a.cfg").permissions(); };
    const mode_t before = umask(022);
    Put("a.cfg", kOld);
    fs::permissions(folder / "a.cfg", fs::perms{0660});
    EXPECT_TRUE(Save("a.cfg", *m_small).Saved());
    EXPECT_EQ(permissions(), fs::perms{0644});
    Put("a.bak", kStale);
    fs::permissions(folder / "a.cfg", fs::perms{0660});
    EXPECT_TRUE(Save("a.cfg", *m_small).Saved());
    EXPECT_EQ(permissions(), fs::perms{0660});
    umask(before);
}

TEST_F(RealSave, FileThatASecondWriterHoldsIsLeftToItWhereNoBackupCanBeMade)
{
    Put("a.cfg", kOld);
    Put("a.bak", kStale);
    FileHandle held{};
    ASSERT_TRUE(files.Create(Path("a.cfg"), CreateMode::Truncate, held));
    const SaveResult result = Save("a.cfg", *m_small);
    EXPECT_TRUE(files.Close(held));
    EXPECT_EQ(result.outcome, SaveOutcome::CreateFailed);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_EQ(prompts.notices.size(), 1u);
    EXPECT_EQ(Get("a.cfg"), kOld);
    EXPECT_EQ(Get("a.bak"), kStale);
}

TEST_F(RealSave, SecondWriterIsShutOutFromTheCreationToTheClose)
{
    Put("a.cfg", kOld);
    test::StepFilePort port(files);
    std::string steps;
    port.afterEach = [&] {
        FileHandle second{};
        const bool shutOut = !files.Create(Path("a.cfg"), CreateMode::Truncate, second);
        if (!shutOut)
            files.Close(second);
        steps += shutOut ? '-' : '+';
        // The save must not be disturbed by a file created here.
        if (port.steps == 8)
            files.Remove(Path("a.cfg"));
    };
    EXPECT_TRUE(Save("a.cfg", *m_small, port).Saved());
    // link, kind, compare, same file, rename; create, write, flush; close, compare, remove
    EXPECT_EQ(steps, "++++++++---++++++");
    EXPECT_EQ(Get("a.cfg"), m_small->bytes);
}

TEST_F(RealSave, LinkToNothingStaysAndItsTargetIsMade)
{
    fs::create_directory(folder / "share");
    fs::create_symlink("share/common.cfg", folder / "a.cfg");
    fs::create_symlink(folder / "a.cfg", folder / "b.cfg");
    EXPECT_TRUE(Save("b.cfg", *m_small).Saved());
    EXPECT_TRUE(fs::is_symlink(folder / "a.cfg"));
    EXPECT_TRUE(fs::is_symlink(folder / "b.cfg"));
    EXPECT_FALSE(fs::is_symlink(folder / "share/common.cfg"));
    EXPECT_EQ(Get("share/common.cfg"), m_small->bytes);
}

TEST_F(RealSave, LinkIntoAMissingFolderFailsSilentlyAndStays)
{
    fs::create_symlink("share/common.cfg", folder / "a.cfg");
    const SaveResult result = Save("a.cfg", *m_small);
    EXPECT_EQ(result.outcome, SaveOutcome::CreateFailed);
    EXPECT_EQ(result.oldContent, OldContent::NoneBefore);
    EXPECT_EQ(prompts.notices.size(), 0u);
    EXPECT_TRUE(fs::is_symlink(folder / "a.cfg"));
}

TEST_F(RealSave, LinksInACircleAreRefused)
{
    fs::create_symlink("b.cfg", folder / "a.cfg");
    fs::create_symlink("a.cfg", folder / "b.cfg");
    ExpectRefused("a.cfg");
    EXPECT_EQ(Names(), (Strings{"a.cfg", "b.cfg"}));
    EXPECT_TRUE(fs::is_symlink(fs::symlink_status(folder / "a.cfg")));
}

TEST_F(RealSave, PipeIsRefusedAndNeitherWaitedForNorReplaced)
{
    ASSERT_EQ(mkfifo((folder / "a.cfg").c_str(), 0666), 0);
    ExpectRefused("a.cfg");
    EXPECT_TRUE(fs::is_fifo(folder / "a.cfg"));
    FileHandle file{};
    EXPECT_FALSE(files.OpenForReading(Path("a.cfg"), file));
    EXPECT_FALSE(files.Create(Path("a.cfg"), CreateMode::Truncate, file));
}

TEST_F(RealSave, LinkToADeviceIsRefused)
{
    fs::create_symlink("/dev/full", folder / "a.cfg");
    ExpectRefused("a.cfg");
    EXPECT_TRUE(fs::is_symlink(folder / "a.cfg"));
}

TEST_F(RealSave, FileThatIsItsBackupByAnotherNameIsKept)
{
    Put("a.cfg", kOld);
    fs::create_hard_link(folder / "a.cfg", folder / "a.bak");
    EXPECT_TRUE(Save("a.cfg", *m_small).Saved());
    EXPECT_EQ(Get("a.cfg"), m_small->bytes);
    EXPECT_EQ(Get("a.bak"), m_small->bytes);
    EXPECT_EQ(prompts.notices.size(), 0u);
}

TEST_F(RealSave, FolderUnderTheBackupsNameIsLeftAlone)
{
    Put("a.cfg", kOld);
    fs::create_directory(folder / "a.bak");
    EXPECT_TRUE(Save("a.cfg", *m_small).Saved());
    EXPECT_EQ(Get("a.cfg"), m_small->bytes);
    EXPECT_TRUE(fs::is_directory(folder / "a.bak"));
    EXPECT_EQ(prompts.notices.size(), 1u);
}

// Runs in a process with the permissions of an ordinary user, because root may do everything.
class UnprivilegedSave : public RealSave
{
  protected:
    // True if every expectation in it was met.
    static bool AsNobody(const std::function<bool()>& run)
    {
        if (geteuid() != 0)
            return run();
        const pid_t child = fork();
        if (child == 0)
            _exit(setgid(65534) == 0 && setuid(65534) == 0 && run() ? 0 : 1);
        int status = -1;
        return waitpid(child, &status, 0) == child && status == 0;
    }

    void Allow(const std::string& name, unsigned permissions) const
    {
        fs::permissions(folder / name, fs::perms{permissions});
    }
};

TEST_F(UnprivilegedSave, FileInAFolderThatCannotBeWrittenIsWrittenInPlace)
{
    Put("a.cfg", kOld);
    Allow("a.cfg", 0666);
    Allow(".", 0555);
    EXPECT_TRUE(AsNobody([&] { return Save("a.cfg", *m_small).Saved() && prompts.notices.size() == 1; }));
    EXPECT_EQ(Get("a.cfg"), m_small->bytes);
    Allow(".", 0755);
}

TEST_F(UnprivilegedSave, FileThatCannotBeWrittenEitherStands)
{
    Put("a.cfg", kOld);
    Allow("a.cfg", 0444);
    Allow(".", 0555);
    EXPECT_TRUE(AsNobody([&] {
        const SaveResult result = Save("a.cfg", *m_small);
        return result.outcome == SaveOutcome::CreateFailed && result.oldContent == OldContent::Stands &&
               prompts.notices.size() == 1;
    }));
    EXPECT_EQ(Get("a.cfg"), kOld);
    Allow(".", 0755);
}

TEST_F(UnprivilegedSave, ReadOnlyFileIsReplacedBehindItsBackup)
{
    Put("a.cfg", kOld);
    Allow("a.cfg", 0444);
    Allow(".", 0777);
    EXPECT_TRUE(AsNobody([&] { return Save("a.cfg", *m_small).Saved() && prompts.notices.size() == 0; }));
    EXPECT_EQ(Get("a.cfg"), m_small->bytes);
    EXPECT_EQ(Names(), Strings{"a.cfg"});
}

TEST_F(UnprivilegedSave, NewFileInAFolderThatCannotBeWrittenFailsSilently)
{
    Allow(".", 0555);
    EXPECT_TRUE(AsNobody([&] {
        return Save("a.cfg", *m_small).outcome == SaveOutcome::CreateFailed && prompts.notices.size() == 0;
    }));
    EXPECT_EQ(Names(), Strings{});
    Allow(".", 0755);
}

// Protection by file flags, which applies even to root.
class GuardedSave : public RealSave, public testing::WithParamInterface<int>
{
  protected:
    ~GuardedSave() override
    {
        if (m_guarded)
            ChangeFlags(0);
    }

    // False if the system or the file system does not allow setting the flag; errno contains the reason.
    bool Guard() { return m_guarded = ChangeFlags(GetParam()); }

  private:
    bool ChangeFlags(int guard) const
    {
        const int file = open((folder / "a.cfg").c_str(), O_RDONLY | O_CLOEXEC);
        int flags = 0;
        bool changed = ioctl(file, FS_IOC_GETFLAGS, &flags) == 0;
        flags = (flags & ~GetParam()) | guard;
        changed = changed && ioctl(file, FS_IOC_SETFLAGS, &flags) == 0;
        const int error = errno;
        close(file);
        errno = error;
        return changed;
    }

    bool m_guarded = false;
};

TEST_P(GuardedSave, FileThatMayNotBeChangedStands)
{
    Put("a.cfg", kOld);
    if (!Guard())
        GTEST_SKIP() << "The file's flags cannot be set here: " << std::strerror(errno);
    const SaveResult result = Save("a.cfg", *m_small);
    EXPECT_EQ(result.outcome, SaveOutcome::CreateFailed);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_NE(result.systemText, u"");
    EXPECT_EQ(prompts.notices.size(), 1u);
    EXPECT_EQ(Get("a.cfg"), kOld);
    EXPECT_EQ(Names(), Strings{"a.cfg"});
}

INSTANTIATE_TEST_SUITE_P(Flags, GuardedSave, testing::Values(FS_IMMUTABLE_FL, FS_APPEND_FL));

// Mounts a small file system in the folder, visible to this process only.
class SmallDisk : public RealSave
{
  protected:
    void SetUp() override
    {
        m_page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        static const bool isAlone =
            unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
        if (!isAlone || !Mount("size=" + std::to_string(4 * m_page)))
            GTEST_SKIP() << "This process may not mount anything: " << std::strerror(errno);
    }
    void TearDown() override { Unmount(); }

    // Replaces the present disk, which has four pages, by another one. On failure sets errno.
    bool Mount(const std::string& options)
    {
        Unmount();
        m_mounted = mount("tmpfs", folder.c_str(), "tmpfs", 0, options.c_str()) == 0;
        return m_mounted;
    }
    std::string Pages(std::size_t pages) const { return std::string(pages * m_page, 'x'); }

    const test::NewContent m_large{1000};
    std::size_t m_page = 0;

  private:
    void Unmount()
    {
        if (m_mounted)
            umount2(folder.c_str(), MNT_DETACH);
        m_mounted = false;
    }

    bool m_mounted = false;
};

TEST_F(SmallDisk, FileForWhichThereIsNoRoomLeavesTheOldOneAndNothingElse)
{
    Put("a.cfg", kOld);
    const SaveResult result = Save("a.cfg", m_large);
    EXPECT_EQ(result.outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_NE(result.systemText, u"");
    EXPECT_EQ(Get("a.cfg"), kOld);
    EXPECT_EQ(Names(), Strings{"a.cfg"});
}

TEST_F(SmallDisk, NewFileForWhichThereIsNoRoomLeavesNothing)
{
    const SaveResult result = Save("a.cfg", m_large);
    EXPECT_EQ(result.outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(result.oldContent, OldContent::NoneBefore);
    EXPECT_EQ(Names(), Strings{});
}

TEST_F(SmallDisk, InPlaceNothingIsWrittenWhereThereIsNoRoom)
{
    const std::string old = Pages(2);
    Put("a.cfg", old);
    Put("a.bak", kStale);
    test::StepFilePort port(files);
    int changes = 0;
    port.afterEach = [&] { changes += Get("a.cfg") == old ? 0 : 1; };
    const SaveResult result = Save("a.cfg", m_large, port);
    EXPECT_EQ(result.outcome, SaveOutcome::WriteFailed);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(prompts.notices.size(), 1u);
    EXPECT_EQ(Get("a.cfg"), old);
    EXPECT_EQ(Get("a.bak"), kStale);
}

TEST_F(SmallDisk, InPlaceAFullDiskHasRoomForWhatIsNotLonger)
{
    Put("a.cfg", Pages(2));
    Put("a.bak", Pages(2));
    EXPECT_TRUE(Save("a.cfg", *m_small).Saved());
    EXPECT_EQ(Get("a.cfg"), m_small->bytes);
    EXPECT_EQ(Names(), Strings{"a.cfg"});
}

TEST_F(SmallDisk, DiskThatTakesNoMoreFilesLeavesTheOldOne)
{
    ASSERT_TRUE(Mount("nr_inodes=2"));
    Put("a.cfg", kOld);
    const SaveResult result = Save("a.cfg", *m_small);
    EXPECT_EQ(result.outcome, SaveOutcome::CreateFailed);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_EQ(Get("a.cfg"), kOld);
    EXPECT_EQ(Names(), Strings{"a.cfg"});
}

TEST_F(SmallDisk, ReadOnlyDiskLeavesTheFile)
{
    Put("a.cfg", kOld);
    ASSERT_EQ(mount(nullptr, folder.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
    const SaveResult result = Save("a.cfg", *m_small);
    EXPECT_EQ(result.outcome, SaveOutcome::CreateFailed);
    EXPECT_EQ(result.oldContent, OldContent::Stands);
    EXPECT_EQ(prompts.notices.size(), 1u);
    EXPECT_EQ(Get("a.cfg"), kOld);
    EXPECT_EQ(Save("b.cfg", *m_small).outcome, SaveOutcome::CreateFailed);
    EXPECT_EQ(Names(), Strings{"a.cfg"});
}

} // namespace
} // namespace ov

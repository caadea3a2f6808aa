// Ends or fails each step in which ovprefs writes an edited file, and checks what is left on the disk.

#include "cli/file_output.h"
#include "cli/output.h"
#include "tests/save/real_folder.h"
#include "tests/save/step_file_port.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace ov
{
namespace
{

using test::StepFault;

const std::string kOld = "OLD = content\r\n";
const std::string kNew = "NEW = content that is longer\r\n";

class WrittenEdit : public test::RealFolder
{
  protected:
    // A file, or a link to it, that only its owner may read.
    void Arrange(bool link)
    {
        for (const std::string& name : Names())
            std::filesystem::remove(folder / name);
        m_name = link ? "link.cfg" : "a.cfg";
        Put("a.cfg", kOld);
        std::filesystem::permissions(folder / "a.cfg", std::filesystem::perms{0600});
        if (link)
            std::filesystem::create_symlink("a.cfg", folder / m_name);
    }

    bool Write(FilePort& port)
    {
        cli::Output output;
        return cli::WriteFile((folder / m_name).string(), kOld, kNew, port, output) == cli::ExitCode::Done;
    }

    // True if the process was killed before it was done.
    bool WriteInAnotherProcess(int step, StepFault end)
    {
        const pid_t child = fork();
        if (child == 0) {
            test::StepFilePort port(files);
            port.end = [] { raise(SIGKILL); };
            port.faults = {{step, end}};
            port.partOfWrite = kNew.size() / 2;
            _exit(Write(port) ? 0 : 1);
        }
        int status = -1;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status) || status == 0);
        return WIFSIGNALED(status);
    }

    void ExpectThatNoOtherUserMayRead() const
    {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (!entry.is_regular_file())
                continue;
            const auto others = std::filesystem::perms{0077};
            EXPECT_EQ(entry.status().permissions() & others, std::filesystem::perms::none) << entry.path();
        }
    }

    std::string m_name;
};

TEST_F(WrittenEdit, KilledAtAnyStepLeavesACompleteFile)
{
    for (const bool link : {false, true}) {
        for (const StepFault end : {StepFault::EndsBefore, StepFault::EndsWithin, StepFault::EndsAfter}) {
            int kills = 0;
            for (bool killed = true; killed;) {
                SCOPED_TRACE(testing::Message()
                             << (link ? "link, " : "file, ") << int(end) << " at " << kills + 1);
                Arrange(link);
                killed = WriteInAnotherProcess(kills + 1, end);
                kills += killed ? 1 : 0;
                const auto file = Get("a.cfg");
                EXPECT_TRUE(file == kOld || file == kNew || Get("a.bak") == kOld);
                EXPECT_EQ(std::filesystem::is_symlink(folder / m_name), link);
                ExpectThatNoOtherUserMayRead();
                if (!killed) {
                    EXPECT_EQ(file, kNew);
                    EXPECT_FALSE(Get("a.bak"));
                }
            }
            EXPECT_GE(kills, 9);
        }
    }
}

TEST_F(WrittenEdit, WithAStepThatFailsIsDoneOrLeavesTheOldContent)
{
    for (const StepFault fault : {StepFault::Fails, StepFault::FailsDone, StepFault::OutOfMemory}) {
        bool passed = false;
        for (int step = 1; !passed; ++step) {
            SCOPED_TRACE(testing::Message() << int(fault) << " at " << step);
            Arrange(false);
            test::StepFilePort port(files);
            port.faults = {{step, fault}};
            port.partOfWrite = kNew.size() / 2;
            bool done = false;
            testing::internal::CaptureStderr();
            try {
                done = Write(port);
            } catch (const std::bad_alloc&) {
                EXPECT_EQ(fault, StepFault::OutOfMemory);
                EXPECT_EQ(Get("a.cfg"), kOld);
            }
            const std::string said = testing::internal::GetCapturedStderr();
            // A file that was created although its creation failed takes the place of the old one.
            if (done || said.find("the old content is in") == std::string::npos) {
                EXPECT_EQ(Get("a.cfg"), done ? kNew : kOld) << said;
            } else {
                EXPECT_EQ(Get("a.bak"), kOld) << said;
            }
            passed = port.steps < step;
            EXPECT_TRUE(done || !passed);
        }
    }
}

TEST_F(WrittenEdit, LeavesAFileWithTheBackupsNameAlone)
{
    Arrange(true);
    Put("a.bak", "STALE = content\r\n");
    testing::internal::CaptureStderr();
    EXPECT_FALSE(Write(files));
    EXPECT_NE(testing::internal::GetCapturedStderr().find("a.bak is in the way"), std::string::npos);
    EXPECT_EQ(Get("a.bak"), "STALE = content\r\n");
    EXPECT_EQ(Get("a.cfg"), kOld);
}

} // namespace
} // namespace ov

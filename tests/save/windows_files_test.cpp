// Saves through the Windows port: files that others hold open, attributes, devices, and processes
// that end during a save. If started with arguments, the program is such a process.

#include "config/core/save.h"
#include "config/win32_file_port.h"
#include "framework/afxwin.h"
#include "pages/core/string_table.h"
#include "tests/core/test_prompts.h"
#include "tests/save/new_content.h"
#include "tests/save/step_file_port.h"
#include "tests/support/process.h"
#include "tests/support/test_files.h"
#include "wizard/core/save_messages.h"

#include <gtest/gtest.h>

#include <iostream>
#include <shellapi.h>

using namespace uidriver;
using ov::test::StepFault;

namespace
{
using Names = std::vector<std::wstring>;

const std::string oldBytes = "OLD = content\r\n";
const std::string staleBytes = "STALE = content\r\n";
constexpr DWORD killedExitCode = 77;

// Saves a file that was read with these bytes.
ov::SaveResult SaveThrough(ov::FilePort& port, const std::wstring& path, const ov::test::NewContent& content,
                           const std::string& readBytes, ov::SavePrompts& prompts)
{
    ov::test::TestSurroundings surroundings;
    std::optional<ov::KnownFile> known = ov::KnownFile{FromWide(path), readBytes};
    return ov::SaveConfigFile(content.store, FromWide(path), known, port, surroundings, prompts);
}

class WindowsSave : public testing::Test
{
  protected:
    ov::SaveResult Save(ov::FilePort& port, const std::string& readBytes)
    {
        return SaveThrough(port, path, content, readBytes, prompts);
    }
    ov::SaveResult Save(ov::FilePort& port) { return Save(port, ReadBytes(path).value_or("")); }
    ov::SaveResult Save() { return Save(files); }

    // The message that the user sees at the end.
    static ov::Text Message(const ov::SaveResult& result)
    {
        return ov::SaveFailureText(result, [](unsigned id) { return ov::Text(ov::FindString(id)); });
    }

    TempFolder folder;
    std::wstring path = folder / L"a.cfg";
    std::wstring backup = folder / L"a.bak";
    CWin32FilePort files;
    const ov::test::NewContent content{1};
    ov::test::TestPrompts prompts;
};

// How another handle opens the file: its own access and the access that it shares.
struct Holder {
    DWORD access;
    DWORD share;
};

std::string Describe(const Holder& holder)
{
    const std::string access = holder.access == GENERIC_READ    ? "reads"
                               : holder.access == GENERIC_WRITE ? "writes"
                                                                : "reads and writes";
    return access + ", lets others" + ((holder.share & FILE_SHARE_READ) != 0 ? " read" : "") +
           ((holder.share & FILE_SHARE_WRITE) != 0 ? " write" : "") +
           ((holder.share & FILE_SHARE_DELETE) != 0 ? " delete" : "") + (holder.share == 0 ? " nothing" : "");
}

class HeldFile : public WindowsSave, public testing::WithParamInterface<Holder>
{
};
} // namespace

TEST_P(HeldFile, IsSavedOrStandsAsItsHolderAllows)
{
    const Holder& holder = GetParam();
    ASSERT_TRUE(WriteBytes(path, oldBytes));
    const HANDLE held =
        ::CreateFileW(path.c_str(), holder.access, holder.share, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    const ov::SaveResult result = Save(files, oldBytes);
    ::CloseHandle(held);

    // A file can be renamed if its holder shares deletion. It can be written in place if the holder
    // shares writing and does not write itself, because a second writer is prevented.
    const bool renames = (holder.share & FILE_SHARE_DELETE) != 0;
    const bool saves =
        renames || ((holder.share & FILE_SHARE_WRITE) != 0 && (holder.access & GENERIC_WRITE) == 0);
    std::cout << Describe(holder) << ": " << (!prompts.notices.empty() ? "told, " : "")
              << (result.Saved() ? "saved" : "stands") << '\n';
    EXPECT_EQ(prompts.notices.size(), renames ? 0u : 1u);
    EXPECT_EQ(result.outcome, saves ? ov::SaveOutcome::Saved : ov::SaveOutcome::CreateFailed);
    EXPECT_EQ(ReadBytes(path), saves ? content.bytes : oldBytes);
    EXPECT_EQ(Message(result), u"");
    EXPECT_TRUE(prompts.questions.empty());
    // A file that cannot be compared with what was read is not deleted.
    if (renames && (holder.share & FILE_SHARE_READ) == 0) {
        EXPECT_EQ(Wide(result.keptPath), folder / L"a (replaced).cfg");
        EXPECT_EQ(ReadBytes(folder / L"a (replaced).cfg"), oldBytes);
        EXPECT_EQ(folder.Names().size(), 2u);
    } else {
        EXPECT_EQ(result.keptPath, u"");
        EXPECT_EQ(folder.Names(), Names{L"a.cfg"});
    }
}

namespace
{
std::vector<Holder> AllHolders()
{
    std::vector<Holder> holders;
    constexpr DWORD reads = GENERIC_READ;
    constexpr DWORD writes = GENERIC_WRITE;
    for (const DWORD access : {reads, writes, reads | writes}) {
        for (DWORD share = 0; share < 8; ++share)
            holders.push_back({access, share});
    }
    return holders;
}
} // namespace

INSTANTIATE_TEST_SUITE_P(Holders, HeldFile, testing::ValuesIn(AllHolders()));

TEST_F(WindowsSave, AReadOnlyFileIsReplacedAndItsBackupDeleted)
{
    ASSERT_TRUE(WriteBytes(path, oldBytes));
    ASSERT_TRUE(::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_TRUE(Save().Saved());
    EXPECT_EQ(prompts.notices.size(), 0u);
    EXPECT_EQ(ReadBytes(path), content.bytes);
    EXPECT_EQ(folder.Names(), Names{L"a.cfg"});
}

TEST_F(WindowsSave, AttributesAreThoseOfANewFileExceptInPlace)
{
    const auto isHidden = [this] {
        return (::GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0;
    };
    ASSERT_TRUE(WriteBytes(path, oldBytes));
    ASSERT_TRUE(::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_HIDDEN));
    ASSERT_TRUE(isHidden());
    EXPECT_TRUE(Save().Saved());
    EXPECT_FALSE(isHidden());
    ASSERT_TRUE(::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_HIDDEN));
    ASSERT_TRUE(WriteBytes(backup, staleBytes));
    EXPECT_TRUE(Save().Saved());
    EXPECT_TRUE(isHidden());
}

// The attribute does not stop everyone: root in Wine may write such files.
TEST_F(WindowsSave, AReadOnlyFileWithoutABackupStandsUnlessItsUserMayWriteIt)
{
    ASSERT_TRUE(WriteBytes(path, oldBytes));
    ASSERT_TRUE(WriteBytes(backup, staleBytes));
    ASSERT_TRUE(::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
    const HANDLE writer =
        ::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    const bool mayWrite = writer != INVALID_HANDLE_VALUE;
    if (mayWrite)
        ::CloseHandle(writer);
    const ov::SaveResult result = Save();
    EXPECT_EQ(prompts.notices.size(), 1u);
    EXPECT_NE(::GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_READONLY, 0u);
    if (mayWrite) {
        EXPECT_TRUE(result.Saved());
        EXPECT_EQ(ReadBytes(path), content.bytes);
        EXPECT_EQ(folder.Names(), Names{L"a.cfg"});
    } else {
        EXPECT_EQ(result.outcome, ov::SaveOutcome::CreateFailed);
        EXPECT_EQ(result.oldContent, ov::OldContent::Stands);
        EXPECT_EQ(ReadBytes(path), oldBytes);
        EXPECT_EQ(ReadBytes(backup), staleBytes);
    }
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsSave, AReadOnlyFileComesBackReadOnly)
{
    ASSERT_TRUE(WriteBytes(path, oldBytes));
    ASSERT_TRUE(::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
    ov::test::StepFilePort port(files);
    port.faults = {{10, StepFault::Fails}}; // link, kind, compare, same file, rename, create, write
    const ov::SaveResult result = Save(port);
    EXPECT_EQ(result.outcome, ov::SaveOutcome::WriteFailed);
    EXPECT_EQ(ReadBytes(path), oldBytes);
    EXPECT_NE(::GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_READONLY, 0u);
    EXPECT_EQ(folder.Names(), Names{L"a.cfg"});
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsSave, AShorterContentWrittenInPlaceEndsWhereItEnds)
{
    ASSERT_TRUE(WriteBytes(path, std::string(100'000, 'x')));
    ASSERT_TRUE(WriteBytes(backup, staleBytes));
    EXPECT_TRUE(Save().Saved());
    EXPECT_EQ(prompts.notices.size(), 1u);
    EXPECT_EQ(ReadBytes(path), content.bytes);
    EXPECT_EQ(folder.Names(), Names{L"a.cfg"});
}

TEST_F(WindowsSave, WhatStoodInPlaceIsPutBackWhenTheWriteFails)
{
    ASSERT_TRUE(WriteBytes(path, oldBytes));
    ASSERT_TRUE(WriteBytes(backup, staleBytes));
    ov::test::StepFilePort port(files);
    // link, kind, compare, same file, rename, kind, read, create, reserve, write
    port.faults = {{16, StepFault::Fails}};
    port.partOfWrite = content.bytes.size() - 1;
    const ov::SaveResult result = Save(port);
    EXPECT_EQ(result.outcome, ov::SaveOutcome::WriteFailed);
    EXPECT_EQ(result.oldContent, ov::OldContent::Stands);
    EXPECT_EQ(ReadBytes(path), oldBytes);
    EXPECT_EQ(ReadBytes(backup), staleBytes);
}

TEST_F(WindowsSave, AFolderInItsPlaceIsRefused)
{
    ASSERT_TRUE(::CreateDirectoryW(path.c_str(), nullptr));
    EXPECT_EQ(Save().outcome, ov::SaveOutcome::PathIsDirectory);
    EXPECT_EQ(prompts.notices.size(), 0u);
    EXPECT_EQ(folder.Names(), Names{L"a.cfg"});
}

TEST_F(WindowsSave, AFolderUnderTheBackupsNameIsLeftAlone)
{
    ASSERT_TRUE(WriteBytes(path, oldBytes));
    ASSERT_TRUE(::CreateDirectoryW(backup.c_str(), nullptr));
    EXPECT_TRUE(Save().Saved());
    EXPECT_EQ(prompts.notices.size(), 1u);
    EXPECT_EQ(ReadBytes(path), content.bytes);
    EXPECT_EQ(folder.Names(), (Names{L"a.bak", L"a.cfg"}));
}

TEST_F(WindowsSave, ADeviceOrPipeIsRefusedAndTheReasonTold)
{
    for (const wchar_t* device : {L"NUL", L"nul.cfg", L"CON", L"\\\\.\\pipe\\a.cfg"}) {
        path = device;
        const ov::SaveResult result = Save();
        EXPECT_EQ(result.outcome, ov::SaveOutcome::PathIsNoFile) << testing::PrintToString(path);
        EXPECT_NE(Message(result).find(u"a device or a pipe"), ov::Text::npos);
    }
    EXPECT_EQ(prompts.notices.size(), 0u);
}

TEST_F(WindowsSave, ASecondWriterIsShutOutFromTheCreationToTheClose)
{
    ASSERT_TRUE(WriteBytes(path, oldBytes));
    ov::test::StepFilePort port(files);
    std::string steps;
    port.afterEach = [&] {
        constexpr DWORD all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
        const HANDLE second =
            ::CreateFileW(path.c_str(), GENERIC_WRITE, all, nullptr, OPEN_EXISTING, 0, nullptr);
        if (second != INVALID_HANDLE_VALUE)
            ::CloseHandle(second);
        steps += second != INVALID_HANDLE_VALUE ? '+' : '-';
    };
    EXPECT_TRUE(Save(port).Saved());
    // link, kind, compare, same file; rename: there is none; create, write, flush; close, compare, remove
    EXPECT_EQ(steps, "+++++++----++++++");
    EXPECT_EQ(ReadBytes(path), content.bytes);
}

namespace
{
std::wstring ProgramPath()
{
    std::wstring name(MAX_PATH, L'\0');
    name.resize(::GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
    return name;
}

class EndedProcess : public WindowsSave
{
  protected:
    /// Saves in a process that ends at the step; true if it did.
    bool SaveInAnotherProcess(StepFault end, int step) const
    {
        const Process process(ProgramPath(),
                              {path, std::to_wstring(static_cast<int>(end)), std::to_wstring(step)});
        EXPECT_TRUE(process.IsStarted());
        EXPECT_TRUE(process.AwaitEnd());
        const DWORD code = process.ExitCode();
        EXPECT_TRUE(code == 0 || code == killedExitCode) << code;
        return code == killedExitCode;
    }

    bool ACompleteCopyIsLeft() const
    {
        const auto file = ReadBytes(path);
        return file == oldBytes || file == content.bytes || ReadBytes(backup) == oldBytes;
    }
};
} // namespace

TEST_F(EndedProcess, BeforeEachStepLeavesACompleteCopy)
{
    // link, kind, compare, same file; rename, create, write, flush, close; compare; remove
    for (const int step : {1, 8, 9, 10, 11, 12, 13, 17}) {
        SCOPED_TRACE(step);
        ASSERT_TRUE(WriteBytes(path, oldBytes));
        ::DeleteFileW(backup.c_str());
        EXPECT_TRUE(SaveInAnotherProcess(StepFault::EndsBefore, step));
        EXPECT_TRUE(ACompleteCopyIsLeft());
    }
    ASSERT_TRUE(WriteBytes(path, oldBytes));
    ::DeleteFileW(backup.c_str());
    EXPECT_FALSE(SaveInAnotherProcess(StepFault::EndsBefore, 18));
    EXPECT_EQ(ReadBytes(path), content.bytes);
    EXPECT_EQ(folder.Names(), Names{L"a.cfg"});
}

TEST_F(EndedProcess, WithinTheWriteAndAfterEachStepThatChangesSomethingLeavesACompleteCopy)
{
    for (const auto& [end, step] :
         {std::pair{StepFault::EndsAfter, 8}, std::pair{StepFault::EndsAfter, 9},
          std::pair{StepFault::EndsWithin, 10}, std::pair{StepFault::EndsAfter, 10},
          std::pair{StepFault::EndsAfter, 11}, std::pair{StepFault::EndsAfter, 17}}) {
        SCOPED_TRACE(step);
        ASSERT_TRUE(WriteBytes(path, oldBytes));
        ::DeleteFileW(backup.c_str());
        EXPECT_TRUE(SaveInAnotherProcess(end, step));
        EXPECT_TRUE(ACompleteCopyIsLeft());
    }
}

TEST_F(EndedProcess, WithoutABackupOnlyTheWriteItselfIsAWindow)
{
    // link, kind, compare, same file, rename, kind, read, create, reserve, write, flush, close
    for (const auto& [end, step] : {std::pair{StepFault::EndsAfter, 8}, std::pair{StepFault::EndsAfter, 14},
                                    std::pair{StepFault::EndsAfter, 15}, std::pair{StepFault::EndsAfter, 16},
                                    std::pair{StepFault::EndsAfter, 18}}) {
        SCOPED_TRACE(step);
        ASSERT_TRUE(WriteBytes(path, oldBytes));
        ASSERT_TRUE(WriteBytes(backup, staleBytes));
        EXPECT_TRUE(SaveInAnotherProcess(end, step));
        EXPECT_EQ(ReadBytes(path), step < 16 ? oldBytes : content.bytes);
        EXPECT_EQ(ReadBytes(backup), staleBytes);
    }
}

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    int count = 0;
    wchar_t** const arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    if (count != 4)
        return RUN_ALL_TESTS();
    CWin32FilePort files;
    ov::test::StepFilePort port(files);
    const ov::test::NewContent content(1);
    port.faults = {{std::stoi(arguments[3]), static_cast<StepFault>(std::stoi(arguments[2]))}};
    port.partOfWrite = content.bytes.size() / 2;
    port.end = [] { ::TerminateProcess(::GetCurrentProcess(), killedExitCode); };
    ov::test::TestPrompts prompts;
    return SaveThrough(port, arguments[1], content, oldBytes, prompts).Saved() ? 0 : 1;
}

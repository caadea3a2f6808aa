// The folder port for Windows, on real files.

#include "config/win32_file_port.h"
#include "config/win32_folder_port.h"
#include "framework/afxwin.h"
#include "launch/core/path_parts.h"
#include "tests/support/test_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace uidriver;

namespace
{
class WindowsFolderPort : public testing::Test
{
  protected:
    ov::Text PathOf(const std::wstring& name) const { return FromWide(folder / name); }
    ov::Text Key(const ov::Text& spelling) { return ov::PathKey(spelling, {files, folders}); }

    TempFolder folder;
    std::wstring path = folder / L"a.cfg";
    CWin32FilePort files;
    CWin32FolderPort folders;
};
} // namespace

TEST_F(WindowsFolderPort, ListsAllEntries)
{
    ASSERT_TRUE(WriteBytes(path, "A"));
    ASSERT_TRUE(WriteBytes(folder / L"B\u00fcro 2026-11-22 12.00.00.copy", ""));
    ASSERT_TRUE(::CreateDirectoryW((folder / L"folder").c_str(), nullptr));
    std::vector<ov::Text> names{u"before"};
    ASSERT_TRUE(folders.List(FromWide(folder.Path()), names));
    std::ranges::sort(names);
    EXPECT_EQ(names, (std::vector<ov::Text>{u"B\u00fcro 2026-11-22 12.00.00.copy", u"a.cfg", u"folder"}));
    ASSERT_TRUE(folders.List(PathOf(L"folder"), names));
    EXPECT_TRUE(names.empty());
    const ov::FileResult missing = folders.List(PathOf(L"none"), names);
    EXPECT_FALSE(missing);
    EXPECT_NE(missing.systemText, u"");
}

TEST_F(WindowsFolderPort, KnowsSizeTimeAndAttributes)
{
    ASSERT_TRUE(WriteBytes(path, "12345"));
    const SYSTEMTIME local{2026, 7, 3, 22, 13, 5, 9, 0};
    SYSTEMTIME universal{};
    FILETIME time{};
    ASSERT_TRUE(::TzSpecificLocalTimeToSystemTime(nullptr, &local, &universal));
    ASSERT_TRUE(::SystemTimeToFileTime(&universal, &time));
    HANDLE const file =
        ::CreateFileW(path.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_TRUE(::SetFileTime(file, nullptr, nullptr, &time));
    ::CloseHandle(file);
    ov::FileFacts facts;
    ASSERT_TRUE(folders.Facts(FromWide(path), facts));
    EXPECT_EQ(facts.kind, ov::FileKind::File);
    EXPECT_EQ(facts.size, 5u);
    EXPECT_EQ(ov::FormatLocalTime(facts.changed), u"2026-07-22 13:05:09");
    EXPECT_FALSE(facts.readOnly);
    ASSERT_TRUE(::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
    ASSERT_TRUE(folders.Facts(FromWide(path), facts));
    EXPECT_TRUE(facts.readOnly);
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    ASSERT_TRUE(folders.Facts(PathOf(L"none"), facts));
    EXPECT_EQ(facts.kind, ov::FileKind::Absent);
    ASSERT_TRUE(folders.Facts(FromWide(folder.Path()), facts));
    EXPECT_EQ(facts.kind, ov::FileKind::Directory);
}

// What a save can do to a file that another program holds open, and that trying changes nothing.
TEST_F(WindowsFolderPort, KnowsWhatAHolderAllows)
{
    ASSERT_TRUE(WriteBytes(path, "A = 1\r\n"));
    for (const DWORD access : {DWORD{GENERIC_READ}, DWORD{GENERIC_WRITE}}) {
        for (DWORD share = 0; share < 8; ++share) {
            HANDLE const holder =
                ::CreateFileW(path.c_str(), access, share, nullptr, OPEN_EXISTING, 0, nullptr);
            ASSERT_NE(holder, INVALID_HANDLE_VALUE);
            const bool writes = (share & FILE_SHARE_WRITE) != 0 && access == GENERIC_READ;
            EXPECT_EQ(folders.TryRenaming(FromWide(path)).ok, (share & FILE_SHARE_DELETE) != 0)
                << access << share;
            EXPECT_EQ(folders.TryWriting(FromWide(path)).ok, writes) << access << share;
            ::CloseHandle(holder);
        }
    }
    EXPECT_EQ(ReadBytes(path), "A = 1\r\n");
    EXPECT_FALSE(folders.TryWriting(PathOf(L"none")));
    EXPECT_FALSE(PathExists(folder / L"none"));
}

TEST_F(WindowsFolderPort, EachSpellingOfAPathHasTheSameKey)
{
    ASSERT_TRUE(::CreateDirectoryW((folder / L"B\u00fcro").c_str(), nullptr));
    ASSERT_TRUE(WriteBytes(folder / L"B\u00fcro\\a.cfg", ""));
    const ov::Text key = Key(PathOf(L"B\u00fcro\\a.cfg"));
    EXPECT_EQ(Key(PathOf(L"b\u00dcRO\\A.CFG")), key);
    EXPECT_EQ(Key(PathOf(L"B\u00fcro/..\\B\u00fcro\\.\\a.cfg")), key);
    EXPECT_NE(Key(PathOf(L"B\u00fcro\\b.cfg")), key);
    std::wstring before(MAX_PATH, L'\0');
    before.resize(::GetCurrentDirectoryW(MAX_PATH, before.data()));
    ASSERT_TRUE(::SetCurrentDirectoryW((folder / L"B\u00fcro").c_str()));
    EXPECT_EQ(Key(u"a.cfg"), key);
    EXPECT_EQ(Key(u".\\a.cfg"), key);
    ::SetCurrentDirectoryW(before.c_str());
    // A missing file keeps its key, and so does one in a missing folder.
    ASSERT_TRUE(::DeleteFileW((folder / L"B\u00fcro\\a.cfg").c_str()));
    EXPECT_EQ(Key(PathOf(L"B\u00fcro\\a.cfg")), key);
    EXPECT_EQ(Key(PathOf(L"none\\a.cfg")), Key(PathOf(L"NONE\\A.cfg")));
}

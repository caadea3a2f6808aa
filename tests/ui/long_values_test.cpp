// Values far longer than typed ones.
#include "pages/conforming/ids.h"
#include "pages/files/ids.h"
#include "pages/title_block/ids.h"
#include "resources/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"
#include "tests/ui/value_editor.h"

using namespace uidriver;

namespace
{

class LongValuesTest : public DialogSession
{
  protected:
    static std::wstring Wide(const std::string& ascii) { return {ascii.begin(), ascii.end()}; }

    /// A path with that many characters.
    static std::string LongPath(std::size_t length)
    {
        std::string path = R"(\\?\C:)";
        while (path.size() < length)
            path += "\\" + std::string(100, 'f');
        path.resize(length);
        return path;
    }

    /// The processor time of this process in milliseconds. Unlike a clock, it does not
    /// depend on what else the machine does.
    static ULONGLONG ProcessorTime()
    {
        constexpr ULONGLONG unitsPerMillisecond = 10000;
        FILETIME creation = {};
        FILETIME exit = {};
        FILETIME kernel = {};
        FILETIME user = {};
        EXPECT_TRUE(GetProcessTimes(GetCurrentProcess(), &creation, &exit, &kernel, &user));
        const auto units = [](FILETIME time) {
            return ULONGLONG{time.dwHighDateTime} << 32 | time.dwLowDateTime;
        };
        return (units(kernel) + units(user)) / unitsPerMillisecond;
    }
};

TEST_F(LongValuesTest, FiveThousandEntriesOpenWithinASecond)
{
    constexpr int entries = 5000;
    std::string value = "Level 0";
    for (int entry = 1; entry < entries; ++entry)
        value += ",Level " + std::to_string(entry);
    UseCurrent("_ORTHOVAL_CHECK_IGNORED_LEVELS = " + value + "\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    ASSERT_EQ(Wide(value), PageText(IDC_CONFORMING_IGNORED_LEVELS));
    const ULONGLONG begin = ProcessorTime();
    HWND editor = OpenValueEditor(PageControl(IDC_CONFORMING_IGNORED_LEVELS_BROWSE));
    ASSERT_TRUE(editor);
    EXPECT_TRUE(Settle(editor));
    EXPECT_LT(ProcessorTime() - begin, 1000u);
    EXPECT_EQ(entries, Send(GetDlgItem(editor, IDC_CONFIG_SETTING_LIST), LVM_GETITEMCOUNT));
    CloseValueEditor(editor, IDOK);
    EXPECT_EQ(Wide(value), PageText(IDC_CONFORMING_IGNORED_LEVELS));
    Save();
    EXPECT_EQ("_ORTHOVAL_CHECK_IGNORED_LEVELS = \"" + value + "\"",
              AssignmentOf(CurrentBytes(), "_ORTHOVAL_CHECK_IGNORED_LEVELS"));
}

TEST_F(LongValuesTest, LongestPathIsLoadedEditedAndSaved)
{
    constexpr std::size_t longest = 32767; // the longest path of the system
    const std::string path = LongPath(longest);
    UseCurrent("_ORTHOVAL_DICT_DIR = \"" + path + "\"\r\n_ORTHOVAL_SCRIPTS = \"" + path + "\"\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"File Paths"));
    ASSERT_EQ(Wide(path), PageText(IDC_FILES_DICTIONARY));
    HWND edit = PageControl(IDC_FILES_SCRIPTS);
    Send(edit, EM_SETSEL, path.size(), static_cast<LPARAM>(path.size()));
    PostMessageW(edit, WM_CHAR, L'g', 1);
    Settle(edit);
    Save();
    // Paths are written without quotes.
    EXPECT_EQ("_ORTHOVAL_DICT_DIR = " + path, AssignmentOf(CurrentBytes(), "_ORTHOVAL_DICT_DIR"));
    EXPECT_EQ("_ORTHOVAL_SCRIPTS = " + path + "g", AssignmentOf(CurrentBytes(), "_ORTHOVAL_SCRIPTS"));
}

TEST_F(LongValuesTest, PathAsLongAsAFieldPassesThroughTheListEditor)
{
    constexpr std::size_t longestField = 1024;
    const std::string path = LongPath(longestField);
    UseCurrent("_ORTHOVAL_TITLEBLOCK_CELLLIBS = " + path + ";b.cel\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Title Blocks"));
    HWND editor = OpenValueEditor(PageControl(IDC_TITLE_BLOCK_LIBRARY_BROWSE));
    ASSERT_TRUE(editor);
    EXPECT_EQ(Wide(path), GetText(GetDlgItem(editor, IDC_CONFIG_SETTING_VALUE)));
    InsertValue(editor, L"c.cel");
    CloseValueEditor(editor, IDOK);
    EXPECT_EQ(Wide(path) + L";b.cel;c.cel", PageText(IDC_TITLE_BLOCK_LIBRARY));
    Abandon();
}

} // namespace

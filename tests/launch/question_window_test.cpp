// The questions before the dialog opens.
#include "resources/ids.h"
#include "tests/launch/launcher_session.h"
#include "tests/support/await.h"

#include <windows.h>
#include <algorithm>

using namespace uidriver;

namespace
{

const char* const FileWithDirective = "%include common.cfg\r\n_A = 1\r\n";

class QuestionWindowTest : public LauncherSession
{
  protected:
    QuestionWindowTest() { RememberDefaults(L""); }

    std::wstring Question() const { return TextOf(IDC_HOST_QUESTION_TEXT); }
    bool Says(const std::wstring& words) const { return Question().find(words) != std::wstring::npos; }

    void Cancel()
    {
        EXPECT_EQ(Shown::Nothing, Press(IDCANCEL));
        EXPECT_EQ(3U, ExitCode());
    }
};

TEST_F(QuestionWindowTest, ShowsWhatSaveDropsWithTheDifference)
{
    ASSERT_EQ(Shown::Question, Start({Put(L"office.cfg", FileWithDirective)}));
    EXPECT_TRUE(Says(L"Before you open " + Path(L"office.cfg") + L":")) << testing::PrintToString(Question());
    EXPECT_TRUE(Says(L"Directives, which are dropped: 1"));
    EXPECT_TRUE(Says(L"Settings that the file does not have, which are added: "));
    EXPECT_EQ(GetDlgItem(Window(), IDCANCEL), FocusIn(Window()));
    EXPECT_FALSE(IsShown(Control(IDC_HOST_QUESTION_DETAILS)));
    ExpectOrder();

    Click(Control(IDC_HOST_QUESTION_SHOW));
    ASSERT_TRUE(Await([&] { return IsShown(Control(IDC_HOST_QUESTION_DETAILS)); }));
    EXPECT_EQ(L"Hide &Details", TextOf(IDC_HOST_QUESTION_SHOW));
    EXPECT_NE(std::wstring::npos, TextOf(IDC_HOST_QUESTION_DETAILS).find(L"\r\n-%include common.cfg\r\n"));
    const LONG_PTR style = GetWindowLongPtrW(Control(IDC_HOST_QUESTION_DETAILS), GWL_STYLE);
    EXPECT_TRUE((style & ES_READONLY) && (style & WS_VSCROLL) && (style & WS_HSCROLL) &&
                (style & WS_TABSTOP));
    ExpectOrder();

    RECT before = {};
    GetWindowRect(Window(), &before);
    Resize(Window(), before.right - before.left + 100, before.bottom - before.top + 100);
    ExpectOrder();
    const RECT edit = RectIn(Control(IDC_HOST_QUESTION_DETAILS), Window());
    Click(Control(IDC_HOST_QUESTION_SHOW));
    EXPECT_TRUE(Await([&] { return !IsShown(Control(IDC_HOST_QUESTION_DETAILS)); }));
    EXPECT_GT(edit.right - edit.left, before.right - before.left);
    ExpectOrder();
    PostKey(Window(), VK_ESCAPE);
    EXPECT_EQ(3U, ExitCode());
}

TEST_F(QuestionWindowTest, ReturnCancels)
{
    ASSERT_EQ(Shown::Question, Start({Put(L"office.cfg", FileWithDirective)}));
    PostKey(Window(), VK_RETURN);
    EXPECT_EQ(3U, ExitCode());
}

TEST_F(QuestionWindowTest, ASilencedFileOpensAndAnEditLeavesACopy)
{
    const std::wstring file = Put(L"office.cfg", FileWithDirective);
    ASSERT_EQ(Shown::Question, Start({file}));
    Click(Control(IDC_HOST_QUESTION_SILENT));
    ASSERT_EQ(Shown::Dialog, Press(IDYES));
    EXPECT_EQ(file, TextOf(IDC_PREFERENCES_CONFIG_FILE));
    EXPECT_EQ(Shown::Nothing, Press(IDCANCEL));
    EXPECT_EQ(0U, ExitCode());
    EXPECT_EQ(std::vector<std::wstring>{L"office.cfg"}, Names());

    // The page that is shown first has a check box.
    ASSERT_EQ(Shown::Dialog, Start({file}));
    const std::vector<HWND> controls = Children(VisiblePage(Window()));
    const auto box = std::ranges::find_if(controls, [](HWND control) {
        return ClassOf(control) == L"Button" &&
               (GetWindowLongPtrW(control, GWL_STYLE) & BS_TYPEMASK) == BS_AUTOCHECKBOX && IsEnabled(control);
    });
    ASSERT_NE(controls.end(), box);
    Click(*box);
    EXPECT_EQ(Shown::Nothing, Press(IDC_PREFERENCES_SAVE));
    EXPECT_EQ(0U, ExitCode());
    const std::vector<std::wstring> names = Names();
    ASSERT_EQ(2U, names.size());
    EXPECT_EQ(0U, names[1].find(L"office.cfg 2"));
    EXPECT_EQ(FileWithDirective, Content(names[1]));
    EXPECT_NE(FileWithDirective, Content(L"office.cfg"));
}

TEST_F(QuestionWindowTest, OffersToResolveAnInterruptedSave)
{
    const std::wstring file = Put(L"office.cfg", "#\r\n# O");
    Put(L"office.bak", FileWithDirective);
    ASSERT_EQ(Shown::Question, Start({file}));
    EXPECT_TRUE(Says(L"There is a backup beside " + file + L".")) << testing::PrintToString(Question());
    EXPECT_TRUE(Says(L", 6 bytes. It is not whole: its last line has no end."))
        << testing::PrintToString(Question());
    EXPECT_TRUE(Says(L", 29 bytes. "));
    EXPECT_FALSE(IsShown(Control(IDC_HOST_QUESTION_SHOW)));
    EXPECT_FALSE(IsShown(Control(IDC_HOST_QUESTION_SILENT)));
    ExpectOrder();
    Cancel();
    EXPECT_EQ("#\r\n# O", Content(L"office.cfg"));
    EXPECT_EQ(FileWithDirective, Content(L"office.bak"));

    ASSERT_EQ(Shown::Question, Start({file}));
    ASSERT_EQ(Shown::Question, Press(IDYES));
    EXPECT_TRUE(Says(L"Directives, which are dropped: 1"));
    Cancel();
    EXPECT_EQ(FileWithDirective, Content(L"office.cfg"));
    EXPECT_EQ("(no file)", Content(L"office.bak"));

    Put(L"office.bak", "_OLD = 1\r\n");
    ASSERT_EQ(Shown::Question, Start({file}));
    ASSERT_EQ(Shown::Question, Press(IDNO));
    Cancel();
    EXPECT_EQ(FileWithDirective, Content(L"office.cfg"));
    EXPECT_EQ("(no file)", Content(L"office.bak"));
}

TEST_F(QuestionWindowTest, SaysThatAFileIsReadOnlyOrInUse)
{
    const std::wstring file = Put(L"office.cfg", FileWithDirective);
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    ASSERT_EQ(Shown::Question, Start({file}));
    EXPECT_TRUE(Says(L"The file is read-only.")) << testing::PrintToString(Question());
    Cancel();
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);

    const HANDLE user = CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    ASSERT_EQ(Shown::Question, Start({file}));
    EXPECT_TRUE(Says(L"The file cannot be renamed at present")) << testing::PrintToString(Question());
    Cancel();
    CloseHandle(user);
}

TEST_F(QuestionWindowTest, AsksAboutMissingFiles)
{
    ASSERT_EQ(Shown::Question, Start({Path(L"new.cfg")}));
    EXPECT_TRUE(Says(L"There is no file " + Path(L"new.cfg") + L".")) << testing::PrintToString(Question());
    ExpectOrder();
    Cancel();

    RememberDefaults(Path(L"defaults.cfg"));
    ASSERT_EQ(Shown::Question, Start({Put(L"office.cfg", FileWithDirective)}));
    EXPECT_TRUE(Says(L"The defaults file of your office cannot be used."))
        << testing::PrintToString(Question());
    ExpectOrder();
    ASSERT_EQ(Shown::Start, Press(IDYES));
    EXPECT_EQ(Path(L"defaults.cfg"), TextOf(IDC_HOST_START_DEFAULTS));
    Cancel();
}

} // namespace

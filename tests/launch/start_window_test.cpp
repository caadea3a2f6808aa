// The window in which the user chooses the files and the options for copies.
#include "resources/ids.h"
#include "tests/launch/launcher_session.h"
#include "tests/support/await.h"

#include <windows.h>
#include <dlgs.h>

using namespace uidriver;

namespace
{

class StartWindowTest : public LauncherSession
{
  protected:
    // Answers the message box that Open shows, and returns its text.
    std::wstring Refusal()
    {
        const HWND window = Window();
        if (Press(IDOK) != Shown::Box)
            return {};
        std::wstring text;
        for (const HWND child : Children(Window())) {
            if (ClassOf(child) == L"Static")
                text += GetText(child);
        }
        EXPECT_EQ(Shown::Start, Press(IDOK));
        EXPECT_EQ(window, Window());
        return text;
    }

    // Presses a Browse button and enters a path in the chooser; an empty one cancels.
    void Browse(int button, const std::wstring& path)
    {
        Click(Control(button));
        ASSERT_NE(Shown::Nothing, AwaitNext());
        if (!path.empty())
            SetText(FindWindowExW(AwaitControl(Window(), cmb13), nullptr, L"ComboBox", nullptr), path);
        PostMessageW(GetDlgItem(Window(), path.empty() ? IDCANCEL : IDOK), BM_CLICK, 0, 0);
        ASSERT_EQ(Shown::Start, AwaitNext());
    }
};

TEST_F(StartWindowTest, EscapeCancels)
{
    ASSERT_EQ(Shown::Start, Start({}));
    EXPECT_EQ(Control(IDC_HOST_START_FILE), FocusIn(Window()));
    ExpectOrder();
    PostKey(Window(), VK_ESCAPE);
    EXPECT_EQ(3U, ExitCode());
}

TEST_F(StartWindowTest, SaysWhatIsMissingOrWrong)
{
    ASSERT_EQ(Shown::Start, Start({}));
    EXPECT_EQ(L"Enter the path of the configuration file, or choose it with Browse.", Refusal());
    Type(IDC_HOST_START_FILE, Path(L"missing\\office.cfg"));
    EXPECT_EQ(L"The folder of " + Path(L"missing\\office.cfg") +
                  L" does not exist, or its drive or network share cannot be reached.",
              Refusal());
    Type(IDC_HOST_START_FILE, Path(L"."));
    EXPECT_NE(std::wstring::npos, Refusal().find(L" is a folder. Choose a file in it."));
    EXPECT_EQ(Control(IDC_HOST_START_FILE), FocusIn(Window()));
    Type(IDC_HOST_START_FILE, Put(L"office.cfg", "_A = 1\r\n"));
    Type(IDC_HOST_START_DEFAULTS, Path(L"defaults.cfg"));
    EXPECT_EQ(L"There is no file " + Path(L"defaults.cfg") + L".", Refusal());
    EXPECT_EQ(Control(IDC_HOST_START_DEFAULTS), FocusIn(Window()));
    Type(IDC_HOST_START_DEFAULTS, L"");
    Type(IDC_HOST_START_COPIES, L"0");
    EXPECT_EQ(L"The number of copies must be between 1 and 999.", Refusal());
    Type(IDC_HOST_START_COPIES, L"5");
    Type(IDC_HOST_START_FOLDER, Path(L"copies"));
    EXPECT_EQ(L"There is no folder " + Path(L"copies") + L" for the copies.", Refusal());
    // Without copies their options do not count.
    Click(Control(IDC_HOST_START_KEEP));
    for (const int id : {IDC_HOST_START_COPIES, IDC_HOST_START_FOLDER, IDC_HOST_START_FOLDER_BROWSE})
        EXPECT_TRUE(Await([&] { return !IsEnabled(Control(id)); })) << id;
    EXPECT_EQ(Shown::Question, Press(IDOK));
    EXPECT_EQ(Shown::Nothing, Press(IDCANCEL));
    EXPECT_EQ(3U, ExitCode());
}

TEST_F(StartWindowTest, ChoosesFilesAndRemembersThem)
{
    const std::wstring file = Put(L"office.cfg", "_A = 1\r\n");
    const std::wstring defaults = Put(L"defaults.cfg", "_A = 1\r\n");
    ASSERT_EQ(Shown::Start, Start({}));
    Type(IDC_HOST_START_FILE, L"typed.cfg");
    Browse(IDC_HOST_START_FILE_BROWSE, L"");
    EXPECT_EQ(L"typed.cfg", TextOf(IDC_HOST_START_FILE));
    Browse(IDC_HOST_START_FILE_BROWSE, file);
    EXPECT_EQ(file, TextOf(IDC_HOST_START_FILE));
    Browse(IDC_HOST_START_DEFAULTS_BROWSE, defaults);
    EXPECT_EQ(defaults, TextOf(IDC_HOST_START_DEFAULTS));
    Type(IDC_HOST_START_COPIES, L"3");
    EXPECT_EQ(Shown::Question, Press(IDOK));
    EXPECT_EQ(Shown::Nothing, Press(IDCANCEL));
    EXPECT_EQ(3U, ExitCode());

    // A dropped file is not asked about again.
    ASSERT_EQ(Shown::Question, Start({file}));
    EXPECT_EQ(Shown::Nothing, Press(IDCANCEL));
    EXPECT_EQ(3U, ExitCode());

    ASSERT_EQ(Shown::Start, Start({L"--ask", file}));
    EXPECT_EQ(file, TextOf(IDC_HOST_START_FILE));
    EXPECT_EQ(defaults, TextOf(IDC_HOST_START_DEFAULTS));
    EXPECT_EQ(L"3", TextOf(IDC_HOST_START_COPIES));
    EXPECT_EQ(Shown::Nothing, Press(IDCANCEL));
    EXPECT_EQ(3U, ExitCode());
}

} // namespace

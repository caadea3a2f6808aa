// The two exports: what they remember, whom they make modal, and whose
// controls they show.
#include "tests/ui/dialog_session.h"

#include <algorithm>

using namespace uidriver;

namespace
{

class ExportsTest : public DialogSession
{
  protected:
    std::wstring ShownPath() { return GetText(Control(IDC_PREFERENCES_CONFIG_FILE)); }

    static unsigned ShowWithoutArguments() { return Library::Get().ShowDialog()(); }
    static unsigned ShowWithNulls()
    {
        return Library::Get().ShowDialogEx()(nullptr, nullptr, nullptr, nullptr);
    }

    /// A call as a host with a window makes it.
    struct Host {
        HWND window = nullptr;
        bool enabledAfterwards = false;

        unsigned Show()
        {
            window = CreateWindowExW(0, L"Static", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 300,
                                     200, nullptr, nullptr, nullptr, nullptr);
            SetActiveWindow(window);
            const unsigned result = ShowWithNulls();
            enabledAfterwards = IsWindowEnabled(window) != FALSE;
            DestroyWindow(window);
            return result;
        }
    };
};

TEST_F(ExportsTest, SecondCallReusesThePathsAndTheUser)
{
    UseDefaults("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    ASSERT_TRUE(Open());
    Cancel();
    ASSERT_TRUE(Open(ShowWithoutArguments));
    EXPECT_EQ(m_currentPath, ShownPath());
    EXPECT_TRUE(CanLoadDefaults());
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_AUTO));
    ClickOnPage(IDC_BRANDING_AUTO);
    Save();
    EXPECT_NE(std::string::npos, CurrentBytes().find(" by user Ada Archer on machine "));
}

TEST_F(ExportsTest, NullTextsBehaveLikeTheCallWithoutArguments)
{
    UseDefaults("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    ASSERT_TRUE(Open());
    Cancel();
    ASSERT_TRUE(Open(ShowWithNulls));
    EXPECT_EQ(m_currentPath, ShownPath());
    EXPECT_TRUE(CanLoadDefaults());
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_AUTO));
    Cancel();
}

TEST_F(ExportsTest, OneTextIsReplacedAndTheOthersStay)
{
    UseDefaults("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    ASSERT_TRUE(Open());
    Cancel();
    const std::wstring other = m_folder / L"other.cfg";
    ASSERT_TRUE(WriteBytes(other, "_ORTHOVAL_BRANDING_CERTIFY = 1\r\n"));
    ASSERT_TRUE(
        Open([&] { return Library::Get().ShowDialogEx()(nullptr, nullptr, other.c_str(), nullptr); }));
    EXPECT_EQ(other, ShownPath());
    EXPECT_TRUE(CanLoadDefaults());
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_CERTIFY));
    Cancel();
}

TEST_F(ExportsTest, TextsAreCopied)
{
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    std::wstring passed = m_currentPath;
    ASSERT_TRUE(Open([&] { return Library::Get().ShowDialogEx()(nullptr, L"", passed.c_str(), L""); }));
    Cancel();
    std::ranges::fill(passed, L'x');
    ASSERT_TRUE(Open(ShowWithoutArguments));
    EXPECT_EQ(m_currentPath, ShownPath());
    Cancel();
}

TEST_F(ExportsTest, EmptyUserBecomesTheLoggedOnUser)
{
    wchar_t name[256] = {};
    DWORD size = 256;
    ASSERT_TRUE(GetUserNameW(name, &size));
    m_user = L"  ";
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    Save();
    std::string expected;
    for (const wchar_t* character = name; *character; ++character)
        expected += static_cast<char>(*character);
    EXPECT_NE(std::string::npos, CurrentBytes().find(" by user " + expected + " on machine "));
}

TEST_F(ExportsTest, SavingAndCancellingBothReturnZero)
{
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    Save(); // asserts the result, as Abandon does
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    Abandon();
}

TEST_F(ExportsTest, LibraryCanBeUnloadedAndForgetsItsTexts)
{
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    ASSERT_TRUE(Open());
    Cancel();
    ASSERT_TRUE(Library::Get().Unload());
    ASSERT_TRUE(Library::Get().Load());
    ASSERT_TRUE(Open(ShowWithoutArguments));
    EXPECT_EQ(L"", ShownPath());
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_F(ExportsTest, WithoutAParentTheActiveWindowOwnsTheDialogAndIsDisabled)
{
    Host host;
    ASSERT_TRUE(Open([&] { return host.Show(); }));
    EXPECT_EQ(host.window, GetWindow(Dialog(), GW_OWNER));
    EXPECT_FALSE(IsWindowEnabled(host.window));
    Cancel();
    EXPECT_TRUE(host.enabledAfterwards);
}

TEST_F(ExportsTest, WithoutAnyWindowTheDialogIsUnowned)
{
    ASSERT_TRUE(Open());
    EXPECT_EQ(nullptr, GetWindow(Dialog(), GW_OWNER));
    Cancel();
}

TEST_F(ExportsTest, ControlsAreVersionSixThoughTheProgramHasNoManifest)
{
    ASSERT_EQ(nullptr, FindResourceW(nullptr, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(24)));
    ASSERT_TRUE(Open());
    for (HWND control : {List(), Control(IDC_PREFERENCES_SAVE), PageControl(IDC_BRANDING_RENAME)}) {
        // The class's procedure lies in the library of its version, which has
        // a folder of its own, named for it.
        HMODULE module = nullptr;
        ASSERT_TRUE(GetModuleHandleExW(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            reinterpret_cast<LPCWSTR>(GetClassLongPtrW(control, GCLP_WNDPROC)), &module));
        wchar_t path[MAX_PATH] = {};
        GetModuleFileNameW(module, path, MAX_PATH);
        CharLowerW(path);
        const std::wstring_view library = path;
        EXPECT_NE(library.npos, library.find(L"microsoft.windows.common-controls_6595b64144ccf1df_6.0."))
            << testing::PrintToString(path);
        EXPECT_TRUE(library.ends_with(L"\\comctl32.dll"));
    }
    Cancel();
}

TEST_F(ExportsTest, TheHostsOwnActivationContextIsBackAfterTheCall)
{
    HANDLE before = nullptr;
    HANDLE after = nullptr;
    ASSERT_TRUE(Open([&] {
        GetCurrentActCtx(&before);
        const unsigned result = ShowWithNulls();
        GetCurrentActCtx(&after);
        return result;
    }));
    Cancel();
    EXPECT_EQ(before, after);
}

} // namespace

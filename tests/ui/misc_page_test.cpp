// The Miscellaneous page in the dialog.
#include "pages/misc/ids.h"
#include "resources/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

using namespace uidriver;

namespace
{

class MiscPageTest : public DialogSession
{
  protected:
    static constexpr int Types[] = {IDC_MISC_WILDCARD_NONE,   IDC_MISC_WILDCARD_DOS,
                                    IDC_MISC_WILDCARD_RANGES, IDC_MISC_WILDCARD_SUBSETS,
                                    IDC_MISC_WILDCARD_PERL,   IDC_MISC_WILDCARD_POSIX};

    std::string Saved(const std::string& variable) { return AssignmentOf(CurrentBytes(), variable); }
    void ExpectType(int code)
    {
        for (int type = 0; type < 6; ++type)
            EXPECT_EQ(type == code, IsPageChecked(Types[type])) << type;
    }
    HWND OpenTester()
    {
        ClickOnPage(IDC_MISC_WILDCARD_TEST);
        return AwaitTopWindow(L"Regular Expression Tester", GetCurrentProcessId());
    }
    void CloseTester(HWND tester, int command)
    {
        PostMessageW(tester, WM_COMMAND, static_cast<WPARAM>(command), 0);
        EXPECT_TRUE(AwaitGone(tester));
        Settle(Dialog());
    }
};

TEST_F(MiscPageTest, ButtonsStandInTheOrderOfTheCodes)
{
    UseCurrent("_ORTHOVAL_WILDCARD_TYPE = 5\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Miscellaneous"));
    ExpectType(5);
    for (int type = 0; type < 6; ++type) {
        ClickOnPage(Types[type]);
        ExpectType(type);
        EXPECT_EQ(static_cast<wchar_t>(L'0' + type), PageText(Types[type])[0]);
    }
    ClickOnPage(IDC_MISC_WILDCARD_SUBSETS);
    Save();
    EXPECT_EQ("_ORTHOVAL_WILDCARD_TYPE = 3", Saved("_ORTHOVAL_WILDCARD_TYPE"));
}

TEST_F(MiscPageTest, EmptyTypeShowsThreeAndIsSavedSo)
{
    UseCurrent("_ORTHOVAL_WILDCARD_TYPE = \r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Miscellaneous"));
    ExpectType(3);
    ClickOnPage(IDC_MISC_REORDER_WINDOWS);
    EXPECT_TRUE(CanSave());
    Save();
    EXPECT_EQ("_ORTHOVAL_WILDCARD_TYPE = 3", Saved("_ORTHOVAL_WILDCARD_TYPE"));
    EXPECT_EQ("_ORTHOVAL_TOOLS_REORDERALLWINDOWS = 1", Saved("_ORTHOVAL_TOOLS_REORDERALLWINDOWS"));
}

TEST_F(MiscPageTest, LoginIsShownByItsBoxAndTwoButtons)
{
    UseCurrent("_ORTHOVAL_AUTOLOGIN_USERDEFINED = 1\r\n_ORTHOVAL_AUTOLOGIN_DEFAULTVALUE = 1\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Miscellaneous"));
    EXPECT_TRUE(IsPageChecked(IDC_MISC_AUTO_LOGIN_USER_DEFINED));
    EXPECT_TRUE(IsPageChecked(IDC_MISC_AUTO_LOGIN_ON));
    EXPECT_FALSE(IsPageChecked(IDC_MISC_AUTO_LOGIN_OFF));
    ClickOnPage(IDC_MISC_AUTO_LOGIN_USER_DEFINED);
    ClickOnPage(IDC_MISC_AUTO_LOGIN_OFF);
    EXPECT_FALSE(IsPageChecked(IDC_MISC_AUTO_LOGIN_ON));
    Save();
    EXPECT_EQ("_ORTHOVAL_AUTOLOGIN_USERDEFINED = 0", Saved("_ORTHOVAL_AUTOLOGIN_USERDEFINED"));
    EXPECT_EQ("_ORTHOVAL_AUTOLOGIN_DEFAULTVALUE = 0", Saved("_ORTHOVAL_AUTOLOGIN_DEFAULTVALUE"));
}

TEST_F(MiscPageTest, TesterStartsWithThePagesTypeAndNoTexts)
{
    UseCurrent("_ORTHOVAL_WILDCARD_TYPE = 1\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Miscellaneous"));
    ClickOnPage(IDC_MISC_WILDCARD_PERL);
    HWND tester = OpenTester();
    ASSERT_TRUE(tester);
    EXPECT_EQ(Dialog(), GetWindow(tester, GW_OWNER));
    EXPECT_EQ(4, ComboSelection(GetDlgItem(tester, IDC_REGEX_TESTER_TYPE)));
    EXPECT_EQ(L"", GetText(GetDlgItem(tester, IDC_REGEX_TESTER_TEMPLATE)));
    EXPECT_EQ(L"", GetText(GetDlgItem(tester, IDC_REGEX_TESTER_TEST_STRING)));
    CloseTester(tester, IDCANCEL);
    Abandon();
}

TEST_F(MiscPageTest, OnlyTheTestersOkMarksAndItsTypeStaysItsOwn)
{
    UseCurrent("_ORTHOVAL_WILDCARD_TYPE = 1\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Miscellaneous"));
    HWND tester = OpenTester();
    ASSERT_TRUE(tester);
    CloseTester(tester, IDCANCEL);
    EXPECT_FALSE(CanSave());
    tester = OpenTester();
    ASSERT_TRUE(tester);
    SelectComboEntry(GetDlgItem(tester, IDC_REGEX_TESTER_TYPE), 5);
    CloseTester(tester, IDOK);
    EXPECT_TRUE(CanSave());
    ExpectType(1);
    Abandon();
}

} // namespace

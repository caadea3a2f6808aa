// Operates the dialog without a mouse.
#include "pages/branding/ids.h"
#include "pages/conforming/ids.h"
#include "tests/ui/built_pages.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"
#include "tests/ui/tab_walk.h"
#include "tests/ui/value_editor.h"

#include <set>

using namespace uidriver;

namespace
{

class KeyboardTest : public DialogSession
{
  protected:
    /// Opens the dialog with the page shown and every button enabled.
    bool OpenWithPage(const std::wstring& title)
    {
        UseDefaults("_ORTHOVAL_CHECK_CELLS = 1\r\n");
        UseCurrent("_ORTHOVAL_CHECK_TEXT = 1\r\n");
        if (!Open() || !ShowPage(title))
            return false;
        HWND anyBox = FindWindowExW(Page(), nullptr, L"Button", nullptr);
        Click(anyBox);
        return CanSave() && CanLoadDefaults();
    }

    static int IdOf(HWND control) { return GetDlgCtrlID(control); }
};

TEST_F(KeyboardTest, TabVisitsEveryControlOnceInReadingOrderWithBranding)
{
    ASSERT_TRUE(OpenWithPage(L"Branding"));
    ExpectTabCycle(Dialog(), List());
    Abandon();
}

TEST_F(KeyboardTest, TabVisitsEveryControlOnceInReadingOrderWithConforming)
{
    ASSERT_TRUE(OpenWithPage(L"Conforming"));
    ExpectTabCycle(Dialog(), List());
    Abandon();
}

TEST_F(KeyboardTest, TabPassesDisabledButtons)
{
    ASSERT_TRUE(Open());
    ASSERT_FALSE(CanSave());
    ASSERT_FALSE(CanLoadDefaults());
    ExpectTabCycle(Dialog(), List());
    Cancel();
}

TEST_F(KeyboardTest, TabGoesFromTheListIntoThePageAndFromThePageOut)
{
    ASSERT_TRUE(OpenWithPage(L"Conforming"));
    Focus(List());
    PostKey(Dialog(), VK_TAB);
    EXPECT_EQ(IDC_CONFORMING_CHECK_CELLS, IdOf(FocusIn(Dialog())));
    Focus(PageControl(IDC_CONFORMING_IGNORED_LEVELS_BROWSE));
    PostKey(Dialog(), VK_TAB);
    EXPECT_EQ(Control(IDC_PREFERENCES_VARIABLE_NAME), FocusIn(Dialog()));
    EXPECT_TRUE(PressKey(Dialog(), VK_TAB, VK_SHIFT));
    EXPECT_EQ(IDC_CONFORMING_IGNORED_LEVELS_BROWSE, IdOf(FocusIn(Dialog())));
    Abandon();
}

TEST_F(KeyboardTest, AltSSavesFromAPageControl)
{
    ASSERT_TRUE(OpenWithPage(L"Conforming"));
    Focus(PageControl(IDC_CONFORMING_MAX_ERROR));
    EXPECT_TRUE(PressKey(Dialog(), 'S', VK_MENU));
    ExpectClosed();
    EXPECT_EQ("_ORTHOVAL_CHECK_CELLS = 1", AssignmentOf(CurrentBytes(), "_ORTHOVAL_CHECK_CELLS"));
}

TEST_F(KeyboardTest, AltDLoadsTheDefaultsFromAPageControl)
{
    UseDefaults("_ORTHOVAL_BRANDING_RENAME_TABLES = d:e\r\n");
    UseCurrent("_ORTHOVAL_BRANDING_RENAME_TABLES = a:b\r\n");
    ASSERT_TRUE(Open());
    Focus(PageControl(IDC_BRANDING_CERTIFY));
    EXPECT_TRUE(PressKey(Dialog(), 'D', VK_MENU));
    EXPECT_EQ(L"d:e", PageText(IDC_BRANDING_RENAME));
    EXPECT_TRUE(CanSave());
    Abandon();
}

TEST_F(KeyboardTest, AltCCancelsFromAPageControlAndFromTheList)
{
    ASSERT_TRUE(OpenWithPage(L"Branding"));
    Focus(PageControl(IDC_BRANDING_RENAME));
    EXPECT_TRUE(PressKey(Dialog(), 'C', VK_MENU));
    AnswerAbandonQuestion(IDCANCEL);
    Focus(List());
    EXPECT_TRUE(PressKey(Dialog(), 'C', VK_MENU));
    AnswerAbandonQuestion(IDYES);
    ExpectClosed();
}

TEST_F(KeyboardTest, EscapeIsCancel)
{
    ASSERT_TRUE(Open());
    Focus(PageControl(IDC_BRANDING_RENAME));
    PostKey(Dialog(), VK_ESCAPE);
    ExpectClosed();
    ASSERT_TRUE(Open());
    Focus(List());
    PostKey(Dialog(), VK_ESCAPE);
    ExpectClosed();
}

TEST_F(KeyboardTest, EscapeAsksWhenTheDialogIsModified)
{
    ASSERT_TRUE(OpenWithPage(L"Branding"));
    Focus(PageControl(IDC_BRANDING_AUTO));
    PostKey(Dialog(), VK_ESCAPE);
    AnswerAbandonQuestion(IDYES);
    ExpectClosed();
}

TEST_F(KeyboardTest, ArrowKeysGoThroughAllCategories)
{
    ASSERT_TRUE(Open());
    const auto titles = BuiltTitles();
    Focus(List());
    PostKey(Dialog(), VK_HOME);
    std::set<HWND> pages;
    for (int row = 0; row < static_cast<int>(titles.size()); ++row) {
        EXPECT_EQ(row, ListViewSelection(List()));
        EXPECT_TRUE(pages.insert(Page()).second) << row;
        EXPECT_EQ(List(), FocusIn(Dialog()));
        PostKey(Dialog(), VK_DOWN);
    }
    for (int row = static_cast<int>(titles.size()) - 1; row >= 0; --row) {
        EXPECT_EQ(row, ListViewSelection(List()));
        PostKey(Dialog(), VK_UP);
    }
    Cancel();
}

TEST_F(KeyboardTest, EnterAndSpacePressAButtonOfAPage)
{
    ASSERT_TRUE(Open());
    for (const WORD key : {WORD{VK_RETURN}, WORD{VK_SPACE}}) {
        Focus(PageControl(IDC_BRANDING_RENAME_BROWSE));
        PostKey(Dialog(), key);
        HWND editor = AwaitTopWindow(L"Multi-Entry Values", GetCurrentProcessId());
        ASSERT_TRUE(editor) << key;
        CloseValueEditor(editor, IDCANCEL);
    }
    Cancel();
}

TEST_F(KeyboardTest, EnterTogglesACheckBox)
{
    UseCurrent("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    ASSERT_TRUE(Open());
    Focus(PageControl(IDC_BRANDING_AUTO));
    PostKey(Dialog(), VK_RETURN);
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_AUTO));
    EXPECT_TRUE(CanSave());
    PostKey(Dialog(), VK_RETURN);
    EXPECT_FALSE(IsPageChecked(IDC_BRANDING_AUTO));
    ExpectOpen();
    Abandon();
}

TEST_F(KeyboardTest, SpaceTogglesACheckBox)
{
    ASSERT_TRUE(Open());
    Focus(PageControl(IDC_BRANDING_AUTO));
    PostKey(Dialog(), VK_SPACE);
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_AUTO));
    Abandon();
}

TEST_F(KeyboardTest, EnterDoesNothingInASingleLineEdit)
{
    UseCurrent("_ORTHOVAL_BRANDING_RENAME_TABLES = a:b\r\n");
    ASSERT_TRUE(Open());
    Focus(PageControl(IDC_BRANDING_RENAME));
    PostKey(Dialog(), VK_RETURN);
    ExpectOpen();
    EXPECT_EQ(L"a:b", PageText(IDC_BRANDING_RENAME));
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_F(KeyboardTest, EnterDoesNothingInTheFieldsOfTheDialog)
{
    ASSERT_TRUE(OpenWithPage(L"Branding"));
    for (const int id :
         {IDC_PREFERENCES_CONFIG_FILE, IDC_PREFERENCES_VARIABLE_NAME, IDC_PREFERENCES_DESCRIPTION}) {
        Focus(Control(id));
        PostKey(Dialog(), VK_RETURN);
        ExpectOpen();
        EXPECT_TRUE(CanSave());
    }
    Abandon();
}

TEST_F(KeyboardTest, EnterDoesNotCloseTheDialogFromTheCategoryList)
{
    ASSERT_TRUE(OpenWithPage(L"Branding"));
    Focus(List());
    PostKey(Dialog(), VK_RETURN);
    ExpectOpen();
    EXPECT_TRUE(CanSave());
    Abandon();
}

TEST_F(KeyboardTest, EnterOnSavePressesIt)
{
    ASSERT_TRUE(OpenWithPage(L"Branding"));
    Focus(Control(IDC_PREFERENCES_SAVE));
    PostKey(Dialog(), VK_RETURN);
    ExpectClosed();
    EXPECT_EQ("_ORTHOVAL_CHECK_TEXT = 1", AssignmentOf(CurrentBytes(), "_ORTHOVAL_CHECK_TEXT"));
}

TEST_F(KeyboardTest, EnterOnCancelPressesIt)
{
    ASSERT_TRUE(Open());
    Focus(Control(IDC_PREFERENCES_CANCEL));
    PostKey(Dialog(), VK_RETURN);
    ExpectClosed();
}

} // namespace

// Drawing Scales in the dialog.
#include "resources/ids.h"
#include "tests/ui/page_session.h"
#include "tests/ui/value_editor.h"

using namespace uidriver;

namespace
{

class DrawingScalesPageTest : public PageSession
{
  protected:
    bool OpenPage() { return Open() && ShowPage(L"Drawing Scales"); }

    /// Whether the office's own list can be edited; its label and its button
    /// must be in the same state.
    bool ListIsEnabled() const
    {
        const bool edit = IsEnabled(PageControl(2201));
        EXPECT_EQ(edit, IsEnabled(PageControl(2200)));
        EXPECT_EQ(edit, IsEnabled(PageControl(2207)));
        return edit;
    }
};

TEST_F(DrawingScalesPageTest, ListInBracketsLosesThemHereAndGetsThemBackInTheFile)
{
    UseCurrent("_ORTHOVAL_DRAWINGSCALE_VALUES = \"[1:50,1:100]\"\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(L"1:50,1:100", PageText(2201));
    EXPECT_TRUE(IsPageChecked(2206));
    ClickOnPage(2202);
    Save();
    EXPECT_EQ("_ORTHOVAL_DRAWINGSCALE_VALUES = \"[1:50,1:100]\"", Saved("_ORTHOVAL_DRAWINGSCALE_VALUES"));
}

TEST_F(DrawingScalesPageTest, CodeTwoAndYesShowBothBoxesAndAreSavedAsTwo)
{
    for (const char* code : {"2", "yes"}) {
        UseCurrent("_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT = " + std::string(code) + "\r\n");
        ASSERT_TRUE(OpenPage());
        EXPECT_TRUE(IsPageChecked(2205));
        EXPECT_TRUE(IsPageChecked(2206));
        ClickOnPage(2202);
        Save();
        EXPECT_EQ("_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT = 2", Saved("_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT"));
    }
}

TEST_F(DrawingScalesPageTest, ListIsEnabledExactlyWithoutTheBuiltInScales)
{
    UseDefaults("_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT = 1\r\n");
    UseCurrent("_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT = 0\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_TRUE(ListIsEnabled());
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_TRUE(IsPageChecked(2205));
    EXPECT_FALSE(ListIsEnabled());
    ClickOnPage(2205);
    EXPECT_TRUE(ListIsEnabled());
    ClickOnPage(2205);
    EXPECT_FALSE(ListIsEnabled());
    ASSERT_TRUE(ShowPage(L"Branding"));
    ASSERT_TRUE(ShowPage(L"Drawing Scales"));
    EXPECT_FALSE(ListIsEnabled());
    Abandon();
}

TEST_F(DrawingScalesPageTest, BoxOfTheBuiltInScalesMarksTheDialogModified)
{
    ASSERT_TRUE(OpenPage());
    ClickOnPage(2205);
    EXPECT_TRUE(CanSave());
    Abandon();
}

// The brackets are added to the page's own text; the edit never shows them.
TEST_F(DrawingScalesPageTest, SavingAgainAfterAFailureBracketsTheListOnce)
{
    m_currentPath = m_folder / L"missing folder\\new.cfg";
    ASSERT_TRUE(OpenPage());
    TypeOnPage(2201, L"1:50");
    ClickOnPage(2206);
    Press(IDC_PREFERENCES_SAVE);
    ExpectOpen();
    EXPECT_EQ(L"1:50", PageText(2201));
    ASSERT_TRUE(CreateDirectoryW((m_folder / L"missing folder").c_str(), nullptr));
    Save();
    EXPECT_EQ("_ORTHOVAL_DRAWINGSCALE_VALUES = \"[1:50]\"", Saved("_ORTHOVAL_DRAWINGSCALE_VALUES"));
}

TEST_F(DrawingScalesPageTest, ScalesAreSplitAtCommasAndCommandsAtSemicolons)
{
    UseCurrent("_ORTHOVAL_DRAWINGSCALE_VALUES = \"1:50,1:100;x\"\r\n"
               "_ORTHOVAL_DRAWINGSCALE_COMMAND = \"one,1;two\"\r\n");
    ASSERT_TRUE(OpenPage());
    HWND editor = OpenValueEditor(PageControl(2207));
    ASSERT_TRUE(editor);
    EXPECT_EQ((std::vector<std::wstring>{L"1:50", L"1:100;x"}), ValueEditorRows(editor));
    EXPECT_FALSE(IsShown(GetDlgItem(editor, IDC_CONFIG_SETTING_BROWSE)));
    InsertValue(editor, L"1:200");
    CloseValueEditor(editor, IDOK);
    EXPECT_EQ(L"1:50,1:100;x,1:200", PageText(2201));
    EXPECT_TRUE(CanSave());
    editor = OpenValueEditor(PageControl(2214));
    ASSERT_TRUE(editor);
    EXPECT_EQ((std::vector<std::wstring>{L"one,1", L"two"}), ValueEditorRows(editor));
    CloseValueEditor(editor, IDCANCEL);
    EXPECT_EQ(L"one,1;two", PageText(2211));
    Abandon();
}

TEST_F(DrawingScalesPageTest, LoneQuoteIsRefusedAndTheEditGetsTheFocus)
{
    ASSERT_TRUE(OpenPage());
    for (const auto& [button, edit] : {std::pair{2207, 2201}, {2214, 2211}})
        ExpectRefusal(edit, button, edit);
    Abandon();
}

} // namespace

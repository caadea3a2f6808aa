// Colour Table in the dialog.
#include "pages/colour_table/ids.h"
#include "resources/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"
#include "tests/ui/value_editor.h"

using namespace uidriver;

namespace
{

class ColourTablePageTest : public DialogSession
{
  protected:
    bool OpenPage() { return Open() && ShowPage(L"Colour Table"); }
    std::string Saved(const std::string& variable) { return AssignmentOf(CurrentBytes(), variable); }
    HWND Remap() const { return PageControl(IDC_COLOUR_TABLE_REMAP); }
};

TEST_F(ColourTablePageTest, ListHasItsEntriesInOrderAndStartsWithPrompting)
{
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(
        (std::vector<std::wstring>{L"Leave existing elements as-is",
                                   L"Automatically remap existing elements to the closest matching colour",
                                   L"Prompt the user before doing anything"}),
        ComboTexts(Remap()));
    EXPECT_EQ(2, ComboSelection(Remap()));
    EXPECT_FALSE(CanSave());
    SelectComboEntry(Remap(), 1);
    EXPECT_TRUE(CanSave());
    Abandon();
}

TEST_F(ColourTablePageTest, LeadingIntegerSelectsAndAnAbsentOneChangesNothing)
{
    UseDefaults("_ORTHOVAL_ALLOW_ANY_COLOURTABLE = 1\r\n");
    UseCurrent("_ORTHOVAL_PROMPT_COLOURTABLE_REMAP = 1 as ever\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(1, ComboSelection(Remap()));
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_TRUE(IsPageChecked(IDC_COLOUR_TABLE_ALLOW_ANY));
    EXPECT_EQ(1, ComboSelection(Remap()));
    ClickOnPage(IDC_COLOUR_TABLE_CHECK_ON_OPEN);
    Save();
    EXPECT_EQ("_ORTHOVAL_PROMPT_COLOURTABLE_REMAP = 1", Saved("_ORTHOVAL_PROMPT_COLOURTABLE_REMAP"));
}

TEST_F(ColourTablePageTest, ButtonEditsTheListOfFiles)
{
    UseCurrent("_ORTHOVAL_COLOURTABLES = \"a,1.tbl;b.tbl\"\r\n");
    ASSERT_TRUE(OpenPage());
    HWND editor = OpenValueEditor(PageControl(IDC_COLOUR_TABLE_ALLOWED_BROWSE));
    ASSERT_TRUE(editor);
    EXPECT_EQ((std::vector<std::wstring>{L"a,1.tbl", L"b.tbl"}), ValueEditorRows(editor));
    EXPECT_TRUE(IsShown(GetDlgItem(editor, IDC_CONFIG_SETTING_BROWSE)));
    CloseValueEditor(editor, IDCANCEL);
    EXPECT_FALSE(CanSave());
    editor = OpenValueEditor(PageControl(IDC_COLOUR_TABLE_ALLOWED_BROWSE));
    ASSERT_TRUE(editor);
    InsertValue(editor, L"c.tbl");
    CloseValueEditor(editor, IDOK);
    EXPECT_EQ(L"a,1.tbl;b.tbl;c.tbl", PageText(IDC_COLOUR_TABLE_ALLOWED));
    EXPECT_TRUE(CanSave());
    Abandon();
}

TEST_F(ColourTablePageTest, LoneQuoteIsRefusedAndTheFocusStays)
{
    ASSERT_TRUE(OpenPage());
    TypeOnPage(IDC_COLOUR_TABLE_ALLOWED, L"\"a.tbl");
    Focus(PageControl(IDC_COLOUR_TABLE_ALLOWED_BROWSE));
    ClickOnPage(IDC_COLOUR_TABLE_ALLOWED_BROWSE);
    AnswerBox(L"Text qualifier is missing.\nPlease verify the value again.", {IDOK}, IDOK);
    ExpectOpen();
    EXPECT_TRUE(Await([&] { return FocusIn(Dialog()) == PageControl(IDC_COLOUR_TABLE_ALLOWED_BROWSE); }));
    Abandon();
}

} // namespace

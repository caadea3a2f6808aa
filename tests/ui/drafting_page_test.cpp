// Drafting in the dialog.
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

#include "pages/drafting/ids.h"

using namespace uidriver;

namespace
{

class DraftingPageTest : public DialogSession
{
};

TEST_F(DraftingPageTest, EachBoxMarksTheDialogModifiedAndIsSaved)
{
    UseCurrent("_ORTHOVAL_DRAFT_MENUS_ORDERBYDESCRIPTION = 1\r\n"
               "_ORTHOVAL_TEXT_FORCECOLOUROVERRIDEMATCH = yes\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Drafting"));
    EXPECT_EQ(L"Allow drafting by symbology ranges", PageText(2100));
    EXPECT_EQ(L"Order Drafting menus by description instead of name", PageText(2101));
    EXPECT_EQ(L"Force text override colour to match element colour", PageText(2102));
    EXPECT_FALSE(IsPageChecked(IDC_DRAFTING_BY_RANGES));
    EXPECT_TRUE(IsPageChecked(IDC_DRAFTING_ORDER_BY_DESCRIPTION));
    EXPECT_FALSE(IsPageChecked(IDC_DRAFTING_FORCE_TEXT_COLOUR));
    EXPECT_FALSE(CanSave()); // loading does not mark
    ClickOnPage(IDC_DRAFTING_BY_RANGES);
    EXPECT_TRUE(CanSave());
    Save();
    const std::string saved = CurrentBytes();
    EXPECT_EQ("_ORTHOVAL_DRAFT_BY_RANGES = 1", AssignmentOf(saved, "_ORTHOVAL_DRAFT_BY_RANGES"));
    EXPECT_EQ("_ORTHOVAL_DRAFT_MENUS_ORDERBYDESCRIPTION = 1",
              AssignmentOf(saved, "_ORTHOVAL_DRAFT_MENUS_ORDERBYDESCRIPTION"));
    EXPECT_EQ("_ORTHOVAL_TEXT_FORCECOLOUROVERRIDEMATCH = 0",
              AssignmentOf(saved, "_ORTHOVAL_TEXT_FORCECOLOUROVERRIDEMATCH"));
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Drafting"));
    EXPECT_FALSE(CanSave());
    for (const int box : {2101, 2102}) {
        ClickOnPage(box);
        EXPECT_TRUE(CanSave()) << box;
        TakeMarkBack();
    }
    Cancel();
}

} // namespace

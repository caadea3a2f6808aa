// The Custom Reports page in the dialog.
#include "pages/custom_reports/ids.h"
#include "tests/ui/page_session.h"

using namespace uidriver;

namespace
{

class CustomReportsPageTest : public PageSession
{
  protected:
    bool OpenPage() { return Open() && ShowPage(L"Custom Reports"); }
};

TEST_F(CustomReportsPageTest, CommandsAreEditedInFourFields)
{
    ASSERT_TRUE(OpenPage());
    TypeOnPage(IDC_CUSTOM_REPORTS_COMMANDS, L"a,b,c,d;e,f,g,h");
    const Editor editor = UseEditor(IDC_CUSTOM_REPORTS_COMMANDS_BROWSE, IDCANCEL);
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"e"}), editor.rows);
    EXPECT_EQ(4, editor.fields);
    EXPECT_FALSE(editor.browses);
    Abandon();
}

TEST_F(CustomReportsPageTest, ProjectsAreEditedAsFiles)
{
    ASSERT_TRUE(OpenPage());
    TypeOnPage(IDC_CUSTOM_REPORTS_VBA, L"one.mvba; two.mvba");
    const Editor editor = UseEditor(IDC_CUSTOM_REPORTS_VBA_BROWSE, IDOK, L"three.mvba");
    EXPECT_EQ((std::vector<std::wstring>{L"one.mvba", L"two.mvba"}), editor.rows);
    EXPECT_EQ(1, editor.fields);
    EXPECT_TRUE(editor.browses);
    EXPECT_EQ(L"one.mvba;two.mvba;three.mvba", PageText(IDC_CUSTOM_REPORTS_VBA));
    Abandon();
}

TEST_F(CustomReportsPageTest, RefusalLeavesTheFocusOnTheButton)
{
    ASSERT_TRUE(OpenPage());
    ExpectRefusal(IDC_CUSTOM_REPORTS_COMMANDS, IDC_CUSTOM_REPORTS_COMMANDS_BROWSE,
                  IDC_CUSTOM_REPORTS_COMMANDS_BROWSE);
    ExpectRefusal(IDC_CUSTOM_REPORTS_VBA, IDC_CUSTOM_REPORTS_VBA_BROWSE, IDC_CUSTOM_REPORTS_VBA_BROWSE);
    Abandon();
}

} // namespace

// The Feature Tables page in the dialog.
#include "pages/feature_tables/ids.h"
#include "tests/ui/page_session.h"

using namespace uidriver;

namespace
{

class FeatureTablesPageTest : public PageSession
{
};

TEST_F(FeatureTablesPageTest, ListsOfTableNamesAreTakenApartAtCommasNotAtSemicolons)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Feature Tables"));
    for (const auto& [button, edit] :
         {std::pair{IDC_FEATURE_TABLES_ALLOWED_BROWSE, IDC_FEATURE_TABLES_ALLOWED},
          {IDC_FEATURE_TABLES_DISALLOWED_BROWSE, IDC_FEATURE_TABLES_DISALLOWED}}) {
        TypeOnPage(edit, L"Civil,Survey;Old , Rail");
        ClickOnPage(button);
        HWND editor = AwaitTopWindow(L"Multi-Entry Values", GetCurrentProcessId());
        ASSERT_TRUE(editor);
        EXPECT_EQ((std::vector<std::wstring>{L"Civil", L"Survey;Old", L"Rail"}),
                  ListViewTexts(GetDlgItem(editor, 9338)));
        Click(GetDlgItem(editor, IDOK));
        EXPECT_TRUE(AwaitGone(editor));
        Settle(Dialog());
        EXPECT_EQ(L"Civil,Survey;Old,Rail", PageText(edit));
    }
    Abandon();
}

TEST_F(FeatureTablesPageTest, BackupsTakeDigitsAndArrows)
{
    UseCurrent("_ORTHOVAL_TABLE_BACKUP_MAX = 12\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Feature Tables"));
    const HWND edit = PageControl(IDC_FEATURE_TABLES_BACKUP_MAX);
    EXPECT_TRUE(GetWindowLongPtrW(edit, GWL_STYLE) & ES_NUMBER);
    EXPECT_EQ(edit,
              reinterpret_cast<HWND>(Send(PageControl(IDC_FEATURE_TABLES_BACKUP_MAX_SPIN), UDM_GETBUDDY)));
    Focus(edit);
    PostKey(Dialog(), VK_DOWN);
    EXPECT_EQ(L"11", PageText(IDC_FEATURE_TABLES_BACKUP_MAX));
    EXPECT_TRUE(CanSave());
    TypeOnPage(IDC_FEATURE_TABLES_BACKUP_MAX, L"9999");
    PostKey(Dialog(), VK_UP);
    PostKey(Dialog(), VK_UP);
    EXPECT_EQ(L"10000", PageText(IDC_FEATURE_TABLES_BACKUP_MAX));
    Save();
    EXPECT_NE(std::string::npos, Saved("_ORTHOVAL_TABLE_BACKUP_MAX").find("10000"));
}

TEST_F(FeatureTablesPageTest, ArrowsOfTheBackupsGoFasterWhenHeld)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Feature Tables"));
    EXPECT_EQ(std::pair(0, 10000),
              RangeOfSpin(IDC_FEATURE_TABLES_BACKUP_MAX_SPIN, IDC_FEATURE_TABLES_BACKUP_MAX));
    UDACCEL steps[4] = {};
    ASSERT_EQ(3, SendMessageW(PageControl(IDC_FEATURE_TABLES_BACKUP_MAX_SPIN), UDM_GETACCEL, 4,
                              reinterpret_cast<LPARAM>(steps)));
    constexpr UDACCEL expected[] = {{0, 1}, {3, 5}, {6, 10}};
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(expected[i].nSec, steps[i].nSec);
        EXPECT_EQ(expected[i].nInc, steps[i].nInc);
    }
    Cancel();
}

TEST_F(FeatureTablesPageTest, BackupsTakeNoOtherCharacterThanADigit)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Feature Tables"));
    TypeText(PageControl(IDC_FEATURE_TABLES_BACKUP_MAX), L"-1x2 .3");
    EXPECT_EQ(L"123", PageText(IDC_FEATURE_TABLES_BACKUP_MAX));
    Abandon();
}

} // namespace

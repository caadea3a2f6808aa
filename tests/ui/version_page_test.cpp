// The Version page in the dialog.
#include "pages/version/ids.h"
#include "tests/ui/page_doors.h"

using namespace uidriver;

namespace
{

class VersionPageTest : public PageDoors
{
};

TEST_F(VersionPageTest, ServerVersionCannotBeEditedAndIsNotSaved)
{
    UseCurrent("_ORTHOVAL_SERVER_VERSION = \"v6.5.0\"\r\n_ORTHOVAL_WARN_MAJOR_UPGRADE = 1\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Version"));
    TypeText(PageControl(IDC_VERSION_SERVER), L"v7.0.0");
    EXPECT_EQ(L"v6.5.0", PageText(IDC_VERSION_SERVER));
    EXPECT_FALSE(CanSave());
    // A text that is set by other means is not saved, either.
    SetText(PageControl(IDC_VERSION_SERVER), L"v7.0.0");
    ClickOnPage(IDC_VERSION_WARN_MAJOR);
    Save();
    EXPECT_EQ("_ORTHOVAL_SERVER_VERSION = \"v6.5.0\"", Saved("_ORTHOVAL_SERVER_VERSION"));
    EXPECT_EQ("_ORTHOVAL_WARN_MAJOR_UPGRADE = 0", Saved("_ORTHOVAL_WARN_MAJOR_UPGRADE"));
}

TEST_F(VersionPageTest, WarningsAreSavedAndShownAgain)
{
    UseCurrent("_ORTHOVAL_WARN_MAJOR_UPGRADE = 1\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Version"));
    EXPECT_TRUE(IsPageChecked(IDC_VERSION_WARN_MAJOR));
    EXPECT_FALSE(IsPageChecked(IDC_VERSION_WARN_MINOR));
    ClickOnPage(IDC_VERSION_WARN_MAJOR);
    ClickOnPage(IDC_VERSION_WARN_MINOR);
    Save();
    EXPECT_EQ("", Saved("_ORTHOVAL_SERVER_VERSION"));
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Version"));
    EXPECT_FALSE(IsPageChecked(IDC_VERSION_WARN_MAJOR));
    EXPECT_TRUE(IsPageChecked(IDC_VERSION_WARN_MINOR));
    Cancel();
}

TEST_F(VersionPageTest, CaptionsSayDowngradesAlthoughTheVariablesSayUpgrade)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Version"));
    EXPECT_EQ(L"Current Orthoval Server version for all users", PageText(IDC_VERSION_SERVER_LABEL));
    EXPECT_EQ(L"Warn of major version downgrades between databases", PageText(IDC_VERSION_WARN_MAJOR));
    EXPECT_EQ(L"Warn of minor version downgrades between databases", PageText(IDC_VERSION_WARN_MINOR));
    Cancel();
}

} // namespace

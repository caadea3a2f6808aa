// The Logging page in the dialog.
#include "pages/logging/ids.h"
#include "resources/ids.h"
#include "tests/ui/page_session.h"

using namespace uidriver;

namespace
{

class LoggingPageTest : public PageSession
{
  protected:
    bool OpenPage() { return Open() && ShowPage(L"Logging"); }
};

TEST_F(LoggingPageTest, TrackingIsShownButCannotBeChanged)
{
    UseDefaults("_ORTHOVAL_LOG_FILE_DEBUGLEVEL = 1\r\n");
    UseCurrent("_ORTHOVAL_REPORT_TRACKING = 1\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_TRUE(IsPageChecked(IDC_LOGGING_TRACKING));
    EXPECT_FALSE(IsPageEnabled(IDC_LOGGING_TRACKING));
    TypeOnPage(IDC_LOGGING_MAX_SIZE, L"64");
    Save();
    EXPECT_EQ("_ORTHOVAL_REPORT_TRACKING = 1", Saved("_ORTHOVAL_REPORT_TRACKING"));
    ASSERT_TRUE(OpenPage());
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_FALSE(IsPageChecked(IDC_LOGGING_TRACKING));
    EXPECT_FALSE(IsPageEnabled(IDC_LOGGING_TRACKING));
    EXPECT_EQ(1, PageSelection(IDC_LOGGING_DEBUG_LEVEL));
    EXPECT_EQ(L"", PageText(IDC_LOGGING_MAX_SIZE));
    Abandon();
}

TEST_F(LoggingPageTest, DebugLevelsAreZeroToTwo)
{
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ((std::vector<std::wstring>{L"0", L"1", L"2"}), PageEntries(IDC_LOGGING_DEBUG_LEVEL));
    Cancel();
}

TEST_F(LoggingPageTest, DebugLevelOfSevenSelectsNothing)
{
    UseCurrent("_ORTHOVAL_LOG_FILE_DEBUGLEVEL = 7\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(-1, PageSelection(IDC_LOGGING_DEBUG_LEVEL));
    TypeOnPage(IDC_LOGGING_MAX_SIZE, L"1");
    Save();
    EXPECT_EQ("_ORTHOVAL_LOG_FILE_DEBUGLEVEL = -1", Saved("_ORTHOVAL_LOG_FILE_DEBUGLEVEL"));
}

TEST_F(LoggingPageTest, ArrowsGoUpToAHundredMegabytes)
{
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(std::pair(0, 102400), RangeOfSpin(IDC_LOGGING_MAX_SIZE_SPIN, IDC_LOGGING_MAX_SIZE));
    TypeOnPage(IDC_LOGGING_MAX_SIZE, L"102399");
    Focus(PageControl(IDC_LOGGING_MAX_SIZE));
    PostKey(Dialog(), VK_UP);
    PostKey(Dialog(), VK_UP);
    EXPECT_EQ(L"102400", PageText(IDC_LOGGING_MAX_SIZE)); // no thousands separator
    TypeOnPage(IDC_LOGGING_MAX_SIZE, L"1");
    PostKey(Dialog(), VK_DOWN);
    PostKey(Dialog(), VK_DOWN);
    EXPECT_EQ(L"0", PageText(IDC_LOGGING_MAX_SIZE));
    Abandon();
}

TEST_F(LoggingPageTest, MaximumSizeTakesDigitsOnly)
{
    ASSERT_TRUE(OpenPage());
    TypeText(PageControl(IDC_LOGGING_MAX_SIZE), L"1x2,3");
    EXPECT_EQ(L"123", PageText(IDC_LOGGING_MAX_SIZE));
    Abandon();
}

} // namespace

// URLs in the dialog.
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

#include "pages/urls/ids.h"
#include "resources/ids.h"

using namespace uidriver;

namespace
{

class UrlsPageTest : public DialogSession
{
};

TEST_F(UrlsPageTest, AddressesAreSavedAsTypedAndShownAgain)
{
    UseCurrent("_ORTHOVAL_TECHSUPPORT_URL = \"intranet/help\"\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"URLs"));
    EXPECT_EQ(L"Technical Support", PageText(IDC_URLS_TECH_SUPPORT_LABEL));
    EXPECT_EQ(L"Website", PageText(IDC_URLS_WEBSITE_LABEL));
    EXPECT_EQ(L"intranet/help", PageText(IDC_URLS_TECH_SUPPORT));
    EXPECT_EQ(L"", PageText(IDC_URLS_WEBSITE));
    EXPECT_FALSE(CanSave());
    TypeOnPage(IDC_URLS_WEBSITE, L" intranet/cad?page=1 ");
    Save();
    EXPECT_EQ("_ORTHOVAL_TECHSUPPORT_URL = \"intranet/help\"",
              AssignmentOf(CurrentBytes(), "_ORTHOVAL_TECHSUPPORT_URL"));
    EXPECT_EQ("_ORTHOVAL_WEBSITE_URL = \" intranet/cad?page=1 \"",
              AssignmentOf(CurrentBytes(), "_ORTHOVAL_WEBSITE_URL"));
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"URLs"));
    EXPECT_EQ(L" intranet/cad?page=1 ", PageText(IDC_URLS_WEBSITE));
    Cancel();
}

TEST_F(UrlsPageTest, DefaultsReplaceWhatThePageShows)
{
    UseDefaults("_ORTHOVAL_WEBSITE_URL = \"default\"\r\n");
    UseCurrent("_ORTHOVAL_TECHSUPPORT_URL = \"current\"\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"URLs"));
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_EQ(L"default", PageText(IDC_URLS_WEBSITE));
    EXPECT_EQ(L"", PageText(IDC_URLS_TECH_SUPPORT));
    Abandon();
}

} // namespace

// The Users page in the dialog.
#include "pages/users/ids.h"
#include "resources/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

using namespace uidriver;

namespace
{

class UsersPageTest : public DialogSession
{
  protected:
    static constexpr int Dependent[] = {IDC_USERS_WINDOWS_AUTHENTICATION, IDC_USERS_CURRENT_GROUP_LABEL,
                                        IDC_USERS_CURRENT_GROUP, IDC_USERS_CURRENT_GROUP_BROWSE};

    void ExpectEnabled(bool enabled)
    {
        for (const int id : Dependent)
            EXPECT_EQ(enabled, IsEnabled(PageControl(id))) << id;
    }
    std::string Saved(const std::string& variable) { return AssignmentOf(CurrentBytes(), variable); }
};

TEST_F(UsersPageTest, GroupsEnableEverythingElse)
{
    UseCurrent("_ORTHOVAL_WINDOWS_AUTHENTICATION = 1\r\n_ORTHOVAL_USERS_CURRENT_GROUP = CIVIL\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Users"));
    ExpectEnabled(false);
    EXPECT_FALSE(CanSave());
    ClickOnPage(IDC_USERS_ALLOW_GROUPS);
    ExpectEnabled(true);
    EXPECT_TRUE(CanSave());
    ClickOnPage(IDC_USERS_ALLOW_GROUPS);
    ExpectEnabled(false);
    ClickOnPage(IDC_USERS_ALLOW_GROUPS);
    ClickOnPage(IDC_USERS_WINDOWS_AUTHENTICATION);
    TypeOnPage(IDC_USERS_CURRENT_GROUP, L"ARCH;MECH");
    Save();
    EXPECT_EQ("_ORTHOVAL_USERS_ALLOW_GROUPS = 1", Saved("_ORTHOVAL_USERS_ALLOW_GROUPS"));
    EXPECT_EQ("_ORTHOVAL_WINDOWS_AUTHENTICATION = 0", Saved("_ORTHOVAL_WINDOWS_AUTHENTICATION"));
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Users"));
    ExpectEnabled(true);
    EXPECT_EQ(L"ARCH;MECH", PageText(IDC_USERS_CURRENT_GROUP));
    Cancel();
}

TEST_F(UsersPageTest, LoadedDefaultsEnableAndDisableAtOnce)
{
    UseDefaults("_ORTHOVAL_USERS_ALLOW_GROUPS = 1\r\n");
    UseCurrent("_ORTHOVAL_USERS_ALLOW_GROUPS = 0\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Users"));
    ExpectEnabled(false);
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_TRUE(IsPageChecked(IDC_USERS_ALLOW_GROUPS));
    ExpectEnabled(true);
    Abandon();
}

TEST_F(UsersPageTest, LoneQuoteIsRefusedAndTheEditGetsTheFocus)
{
    UseCurrent("_ORTHOVAL_USERS_ALLOW_GROUPS = 1\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Users"));
    TypeOnPage(IDC_USERS_CURRENT_GROUP, L"\"CIVIL");
    Focus(PageControl(IDC_USERS_CURRENT_GROUP_BROWSE));
    ClickOnPage(IDC_USERS_CURRENT_GROUP_BROWSE);
    AnswerBox(L"Text qualifier is missing.\nPlease verify the value again.", {IDOK}, IDOK);
    EXPECT_TRUE(Await([&] { return FocusIn(Dialog()) == PageControl(IDC_USERS_CURRENT_GROUP); }));
    Abandon();
}

} // namespace

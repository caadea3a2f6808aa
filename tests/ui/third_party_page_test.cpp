// Third Party Apps in the dialog.
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

#include "pages/third_party/ids.h"
#include "resources/ids.h"

using namespace uidriver;

namespace
{

struct Box {
    int id;
    const char* variable;
    const wchar_t* caption;
};

constexpr Box boxes[] = {
    {2027, "_ORTHOVAL_CHECK_USERATTRIBUTES", L"Check all non-standard user data attributes"},
    {9323, "_ORTHOVAL_CHECK_GEOPAK", L"Check GEOPAK elements"},
    {9325, "_ORTHOVAL_CHECK_INROADS", L"Check InRoads elements"},
    {9326, "_ORTHOVAL_CHECK_TRIFORMA", L"Check MicroStation TriForma elements"},
};

class ThirdPartyPageTest : public DialogSession
{
};

TEST_F(ThirdPartyPageTest, EachBoxIsSavedAndShownAgain)
{
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Third Party Apps"));
    EXPECT_FALSE(CanSave());
    for (const Box& box : boxes) {
        EXPECT_EQ(box.caption, PageText(box.id));
        // Includes those whose help text says ON, because the file does not contain them.
        EXPECT_FALSE(IsPageChecked(box.id)) << box.variable;
        ClickOnPage(box.id);
        EXPECT_TRUE(CanSave());
    }
    ClickOnPage(IDC_THIRD_PARTY_INROADS);
    Save();
    for (const Box& box : boxes) {
        const char* value = box.id == IDC_THIRD_PARTY_INROADS ? " = 0" : " = 1";
        EXPECT_EQ(box.variable + std::string(value), AssignmentOf(CurrentBytes(), box.variable));
    }
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Third Party Apps"));
    for (const Box& box : boxes)
        EXPECT_EQ(box.id != IDC_THIRD_PARTY_INROADS, IsPageChecked(box.id)) << box.variable;
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_F(ThirdPartyPageTest, DefaultsReplaceWhatThePageShows)
{
    UseDefaults("_ORTHOVAL_CHECK_GEOPAK = 1\r\n");
    UseCurrent("_ORTHOVAL_CHECK_INROADS = 1\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Third Party Apps"));
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_TRUE(IsPageChecked(IDC_THIRD_PARTY_GEOPAK));
    EXPECT_FALSE(IsPageChecked(IDC_THIRD_PARTY_INROADS));
    Abandon();
}

} // namespace

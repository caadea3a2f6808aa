// The Reporting page in the dialog.
#include "pages/reporting/ids.h"
#include "resources/ids.h"
#include "tests/ui/page_session.h"

using namespace uidriver;

namespace
{

class ReportingPageTest : public PageSession
{
  protected:
    bool OpenPage() { return Open() && ShowPage(L"Reporting"); }
};

TEST_F(ReportingPageTest, MinusThreeIsDesignModelsThatTheUserMayNotChange)
{
    UseCurrent("_ORTHOVAL_REPORT_AUTOGETMODELS = -3\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(2, PageSelection(IDC_REPORTING_MODELS));
    EXPECT_FALSE(IsPageChecked(IDC_REPORTING_MODELS_USER_DEFINABLE));
    ClickOnPage(IDC_REPORTING_LEGACY_NESTING);
    Save();
    EXPECT_EQ("_ORTHOVAL_REPORT_AUTOGETMODELS = -3", Saved("_ORTHOVAL_REPORT_AUTOGETMODELS"));
}

TEST_F(ReportingPageTest, AbsentModelsPromptTheUserAndAreSavedAsSix)
{
    UseCurrent("_ORTHOVAL_REPORT_AUTOGETREFS = 1\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(5, PageSelection(IDC_REPORTING_MODELS));
    EXPECT_TRUE(IsPageChecked(IDC_REPORTING_MODELS_USER_DEFINABLE));
    ClickOnPage(IDC_REPORTING_LEGACY_NESTING);
    Save();
    EXPECT_EQ("_ORTHOVAL_REPORT_AUTOGETMODELS = 6", Saved("_ORTHOVAL_REPORT_AUTOGETMODELS"));
}

TEST_F(ReportingPageTest, ModelsBeyondTheListSelectNothingAndAreSavedAsZero)
{
    UseCurrent("_ORTHOVAL_REPORT_AUTOGETMODELS = -12\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(-1, PageSelection(IDC_REPORTING_MODELS));
    EXPECT_FALSE(IsPageChecked(IDC_REPORTING_MODELS_USER_DEFINABLE));
    ClickOnPage(IDC_REPORTING_LEGACY_NESTING);
    Save();
    EXPECT_EQ("_ORTHOVAL_REPORT_AUTOGETMODELS = 0", Saved("_ORTHOVAL_REPORT_AUTOGETMODELS"));
}

TEST_F(ReportingPageTest, ModelsAreListedInTheirOwnOrder)
{
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ((std::vector<std::wstring>{L"All Models", L"Active Model Only", L"Design Models Only",
                                         L"Sheet Models Only", L"Models With A Border", L"Prompt The User",
                                         L"Default Model Only"}),
              PageEntries(IDC_REPORTING_MODELS));
    Cancel();
}

TEST_F(ReportingPageTest, NameInAnotherCaseIsThePresetAndSavedInItsOwnSpelling)
{
    UseCurrent("_ORTHOVAL_REPORT_NAMING = \"$$userfullname$$-$$currentfile$$\"\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_TRUE(IsPageChecked(IDC_REPORTING_NAME_USER_FILE));
    EXPECT_EQ(L"$$USERFULLNAME$$-$$CURRENTFILE$$", PageText(IDC_REPORTING_NAME));
    EXPECT_FALSE(IsPageEnabled(IDC_REPORTING_NAME));
    ClickOnPage(IDC_REPORTING_LEGACY_NESTING);
    Save();
    EXPECT_EQ("_ORTHOVAL_REPORT_NAMING = \"$$USERFULLNAME$$-$$CURRENTFILE$$\"",
              Saved("_ORTHOVAL_REPORT_NAMING"));
}

TEST_F(ReportingPageTest, PlainFolderIsUserDefinedAndCanBeEdited)
{
    UseCurrent("_ORTHOVAL_REPORT_OUTPUT_DEFAULT_NAME = \"P:\\Reports\"\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_TRUE(IsPageChecked(IDC_REPORTING_FOLDER_USER_DEFINED));
    EXPECT_TRUE(IsPageEnabled(IDC_REPORTING_FOLDER));
    EXPECT_EQ(L"P:\\Reports", PageText(IDC_REPORTING_FOLDER));
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_F(ReportingPageTest, EachNameButtonPutsItsText)
{
    ASSERT_TRUE(OpenPage());
    EXPECT_TRUE(IsPageChecked(IDC_REPORTING_NAME_NONE));
    const std::pair<int, const wchar_t*> choices[] = {
        {IDC_REPORTING_NAME_USER_FILE, L"$$USERFULLNAME$$-$$CURRENTFILE$$"},
        {IDC_REPORTING_NAME_INITIALS_FILE, L"$$USERINITIALS$$-$$CURRENTFILE$$"},
        {IDC_REPORTING_NAME_INITIALS_MODEL_FILE, L"$$USERINITIALS$$-$$CURRENTMODEL$$-$$CURRENTFILE$$"},
        {IDC_REPORTING_NAME_NONE, L""},
    };
    for (const auto& [button, text] : choices) {
        ClickOnPage(button);
        EXPECT_TRUE(IsPageChecked(button));
        EXPECT_EQ(text, PageText(IDC_REPORTING_NAME));
        EXPECT_FALSE(IsPageEnabled(IDC_REPORTING_NAME));
    }
    ClickOnPage(IDC_REPORTING_NAME_INITIALS_FILE);
    ClickOnPage(IDC_REPORTING_NAME_USER_DEFINED);
    EXPECT_EQ(L"$$USERINITIALS$$-$$CURRENTFILE$$", PageText(IDC_REPORTING_NAME));
    EXPECT_TRUE(IsPageEnabled(IDC_REPORTING_NAME));
    Abandon();
}

TEST_F(ReportingPageTest, EachFolderButtonPutsItsText)
{
    ASSERT_TRUE(OpenPage());
    EXPECT_TRUE(IsPageChecked(IDC_REPORTING_FOLDER_NONE));
    const std::pair<int, const wchar_t*> choices[] = {
        {IDC_REPORTING_FOLDER_STANDARD, L"$(ORTHOVAL_CURRENT_STANDARD)"},
        {IDC_REPORTING_FOLDER_DISCIPLINE, L"$(ORTHOVAL_CURRENT_DISCIPLINE)"},
        {IDC_REPORTING_FOLDER_NONE, L""},
    };
    for (const auto& [button, text] : choices) {
        ClickOnPage(button);
        EXPECT_EQ(text, PageText(IDC_REPORTING_FOLDER));
        EXPECT_FALSE(IsPageEnabled(IDC_REPORTING_FOLDER));
    }
    ClickOnPage(IDC_REPORTING_FOLDER_USER_DEFINED);
    EXPECT_TRUE(IsPageEnabled(IDC_REPORTING_FOLDER));
    Abandon();
}

TEST_F(ReportingPageTest, LoadingTheDefaultsSetsTheEditsRight)
{
    UseDefaults("_ORTHOVAL_REPORT_OUTPUT_DEFAULT_NAME = \"P:\\Reports\"\r\n");
    UseCurrent("_ORTHOVAL_REPORT_NAMING = \"mine\"\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_TRUE(IsPageEnabled(IDC_REPORTING_NAME));
    EXPECT_FALSE(IsPageEnabled(IDC_REPORTING_FOLDER));
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_TRUE(IsPageChecked(IDC_REPORTING_NAME_NONE));
    EXPECT_FALSE(IsPageEnabled(IDC_REPORTING_NAME));
    EXPECT_TRUE(IsPageChecked(IDC_REPORTING_FOLDER_USER_DEFINED));
    EXPECT_TRUE(IsPageEnabled(IDC_REPORTING_FOLDER));
    Abandon();
}

TEST_F(ReportingPageTest, ArrowsStepWithinTheirRanges)
{
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(std::pair(1, 10000), RangeOfSpin(IDC_REPORTING_MAX_ERRORS_SPIN, IDC_REPORTING_MAX_ERRORS));
    EXPECT_EQ(std::pair(-1, 99), RangeOfSpin(IDC_REPORTING_NEST_LEVEL_SPIN, IDC_REPORTING_NEST_LEVEL));
    TypeOnPage(IDC_REPORTING_NEST_LEVEL, L"1");
    Focus(PageControl(IDC_REPORTING_NEST_LEVEL));
    for (int press = 0; press < 4; ++press)
        PostKey(Dialog(), VK_DOWN);
    EXPECT_EQ(L"-1", PageText(IDC_REPORTING_NEST_LEVEL));
    TypeOnPage(IDC_REPORTING_MAX_ERRORS, L"9999");
    Focus(PageControl(IDC_REPORTING_MAX_ERRORS));
    PostKey(Dialog(), VK_UP);
    PostKey(Dialog(), VK_UP);
    EXPECT_EQ(L"10000", PageText(IDC_REPORTING_MAX_ERRORS)); // no thousands separator
    Abandon();
}

TEST_F(ReportingPageTest, NumbersTakeNoOtherCharacterThanADigit)
{
    ASSERT_TRUE(OpenPage());
    for (const int edit : {IDC_REPORTING_MAX_ERRORS, IDC_REPORTING_NEST_LEVEL}) {
        TypeText(PageControl(edit), L"-1x2 .3");
        EXPECT_EQ(L"123", PageText(edit)) << edit;
    }
    Abandon();
}

TEST_F(ReportingPageTest, FilesToIgnoreAreEditedAsFiles)
{
    ASSERT_TRUE(OpenPage());
    TypeOnPage(IDC_REPORTING_IGNORED, L"a.dgn;b.dgn");
    const Editor editor = UseEditor(IDC_REPORTING_IGNORED_BROWSE, IDOK, L"c.dgn");
    EXPECT_EQ((std::vector<std::wstring>{L"a.dgn", L"b.dgn"}), editor.rows);
    EXPECT_EQ(1, editor.fields);
    EXPECT_TRUE(editor.browses);
    EXPECT_EQ(L"a.dgn;b.dgn;c.dgn", PageText(IDC_REPORTING_IGNORED));
    Abandon();
}

TEST_F(ReportingPageTest, RefusalTakesTheFocusAway)
{
    ASSERT_TRUE(OpenPage());
    ExpectRefusal(IDC_REPORTING_IGNORED, IDC_REPORTING_IGNORED_BROWSE, 0);
    Abandon();
}

} // namespace

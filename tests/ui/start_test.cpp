// Opens the dialog without files, with one, with both, and with a current file
// that cannot be read.
#include "pages/branding/ids.h"
#include "pages/conforming/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

using namespace uidriver;

namespace
{

class StartTest : public DialogSession
{
  protected:
    /// All checked check boxes of the visible page.
    std::vector<std::string> CheckedSettings(const std::vector<PageSetting>& settings)
    {
        std::vector<std::string> checked;
        for (const auto& setting : settings) {
            if (setting.kind == PageSetting::Flag && IsPageChecked(setting.control))
                checked.push_back(setting.variable);
        }
        return checked;
    }
};

constexpr const char* someDefaults = "_ORTHOVAL_CHECK_CELLS = 1\r\n"
                                     "_ORTHOVAL_MAX_ERROR_UORS = 7\r\n"
                                     "_ORTHOVAL_CHECK_IGNORED_LEVELS = \"Scratch,Notes\"\r\n"
                                     "_ORTHOVAL_BRANDING_CERTIFY = 1\r\n";
constexpr const char* someCurrent = "_ORTHOVAL_CHECK_TAGS = 1\r\n"
                                    "_ORTHOVAL_MAX_ERROR_UORS = 42\r\n"
                                    "_ORTHOVAL_BRANDING_AUTO = 1\r\n";

TEST_F(StartTest, WithNeitherFileNothingCanBeSavedOrLoadedAndCancelClosesAtOnce)
{
    ASSERT_TRUE(Open());
    EXPECT_EQ(L"", GetText(Control(IDC_PREFERENCES_CONFIG_FILE)));
    EXPECT_FALSE(CanSave());
    EXPECT_FALSE(CanLoadDefaults());
    Cancel();
}

TEST_F(StartTest, WithNeitherFilePagesShowEmptySettings)
{
    // Loading from the empty table replaces the initial values of the pages.
    ASSERT_TRUE(Open());
    EXPECT_EQ(std::vector<std::string>{}, CheckedSettings(BrandingSettings()));
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_EQ(std::vector<std::string>{}, CheckedSettings(ConformingSettings()));
    EXPECT_EQ(L"", PageText(IDC_CONFORMING_MAX_ERROR));
    EXPECT_EQ(L"", PageText(IDC_CONFORMING_MIN_ERROR));
    Cancel();
}

TEST_F(StartTest, WithDefaultsOnlyTheirValuesAreShownUnmodified)
{
    UseDefaults(someDefaults);
    ASSERT_TRUE(Open());
    EXPECT_FALSE(CanSave());
    EXPECT_TRUE(CanLoadDefaults());
    EXPECT_EQ(std::vector<std::string>{"_ORTHOVAL_BRANDING_CERTIFY"}, CheckedSettings(BrandingSettings()));
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_EQ(std::vector<std::string>{"_ORTHOVAL_CHECK_CELLS"}, CheckedSettings(ConformingSettings()));
    EXPECT_EQ(L"7", PageText(IDC_CONFORMING_MAX_ERROR));
    EXPECT_EQ(L"Scratch,Notes", PageText(IDC_CONFORMING_IGNORED_LEVELS));
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_F(StartTest, WithBothFilesTheCurrentOnesAreShownUnmodified)
{
    UseDefaults(someDefaults);
    UseCurrent(someCurrent);
    ASSERT_TRUE(Open());
    EXPECT_EQ(m_currentPath, GetText(Control(IDC_PREFERENCES_CONFIG_FILE)));
    EXPECT_FALSE(CanSave());
    EXPECT_TRUE(CanLoadDefaults());
    EXPECT_EQ(std::vector<std::string>{"_ORTHOVAL_BRANDING_AUTO"}, CheckedSettings(BrandingSettings()));
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_EQ(std::vector<std::string>{"_ORTHOVAL_CHECK_TAGS"}, CheckedSettings(ConformingSettings()));
    EXPECT_EQ(L"42", PageText(IDC_CONFORMING_MAX_ERROR));
    EXPECT_EQ(L"", PageText(IDC_CONFORMING_IGNORED_LEVELS));
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_F(StartTest, WithACurrentFileOnlyNoDefaultsCanBeLoaded)
{
    UseCurrent(someCurrent);
    ASSERT_TRUE(Open());
    EXPECT_FALSE(CanSave());
    EXPECT_FALSE(CanLoadDefaults());
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_AUTO));
    Cancel();
}

TEST_F(StartTest, DefaultsFileWithoutVariablesCannotBeLoadedAgain)
{
    UseDefaults("# nothing but a comment\r\n");
    ASSERT_TRUE(Open());
    EXPECT_FALSE(CanLoadDefaults());
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_F(StartTest, MissingCurrentFileAloneLeavesTheDialogUnmodified)
{
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(Open());
    EXPECT_EQ(m_currentPath, GetText(Control(IDC_PREFERENCES_CONFIG_FILE)));
    EXPECT_FALSE(CanSave());
    ClickOnPage(IDC_BRANDING_AUTO);
    EXPECT_TRUE(CanSave());
    Save();
    EXPECT_EQ("_ORTHOVAL_BRANDING_AUTO = 1", AssignmentOf(CurrentBytes(), "_ORTHOVAL_BRANDING_AUTO"));
}

TEST_F(StartTest, MissingCurrentFileStaysModifiedAsTheDefaultsLeftIt)
{
    UseDefaults(someDefaults);
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(Open());
    EXPECT_TRUE(CanSave());
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_CERTIFY));
    Save();
    EXPECT_EQ("_ORTHOVAL_BRANDING_CERTIFY = 1", AssignmentOf(CurrentBytes(), "_ORTHOVAL_BRANDING_CERTIFY"));
    EXPECT_EQ("_ORTHOVAL_MAX_ERROR_UORS = 7", AssignmentOf(CurrentBytes(), "_ORTHOVAL_MAX_ERROR_UORS"));
}

TEST_F(StartTest, UnreadableCurrentFileIsReportedAndTheDialogStaysUsable)
{
    UseDefaults(someDefaults);
    UseCurrent(someCurrent);
    HANDLE held = CreateFileW(m_currentPath.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, held);
    Begin();
    const auto box = AwaitBox();
    EXPECT_NE(L"", box.text);
    ASSERT_EQ(1U, box.buttons.size());
    EXPECT_EQ(nullptr, GetWindow(box.window, GW_OWNER));
    Answer(box, IDOK);
    ASSERT_TRUE(AwaitDialog());
    CloseHandle(held);
    EXPECT_EQ(m_currentPath, GetText(Control(IDC_PREFERENCES_CONFIG_FILE)));
    EXPECT_TRUE(CanSave());
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_CERTIFY));
    EXPECT_FALSE(IsPageChecked(IDC_BRANDING_AUTO));
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_EQ(L"7", PageText(IDC_CONFORMING_MAX_ERROR));
    Abandon();
    EXPECT_EQ(someCurrent, CurrentBytes());
}

TEST_F(StartTest, UnreadableCurrentFileAloneLeavesTheDialogUnmodified)
{
    UseCurrent(someCurrent);
    HANDLE held = CreateFileW(m_currentPath.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, held);
    Begin();
    Answer(AwaitBox(), IDOK);
    ASSERT_TRUE(AwaitDialog());
    CloseHandle(held);
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_F(StartTest, MissingDefaultsFileIsNoError)
{
    m_defaultPath = m_folder / L"nowhere.cfg";
    UseCurrent(someCurrent);
    ASSERT_TRUE(Open());
    EXPECT_FALSE(CanLoadDefaults());
    EXPECT_FALSE(CanSave());
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_AUTO));
    Cancel();
}

TEST_F(StartTest, BrandingIsShownFirst)
{
    ASSERT_TRUE(Open());
    EXPECT_TRUE(PageControl(IDC_BRANDING_RENAME));
    EXPECT_EQ(0, ListViewSelection(List()));
    Cancel();
}

TEST_F(StartTest, DialogCarriesItsCaptionIconsAndFrame)
{
    ASSERT_TRUE(Open());
    EXPECT_EQ(L"Preferences", GetText(Dialog()));
    EXPECT_NE(0, Send(Dialog(), WM_GETICON, ICON_BIG));
    EXPECT_NE(0, Send(Dialog(), WM_GETICON, ICON_SMALL));
    constexpr LONG_PTR frame = WS_CAPTION | WS_SYSMENU | WS_THICKFRAME;
    EXPECT_EQ(frame, GetWindowLongPtrW(Dialog(), GWL_STYLE) & frame);
    Cancel();
}

} // namespace

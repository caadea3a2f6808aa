// The focus fields describe the control with the focus.
#include "pages/branding/ids.h"
#include "pages/conforming/ids.h"
#include "pages/reporting/ids.h"
#include "resources/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"
#include "tests/ui/value_editor.h"

using namespace uidriver;

namespace
{

std::wstring Wide(const std::string& ascii)
{
    return {ascii.begin(), ascii.end()};
}

class FocusItemsTest : public DialogSession
{
  protected:
    static constexpr unsigned FollowDeadline = 3000;

    std::wstring Name() { return GetText(Control(IDC_PREFERENCES_VARIABLE_NAME)); }
    std::wstring Description() { return GetText(Control(IDC_PREFERENCES_DESCRIPTION)); }

    /// Focuses the control and expects these texts in the fields.
    void ExpectItem(HWND control, const std::string& variable, const std::string& description)
    {
        SCOPED_TRACE(testing::PrintToString(GetText(control)));
        Focus(control);
        ASSERT_EQ(control, FocusIn(Dialog()));
        // The fields are updated with the next message that the dialog handles.
        Await([&] { return Name() == Wide(variable) && Description() == Wide(description); }, FollowDeadline);
        EXPECT_EQ(Wide(variable), Name());
        EXPECT_EQ(Wide(description), Description());
    }

    void ExpectSettings(const std::vector<PageSetting>& settings)
    {
        for (const auto& setting : settings) {
            const std::string description = HelpSection(setting.help, "<D>");
            ASSERT_NE("", description);
            ExpectItem(PageControl(setting.control), setting.variable, description);
        }
    }
};

TEST_F(FocusItemsTest, FollowTheFocusThroughBranding)
{
    ASSERT_TRUE(Open());
    ExpectSettings(BrandingSettings());
    ExpectItem(PageControl(IDC_BRANDING_RENAME_BROWSE), "_ORTHOVAL_BRANDING_RENAME_TABLES",
               HelpSection(2064, "<D>"));
    Cancel();
}

TEST_F(FocusItemsTest, FollowTheFocusThroughConforming)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    ExpectSettings(ConformingSettings());
    ExpectItem(PageControl(IDC_CONFORMING_IGNORED_LEVELS_BROWSE), "_ORTHOVAL_CHECK_IGNORED_LEVELS",
               HelpSection(9319, "<D>"));
    Cancel();
}

TEST_F(FocusItemsTest, ControlsOfTheDialogHaveADescriptionAndNoVariable)
{
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO); // a disabled Save takes no focus
    ExpectItem(List(), "", "Displaying the list of all preferences settings.");
    ExpectItem(Control(IDC_PREFERENCES_CONFIG_FILE), "",
               "Specifies the currently loaded configuration file path.");
    ExpectItem(
        Control(IDC_PREFERENCES_BROWSE), "",
        "Sets the current configuration file to work with. Selecting an existing file will load the "
        "settings from it. Selecting a new file will define the location to save the existing settings "
        "to.");
    ExpectItem(Control(IDC_PREFERENCES_SAVE), "", "Saves the preferences and closes the dialog.");
    ExpectItem(Control(IDC_PREFERENCES_CANCEL), "", "Closes the dialog without applying changes.");
    Abandon();
}

TEST_F(FocusItemsTest, ControlWithoutHelpClearsBothFields)
{
    UseDefaults("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    ASSERT_TRUE(Open());
    ExpectItem(PageControl(IDC_BRANDING_AUTO), "_ORTHOVAL_BRANDING_AUTO", HelpSection(2059, "<D>"));
    ExpectItem(Control(IDC_PREFERENCES_LOAD_DEFAULTS), "", "");
    Cancel();
}

TEST_F(FocusItemsTest, TheFieldsThemselvesLeaveTheLastItem)
{
    ASSERT_TRUE(Open());
    const std::string description = HelpSection(2060, "<D>");
    for (const int field : {IDC_PREFERENCES_DESCRIPTION, IDC_PREFERENCES_VARIABLE_NAME}) {
        ExpectItem(PageControl(IDC_BRANDING_OVERRIDE), "_ORTHOVAL_BRANDING_OVERRIDE", description);
        ExpectItem(Control(field), "_ORTHOVAL_BRANDING_OVERRIDE", description);
        ClickAt(Control(field), {3, 3});
        EXPECT_EQ(L"_ORTHOVAL_BRANDING_OVERRIDE", Name());
        EXPECT_EQ(Wide(description), Description());
        ExpectItem(PageControl(IDC_BRANDING_AUTO), "_ORTHOVAL_BRANDING_AUTO", HelpSection(2059, "<D>"));
    }
    Cancel();
}

TEST_F(FocusItemsTest, FollowTheFocusThroughTheListEditor)
{
    UseCurrent("_ORTHOVAL_REPORT_IGNORED_REFFILES = a;b\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Reporting"));
    Focus(PageControl(IDC_REPORTING_IGNORED_BROWSE));
    HWND editor = OpenValueEditor(PageControl(IDC_REPORTING_IGNORED_BROWSE));
    ASSERT_TRUE(editor);
    const struct {
        int control;
        std::wstring description;
    } items[] = {
        {IDC_CONFIG_SETTING_LIST, L"This list contains all values of the setting."},
        {IDOK, L"Saves the changes and closes the dialog."},
        {IDCANCEL, L"Closes the dialog without applying changes."},
        {IDC_CONFIG_SETTING_INSERT, L"Inserts the value into list."},
        {IDC_CONFIG_SETTING_DELETE, L"Deletes the selected row(s) from defined values list."},
        {IDC_CONFIG_SETTING_MOVE_DOWN, L""},
        {IDC_CONFIG_SETTING_VALUE, L"Define a value for the setting."},
        {IDC_CONFIG_SETTING_BROWSE, L"Opens a file requestor dialog to browse for the required file."},
        {IDC_CONFIG_SETTING_LIST, L"This list contains all values of the setting."},
    };
    for (const auto& item : items) {
        SCOPED_TRACE(item.control);
        EXPECT_EQ(GetDlgItem(editor, item.control), FocusIn(editor));
        EXPECT_TRUE(
            Await([&] { return Description() == item.description && Name().empty(); }, FollowDeadline))
            << testing::PrintToString(Description());
        PostKey(editor, VK_TAB);
    }
    CloseValueEditor(editor, IDCANCEL);
    EXPECT_TRUE(Await([&] { return Name() == L"_ORTHOVAL_REPORT_IGNORED_REFFILES"; }, FollowDeadline));
    Cancel();
}

TEST_F(FocusItemsTest, FollowClicksAndTabs)
{
    ASSERT_TRUE(Open());
    ClickAt(PageControl(IDC_BRANDING_RENAME), {3, 3});
    EXPECT_EQ(L"_ORTHOVAL_BRANDING_RENAME_TABLES", Name());
    EXPECT_EQ(Wide(HelpSection(2063, "<D>")), Description());
    PostKey(Dialog(), VK_TAB);
    EXPECT_EQ(Wide(HelpSection(2064, "<D>")), Description());
    Cancel();
}

} // namespace

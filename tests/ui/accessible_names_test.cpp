// The accessible name of every control of every window.
#include "pages/conforming/ids.h"
#include "pages/files/ids.h"
#include "pages/misc/ids.h"
#include "pages/reporting/ids.h"
#include "pages/scan_period/ids.h"
#include "pages/title_block/ids.h"
#include "pages/weighting/ids.h"
#include "resources/ids.h"
#include "tests/support/name_recorder.h"
#include "tests/ui/built_pages.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/value_editor.h"

#include <commctrl.h>
#include <set>

using namespace uidriver;

namespace
{

DWORD ButtonType(HWND control)
{
    return ClassOf(control) == L"Button"
               ? static_cast<DWORD>(GetWindowLongPtrW(control, GWL_STYLE)) & BS_TYPEMASK
               : ~0U;
}

bool IsLabel(HWND window)
{
    return window && ClassOf(window) == L"Static";
}

/// Whether the user can reach the window by keyboard or click into it.
bool IsControl(HWND window)
{
    static const std::set<std::wstring> classes = {L"Button",        L"ComboBox",         L"Edit",
                                                   L"SysListView32", DATETIMEPICK_CLASSW, UPDOWN_CLASSW,
                                                   TRACKBAR_CLASSW};
    return classes.contains(ClassOf(window)) && ButtonType(window) != BS_GROUPBOX;
}

class AccessibleNamesTest : public DialogSession
{
  protected:
    HWND OpenRecorded()
    {
        return Open([this] {
            const NameRecorder recorder(m_requests);
            EXPECT_TRUE(recorder.IsRegistered());
            return Library::Get().ShowDialogEx()(nullptr, m_defaultPath.c_str(), m_currentPath.c_str(),
                                                 m_user.c_str());
        });
    }

    /// The name that a screen reader finds: the one that the program set, otherwise the
    /// system's, which is a button's caption or an edit's label. Some systems do not
    /// look for the labels of other inputs.
    std::wstring NameOf(HWND control)
    {
        const auto named = m_requests.names.find(control);
        if (named != m_requests.names.end())
            return named->second;
        const std::wstring windowClass = ClassOf(control);
        if (windowClass == L"Button" || windowClass == L"Edit")
            return SystemName(control);
        HWND label = GetWindow(control, GW_HWNDPREV);
        return IsLabel(label) ? GetText(label) : L"";
    }
    std::wstring NameOnPage(int id) { return NameOf(PageControl(id)); }

    /// Every control has a meaningful name. Two controls of a kind may share a name
    /// only if a frame distinguishes them.
    void ExpectNamed(HWND window)
    {
        std::set<std::pair<std::wstring, std::wstring>> seen;
        int controls = 0;
        for (HWND control : Children(window)) {
            if (!IsControl(control))
                continue;
            ++controls;
            const std::wstring name = NameOf(control);
            const std::string shown =
                std::to_string(GetDlgCtrlID(control)) + " " + testing::PrintToString(name);
            EXPECT_GE(name.size(), 2u) << shown;
            EXPECT_NE(L"...", name) << shown;
            EXPECT_EQ(std::wstring::npos, name.find_first_of(L"&%")) << shown;
            EXPECT_TRUE(seen.insert({ClassOf(control), name}).second ||
                        ButtonType(control) == BS_AUTORADIOBUTTON)
                << shown;
        }
        EXPECT_GT(controls, 0);
    }

    NameRequests m_requests;
};

TEST_F(AccessibleNamesTest, EveryControlOfTheDialogAndItsPagesHasOne)
{
    ASSERT_TRUE(OpenRecorded());
    ExpectNamed(Dialog());
    ExpectNamed(GetParent(List()));
    ASSERT_FALSE(BuiltTitles().empty());
    for (const std::wstring& title : BuiltTitles()) {
        SCOPED_TRACE(testing::PrintToString(title));
        ASSERT_TRUE(ShowPage(title));
        ExpectNamed(Page());
    }
    EXPECT_EQ(0, m_requests.failures);
    Cancel();
}

TEST_F(AccessibleNamesTest, OfTheDialogSayWhatAButtonIsFor)
{
    ASSERT_TRUE(OpenRecorded());
    EXPECT_EQ(L"Category", NameOf(List()));
    EXPECT_EQ(L"Browse for Config File", NameOf(Control(IDC_PREFERENCES_BROWSE)));
    EXPECT_EQ(L"Save", NameOf(Control(IDC_PREFERENCES_SAVE)));
    EXPECT_EQ(L"Load Default Preferences", NameOf(Control(IDC_PREFERENCES_LOAD_DEFAULTS)));
    Cancel();
}

TEST_F(AccessibleNamesTest, OfPagesSayWhatBelongsTogether)
{
    ASSERT_TRUE(OpenRecorded());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_EQ(L"Globally ignored levels", NameOnPage(IDC_CONFORMING_IGNORED_LEVELS));
    EXPECT_EQ(L"Edit the entries of Globally ignored levels",
              NameOnPage(IDC_CONFORMING_IGNORED_LEVELS_BROWSE));
    EXPECT_EQ(NameOnPage(IDC_CONFORMING_MAX_ERROR), NameOnPage(IDC_CONFORMING_MAX_ERROR_SPIN));
    ASSERT_TRUE(ShowPage(L"File Paths"));
    EXPECT_EQ(L"Browse for Dictionary Directory", NameOnPage(IDC_FILES_DICTIONARY_BROWSE));
    EXPECT_EQ(L"Browse for Users File", NameOnPage(IDC_FILES_USERS_BROWSE));
    ASSERT_TRUE(ShowPage(L"Title Blocks"));
    EXPECT_EQ(L"Allowed Tag Sets", NameOnPage(IDC_TITLE_BLOCK_TAG_SETS));
    EXPECT_EQ(L"Edit the entries of Allowed Tag Sets", NameOnPage(IDC_TITLE_BLOCK_TAG_SETS_BROWSE));
    ASSERT_TRUE(ShowPage(L"Reporting"));
    EXPECT_EQ(L"Default Report Name", NameOnPage(IDC_REPORTING_NAME));
    EXPECT_EQ(L"Default Report Folder", NameOnPage(IDC_REPORTING_FOLDER));
    ASSERT_TRUE(ShowPage(L"Score Weighting"));
    EXPECT_EQ(L"Colour", NameOnPage(IDC_WEIGHTING_COLOUR));
    EXPECT_EQ(L"Colour", NameOnPage(IDC_WEIGHTING_COLOUR_VALUE));
    Cancel();
}

TEST_F(AccessibleNamesTest, OfTheScanPeriodTellTheTwoDatesApart)
{
    ASSERT_TRUE(OpenRecorded());
    ASSERT_TRUE(ShowPage(L"Scan Period"));
    EXPECT_EQ(L"Before or after the first date or event", NameOnPage(IDC_SCAN_PERIOD_SEGMENT_1));
    EXPECT_EQ(L"First date or event", NameOnPage(IDC_SCAN_PERIOD_MODE_1));
    EXPECT_EQ(L"First date", NameOnPage(IDC_SCAN_PERIOD_DATE_1));
    EXPECT_EQ(L"Use a second date", NameOnPage(IDC_SCAN_PERIOD_SECOND));
    EXPECT_EQ(L"How the second date is joined to the first", NameOnPage(IDC_SCAN_PERIOD_OPERATOR));
    EXPECT_EQ(L"Before or after the second date or event", NameOnPage(IDC_SCAN_PERIOD_SEGMENT_2));
    EXPECT_EQ(L"Second date or event", NameOnPage(IDC_SCAN_PERIOD_MODE_2));
    EXPECT_EQ(L"Second date", NameOnPage(IDC_SCAN_PERIOD_DATE_2));
    EXPECT_EQ(L"Which of the two dates counts", NameOnPage(IDC_SCAN_PERIOD_OR_SELECTOR));
    Cancel();
}

TEST_F(AccessibleNamesTest, OfTheListEditorSayWhatIconsShow)
{
    ASSERT_TRUE(OpenRecorded());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    HWND editor = OpenValueEditor(PageControl(IDC_CONFORMING_IGNORED_LEVELS_BROWSE));
    ASSERT_TRUE(editor);
    ExpectNamed(editor);
    const auto name = [&](int id) { return NameOf(GetDlgItem(editor, id)); };
    EXPECT_EQ(L"Setting Values", name(IDC_CONFIG_SETTING_LIST));
    EXPECT_EQ(L"Value", name(IDC_CONFIG_SETTING_VALUE));
    EXPECT_EQ(L"Move up", name(IDC_CONFIG_SETTING_MOVE_UP));
    EXPECT_EQ(L"Move down", name(IDC_CONFIG_SETTING_MOVE_DOWN));
    EXPECT_EQ(L"Browse for a file", name(IDC_CONFIG_SETTING_BROWSE));
    EXPECT_EQ(L"Insert", name(IDC_CONFIG_SETTING_INSERT));
    CloseValueEditor(editor, IDCANCEL);
    EXPECT_EQ(5u, m_requests.cleared.size());
    EXPECT_EQ(0, m_requests.failures);
    Cancel();
}

TEST_F(AccessibleNamesTest, OfThePatternTesterAreItsLabels)
{
    ASSERT_TRUE(OpenRecorded());
    ASSERT_TRUE(ShowPage(L"Miscellaneous"));
    ClickOnPage(IDC_MISC_WILDCARD_TEST);
    HWND tester = AwaitTopWindow(L"Regular Expression Tester", GetCurrentProcessId());
    ASSERT_TRUE(tester);
    ExpectNamed(tester);
    const auto name = [&](int id) { return NameOf(GetDlgItem(tester, id)); };
    EXPECT_EQ(L"Regex Type:", name(IDC_REGEX_TESTER_TYPE));
    EXPECT_EQ(L"Regular Expression:", name(IDC_REGEX_TESTER_TEMPLATE));
    EXPECT_EQ(L"Test String:", name(IDC_REGEX_TESTER_TEST_STRING));
    EXPECT_EQ(L"Test Match", name(IDC_REGEX_TESTER_TEST_MATCH));
    EXPECT_EQ(L"Result:", name(IDC_REGEX_TESTER_RESULT));
    PostMessageW(tester, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(AwaitGone(tester));
    Settle(Dialog());
    Cancel();
}

TEST_F(AccessibleNamesTest, AreTakenBackBeforeTheWindowsGo)
{
    ASSERT_TRUE(OpenRecorded());
    EXPECT_GT(m_requests.names.size(), 50u);
    Cancel();
    EXPECT_EQ(0u, m_requests.names.size());
    EXPECT_EQ(0, m_requests.failures); // no names for windows that were already destroyed
}

} // namespace

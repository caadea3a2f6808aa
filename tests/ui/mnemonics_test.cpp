// The mnemonics in the captions of every window.
#include "pages/branding/ids.h"
#include "pages/conforming/ids.h"
#include "pages/misc/ids.h"
#include "pages/title_block/ids.h"
#include "resources/ids.h"
#include "tests/ui/built_pages.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/reading_order.h"
#include "tests/ui/value_editor.h"

#include <map>

using namespace uidriver;

namespace
{

/// The mnemonic of a caption; 0 for none.
wchar_t KeyOf(const std::wstring& caption)
{
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != L'&')
            continue;
        if (caption[i + 1] != L'&')
            return static_cast<wchar_t>(std::towupper(caption[i + 1]));
        ++i;
    }
    return 0;
}

/// Collects the visible controls by mnemonic, including those of child dialogs. A
/// mnemonic that two of them share fails the test.
void CollectKeys(HWND window, std::map<wchar_t, HWND>& keys)
{
    for (HWND child : Children(window)) {
        if (!IsWindowVisible(child))
            continue;
        const std::wstring windowClass = ClassOf(child);
        if (windowClass != L"Button" && windowClass != L"Static") {
            CollectKeys(child, keys);
            continue;
        }
        const wchar_t key = KeyOf(GetText(child));
        EXPECT_TRUE(key == 0 || keys.insert({key, child}).second)
            << GetDlgCtrlID(child) << " and " << GetDlgCtrlID(keys[key]);
    }
}

std::wstring KeysOf(HWND window)
{
    std::map<wchar_t, HWND> keys;
    CollectKeys(window, keys);
    std::wstring all;
    for (const auto& [key, control] : keys)
        all += key;
    return all;
}

class MnemonicsTest : public DialogSession
{
  protected:
    /// Opens the list editor for four entries, which are files or not. The second one is
    /// selected, so every button is enabled.
    HWND OpenEditor(bool files)
    {
        EXPECT_TRUE(ShowPage(files ? L"Title Blocks" : L"Conforming"));
        HWND editor = OpenValueEditor(
            PageControl(files ? IDC_TITLE_BLOCK_LIBRARY_BROWSE : IDC_CONFORMING_IGNORED_LEVELS_BROWSE));
        EXPECT_TRUE(editor);
        if (editor)
            SelectOnly(GetDlgItem(editor, IDC_CONFIG_SETTING_LIST), 1);
        return editor;
    }
    void UseEntries()
    {
        UseCurrent("_ORTHOVAL_CHECK_IGNORED_LEVELS = a,b,c,d\r\n_ORTHOVAL_TITLEBLOCK_CELLLIBS = a;b;c;d\r\n");
    }
};

TEST_F(MnemonicsTest, OfTheDialogWorkFromEveryPage)
{
    UseDefaults("_ORTHOVAL_BRANDING_RENAME_TABLES = d:e\r\n");
    ASSERT_TRUE(Open());
    HWND text = PageControl(IDC_BRANDING_RENAME);
    for (const std::wstring& title : BuiltTitles()) {
        SCOPED_TRACE(testing::PrintToString(title));
        ASSERT_TRUE(ShowPage(title));
        // The test presses each of them.
        EXPECT_EQ(L"CDS", KeysOf(Dialog()));
        const auto stops = TabStopsInReadingOrder(Page());
        Focus(stops.empty() ? List() : stops.front());
        SetText(text, L"x");
        EXPECT_TRUE(PressKey(Dialog(), 'D', VK_MENU));
        EXPECT_EQ(L"d:e", GetText(text));
        EXPECT_TRUE(PressKey(Dialog(), 'C', VK_MENU));
        AnswerAbandonQuestion(IDCANCEL);
        EXPECT_TRUE(PressKey(Dialog(), 'S', VK_MENU));
        AnswerBox(L"Error: No configuration file has been defined. Use the '...' button at the top of the "
                  L"dialog window to define an output file name for the configuration file.",
                  {IDOK}, IDOK);
        ExpectOpen();
    }
    Abandon();
}

TEST_F(MnemonicsTest, OfTheListEditorWorkFromEveryControl)
{
    UseEntries();
    ASSERT_TRUE(Open());
    for (const bool files : {false, true}) {
        SCOPED_TRACE(files ? "with browsing" : "without browsing");
        HWND editor = OpenEditor(files);
        ASSERT_TRUE(editor);
        EXPECT_EQ(L"CDIO", KeysOf(editor));
        HWND list = GetDlgItem(editor, IDC_CONFIG_SETTING_LIST);
        std::vector<std::wstring> rows = {L"a", L"b", L"c", L"d"};
        for (HWND stop : TabStopsInReadingOrder(editor)) {
            SCOPED_TRACE(GetDlgCtrlID(stop));
            // With a row in the middle selected and a value typed, every button is enabled.
            SelectOnly(list, 1);
            Focus(stop);
            EXPECT_TRUE(PressKey(editor, 'D', VK_MENU));
            const std::wstring deleted = rows[1];
            rows.erase(rows.begin() + 1);
            EXPECT_EQ(rows, ValueEditorRows(editor));
            SelectOnly(list, 1);
            SetText(GetDlgItem(editor, IDC_CONFIG_SETTING_VALUE), deleted);
            Focus(stop);
            EXPECT_TRUE(PressKey(editor, 'I', VK_MENU));
            rows.push_back(deleted);
            EXPECT_EQ(rows, ValueEditorRows(editor));
        }
        CloseValueEditor(editor, IDCANCEL);
    }
    Cancel();
}

TEST_F(MnemonicsTest, OfTheListEditorCloseIt)
{
    UseEntries();
    ASSERT_TRUE(Open());
    for (const int id : {IDC_CONFIG_SETTING_LIST, IDC_CONFIG_SETTING_VALUE}) {
        for (const WORD key : {WORD{'C'}, WORD{'O'}}) {
            HWND editor = OpenEditor(false);
            ASSERT_TRUE(editor);
            SelectOnly(GetDlgItem(editor, IDC_CONFIG_SETTING_LIST), 0);
            Click(GetDlgItem(editor, IDC_CONFIG_SETTING_DELETE));
            Focus(GetDlgItem(editor, id));
            EXPECT_TRUE(PressKey(editor, key, VK_MENU));
            EXPECT_TRUE(AwaitGone(editor));
            Settle(Dialog());
            EXPECT_EQ(key == 'O' ? L"b,c,d" : L"a,b,c,d", PageText(IDC_CONFORMING_IGNORED_LEVELS));
            TypeOnPage(IDC_CONFORMING_IGNORED_LEVELS, L"a,b,c,d");
        }
    }
    Abandon();
}

TEST_F(MnemonicsTest, OfThePatternTesterDoNotExist)
{
    // Its captions have no mnemonics. If one gets a mnemonic, this test has to press
    // it.
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Miscellaneous"));
    ClickOnPage(IDC_MISC_WILDCARD_TEST);
    HWND tester = AwaitTopWindow(L"Regular Expression Tester", GetCurrentProcessId());
    ASSERT_TRUE(tester);
    EXPECT_EQ(L"", KeysOf(tester));
    PostKey(tester, VK_ESCAPE);
    EXPECT_TRUE(AwaitGone(tester));
    Settle(Dialog());
    Cancel();
}

} // namespace

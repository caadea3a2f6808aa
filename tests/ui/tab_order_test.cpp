// Tab and Shift+Tab through every window.
#include "pages/conforming/ids.h"
#include "pages/drawing_scales/ids.h"
#include "pages/logging/ids.h"
#include "pages/misc/ids.h"
#include "pages/scan_period/ids.h"
#include "pages/signature_cell/ids.h"
#include "pages/title_block/ids.h"
#include "resources/ids.h"
#include "tests/ui/built_pages.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/reading_order.h"
#include "tests/ui/tab_walk.h"
#include "tests/ui/value_editor.h"

#include <set>
#include <utility>

using namespace uidriver;

namespace
{

bool IsTicked(HWND box)
{
    return CheckState(box) == BST_CHECKED;
}

class TabOrderTest : public DialogSession
{
  protected:
    std::vector<HWND> BoxesOfPage(DWORD type)
    {
        auto boxes = Children(Page());
        std::erase_if(boxes, [&](HWND window) {
            const auto style = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
            return ClassOf(window) != L"Button" || (style & BS_TYPEMASK) != type ||
                   !IsWindowVisible(window) || !IsWindowEnabled(window);
        });
        return boxes;
    }

    /// Checks every check box and chooses the last radio button of each group, repeatedly
    /// while that enables or shows more of them: Tab must reach the controls that they
    /// enable, too.
    void TickEverything()
    {
        for (bool changed = true; changed;) {
            changed = false;
            for (HWND box : BoxesOfPage(BS_AUTOCHECKBOX)) {
                if (!IsTicked(box) && IsWindowEnabled(box)) {
                    Click(box);
                    changed = changed || IsTicked(box);
                }
            }
        }
        const auto buttons = BoxesOfPage(BS_AUTORADIOBUTTON);
        for (std::size_t i = 0; i < buttons.size(); ++i) {
            const bool isLast =
                i + 1 == buttons.size() || (GetWindowLongPtrW(buttons[i + 1], GWL_STYLE) & WS_GROUP) != 0;
            if (isLast)
                Click(buttons[i]);
        }
    }

    /// Walks around once and expects the focused control to be visible.
    void ExpectPageCycle()
    {
        ExpectTabCycle(Dialog(), List(), [this](HWND control) { ExpectInView(control); });
    }

    /// The page's tab stops that Tab skips, because they are hidden or disabled.
    std::set<int> PassedStops()
    {
        std::set<int> passed;
        for (HWND control : Children(Page())) {
            const bool isStop = (GetWindowLongPtrW(control, GWL_STYLE) & WS_TABSTOP) != 0;
            if (isStop && !(IsWindowVisible(control) && IsWindowEnabled(control)))
                passed.insert(GetDlgCtrlID(control));
        }
        return passed;
    }

    /// Expects the user to see the control, or its beginning if it is wider than the
    /// visible part of the page.
    void ExpectInView(HWND control)
    {
        if (!IsChild(Page(), control))
            return;
        RECT view = {};
        GetClientRect(Page(), &view);
        const RECT rect = RectIn(control, Page());
        EXPECT_GE(rect.left, 0) << GetDlgCtrlID(control);
        EXPECT_GE(rect.top, 0) << GetDlgCtrlID(control);
        EXPECT_LE(rect.bottom, view.bottom) << GetDlgCtrlID(control);
        if (rect.right - rect.left <= view.right)
            EXPECT_LE(rect.right, view.right) << GetDlgCtrlID(control);
        else
            EXPECT_LE(rect.left, view.right / 4) << GetDlgCtrlID(control);
    }
};

TEST_F(TabOrderTest, EveryPageAtItsSmallestIsWalkedThroughOnceAndSeen)
{
    // Enables the controls that depend on a text.
    UseCurrent("_ORTHOVAL_BORDERSHEETS = a.dgn\r\n_ORTHOVAL_BORDERSHEETS_PLOT_SHAPE = b\r\n");
    UseDefaults("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    ASSERT_TRUE(Open());
    Resize(Dialog(), 580, 400);
    ASSERT_FALSE(BuiltTitles().empty());
    std::set<std::pair<std::wstring, int>> passed;
    for (const std::wstring& title : BuiltTitles()) {
        SCOPED_TRACE(testing::PrintToString(title));
        ASSERT_TRUE(ShowPage(title));
        TickEverything();
        for (const int id : PassedStops())
            passed.insert({title, id});
        ExpectPageCycle();
    }
    const std::set<std::pair<std::wstring, int>> expected = {
        // Disabled, because it only shows a value of the file.
        {L"Logging", IDC_LOGGING_TRACKING},
        {L"Signature Cells", IDC_SIGNATURE_CELL_COUNT_FIELDS},
        {L"Title Blocks", IDC_TITLE_BLOCK_COUNT_FIELDS},
        // Tested in the next test.
        {L"Drawing Scales", IDC_DRAWING_SCALES_VALUES},
        {L"Drawing Scales", IDC_DRAWING_SCALES_VALUES_BROWSE},
        {L"Scan Period", IDC_SCAN_PERIOD_OR_SELECTOR},
    };
    EXPECT_EQ(expected, passed);
    Abandon();
}

TEST_F(TabOrderTest, WhatTicksSwitchOffIsReachedWithoutThem)
{
    UseCurrent("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    ASSERT_TRUE(Open());
    Resize(Dialog(), 580, 400);
    ASSERT_TRUE(ShowPage(L"Drawing Scales"));
    for (HWND box : BoxesOfPage(BS_AUTOCHECKBOX)) {
        if (IsTicked(box))
            Click(box);
    }
    EXPECT_EQ(std::set<int>{}, PassedStops());
    ExpectPageCycle();
    ASSERT_TRUE(ShowPage(L"Scan Period"));
    TickEverything();
    SelectComboEntry(PageControl(IDC_SCAN_PERIOD_OPERATOR), 0);
    Settle(Dialog());
    EXPECT_EQ(std::set<int>{}, PassedStops());
    ExpectPageCycle();
    Abandon();
}

TEST_F(TabOrderTest, TheListEditorIsWalkedThroughOnce)
{
    UseCurrent("_ORTHOVAL_CHECK_IGNORED_LEVELS = a,b,c\r\n_ORTHOVAL_TITLEBLOCK_CELLLIBS = a;b;c\r\n");
    ASSERT_TRUE(Open());
    struct Case {
        const wchar_t* page;
        int button;
        bool browses;
    };
    for (const Case& c : {Case{L"Conforming", IDC_CONFORMING_IGNORED_LEVELS_BROWSE, false},
                          Case{L"Title Blocks", IDC_TITLE_BLOCK_LIBRARY_BROWSE, true}}) {
        SCOPED_TRACE(c.browses ? "with browsing" : "without browsing");
        ASSERT_TRUE(ShowPage(c.page));
        HWND editor = OpenValueEditor(PageControl(c.button));
        ASSERT_TRUE(editor);
        HWND list = GetDlgItem(editor, IDC_CONFIG_SETTING_LIST);
        EXPECT_EQ(list, FocusIn(editor));
        // The row in the middle can be moved both ways, so every button is enabled.
        SelectOnly(list, 1);
        EXPECT_EQ(c.browses ? 9u : 8u, TabStopsInReadingOrder(editor).size());
        ExpectTabCycle(editor, list);
        // Without a row nothing can be moved or deleted; without a value nothing can be inserted.
        for (int row = 0; row < 3; ++row) {
            SelectOnly(list, 0);
            Click(GetDlgItem(editor, IDC_CONFIG_SETTING_DELETE));
        }
        SetText(GetDlgItem(editor, IDC_CONFIG_SETTING_VALUE), L"");
        Settle(editor);
        EXPECT_EQ(c.browses ? 5u : 4u, TabStopsInReadingOrder(editor).size());
        ExpectTabCycle(editor, list);
        CloseValueEditor(editor, IDCANCEL);
    }
    Cancel();
}

TEST_F(TabOrderTest, ThePatternTesterIsWalkedThroughOnce)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Miscellaneous"));
    ClickOnPage(IDC_MISC_WILDCARD_TEST);
    HWND tester = AwaitTopWindow(L"Regular Expression Tester", GetCurrentProcessId());
    ASSERT_TRUE(tester);
    HWND type = GetDlgItem(tester, IDC_REGEX_TESTER_TYPE);
    EXPECT_EQ(type, FocusIn(tester));
    EXPECT_EQ(5u, TabStopsInReadingOrder(tester).size());
    ExpectTabCycle(tester, type);
    PostKey(tester, VK_ESCAPE);
    EXPECT_TRUE(AwaitGone(tester));
    Settle(Dialog());
    Cancel();
}

} // namespace

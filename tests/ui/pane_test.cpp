// The category pane.
#include "pages/branding/ids.h"
#include "pages/conforming/ids.h"
#include "tests/ui/built_pages.h"
#include "tests/ui/dialog_session.h"

#include <algorithm>
#include <commctrl.h>

using namespace uidriver;

namespace
{

class PaneTest : public DialogSession
{
  protected:
    bool ShowsBranding() { return PageControl(IDC_BRANDING_RENAME) != nullptr; }
    bool ShowsConforming() { return PageControl(IDC_CONFORMING_MAX_ERROR) != nullptr; }

    /// The row of Conforming; rows follow it.
    static int ConformingRow()
    {
        const auto titles = BuiltTitles();
        return static_cast<int>(std::ranges::find(titles, L"Conforming") - titles.begin());
    }

    int ColumnWidth() { return static_cast<int>(Send(List(), LVM_GETCOLUMNWIDTH, 0)); }

    /// Clicks a row as a user does.
    void ClickRow(int row)
    {
        RECT rect = {LVIR_LABEL, 0, 0, 0};
        ASSERT_TRUE(
            SendMessageW(List(), LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect)));
        ClickAt(List(), {rect.left + 4, (rect.top + rect.bottom) / 2});
    }
};

TEST_F(PaneTest, RowsAreTheBuiltPagesInPaneOrder)
{
    ASSERT_TRUE(Open());
    EXPECT_EQ(BuiltTitles(), ListViewTexts(List()));
    const auto pages = BuiltPages();
    for (std::size_t row = 0; row < pages.size(); ++row)
        EXPECT_EQ(pages[row]->pageId, ListViewData(List(), static_cast<int>(row))) << pages[row]->title;
    Cancel();
}

TEST_F(PaneTest, FirstRowIsSelectedButNotFocusedAtStart)
{
    ASSERT_TRUE(Open());
    EXPECT_EQ(0, ListViewSelection(List()));
    EXPECT_EQ(LVIS_SELECTED,
              static_cast<int>(Send(List(), LVM_GETITEMSTATE, 0, LVIS_SELECTED | LVIS_FOCUSED)));
    EXPECT_TRUE(ShowsBranding());
    Cancel();
}

TEST_F(PaneTest, ListHasTheStylesOfAPlainColumn)
{
    ASSERT_TRUE(Open());
    constexpr LONG_PTR styles =
        LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOCOLUMNHEADER | LVS_NOSORTHEADER;
    EXPECT_EQ(styles, GetWindowLongPtrW(List(), GWL_STYLE) & styles);
    const auto extended = Send(List(), LVM_GETEXTENDEDLISTVIEWSTYLE);
    EXPECT_TRUE(extended & LVS_EX_FULLROWSELECT);
    EXPECT_TRUE(extended & LVS_EX_INFOTIP);
    Cancel();
}

TEST_F(PaneTest, ArrowKeysSwitchPages)
{
    ASSERT_TRUE(Open());
    ClickRow(1);
    ASSERT_EQ(List(), FocusIn(Dialog()));
    PostKey(Dialog(), VK_UP);
    EXPECT_EQ(0, ListViewSelection(List()));
    EXPECT_TRUE(ShowsBranding());
    EXPECT_EQ(List(), FocusIn(Dialog()));
    for (int row = 1; row <= ConformingRow(); ++row)
        PostKey(Dialog(), VK_DOWN);
    EXPECT_EQ(ConformingRow(), ListViewSelection(List()));
    EXPECT_TRUE(ShowsConforming());
    Cancel();
}

TEST_F(PaneTest, ArrowKeyOnTheLastRowStaysThere)
{
    ASSERT_TRUE(Open());
    const int last = static_cast<int>(BuiltTitles().size()) - 1;
    ClickRow(last);
    HWND page = Page();
    PostKey(Dialog(), VK_DOWN); // there are no more rows
    EXPECT_EQ(last, ListViewSelection(List()));
    EXPECT_EQ(page, Page());
    Cancel();
}

TEST_F(PaneTest, ClickSwitchesPagesAndShowsOneAtATime)
{
    ASSERT_TRUE(Open());
    HWND branding = Page();
    ClickRow(ConformingRow());
    EXPECT_TRUE(ShowsConforming());
    EXPECT_FALSE(IsWindowVisible(branding));
    ClickRow(0);
    EXPECT_EQ(branding, Page());
    Cancel();
}

TEST_F(PaneTest, SecondClickOnACategoryReloadsNothing)
{
    UseCurrent("_ORTHOVAL_BRANDING_RENAME_TABLES = a:b\r\n");
    ASSERT_TRUE(Open());
    TypeOnPage(IDC_BRANDING_RENAME, L"c:d");
    ClickRow(0);
    ClickRow(0);
    EXPECT_EQ(L"c:d", PageText(IDC_BRANDING_RENAME));
    EXPECT_TRUE(CanSave());
    Abandon();
}

TEST_F(PaneTest, SwitchingPagesKeepsEditsAndMarksNothing)
{
    UseCurrent("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    ASSERT_TRUE(ShowPage(L"Branding"));
    EXPECT_FALSE(CanSave());
    ClickOnPage(IDC_BRANDING_OVERRIDE);
    TypeOnPage(IDC_BRANDING_RENAME, L"c:d");
    ASSERT_TRUE(ShowPage(L"Conforming"));
    TypeOnPage(IDC_CONFORMING_MAX_ERROR, L"3");
    ASSERT_TRUE(ShowPage(L"Branding"));
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_OVERRIDE));
    EXPECT_EQ(L"c:d", PageText(IDC_BRANDING_RENAME));
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_EQ(L"3", PageText(IDC_CONFORMING_MAX_ERROR));
    EXPECT_TRUE(CanSave());
    Abandon();
}

TEST_F(PaneTest, ColumnKeepsItsWidthWhenThePaneIsStretched)
{
    ASSERT_TRUE(Open());
    RECT window = {};
    GetWindowRect(List(), &window);
    const int width = ColumnWidth();
    EXPECT_EQ(window.right - window.left - 5, width);
    GetWindowRect(Dialog(), &window);
    Resize(Dialog(), window.right - window.left + 150, window.bottom - window.top + 150);
    EXPECT_EQ(width, ColumnWidth());
    Resize(Dialog(), 580, 400);
    EXPECT_EQ(width, ColumnWidth());
    Cancel();
}

TEST_F(PaneTest, PaneFillsItsPlaceholderAndTheListItsHeight)
{
    ASSERT_TRUE(Open());
    HWND pane = GetParent(List());
    const auto expectPlaced = [&] {
        const RECT place = RectIn(Control(IDC_PREFERENCES_PANE_AREA), Dialog());
        const RECT taken = RectIn(pane, Dialog());
        EXPECT_TRUE(EqualRect(&place, &taken));
    };
    expectPlaced();
    const RECT paneBefore = RectIn(pane, Dialog());
    const RECT listBefore = RectIn(List(), pane);
    RECT window = {};
    GetWindowRect(Dialog(), &window);
    Resize(Dialog(), window.right - window.left + 60, window.bottom - window.top + 77);
    expectPlaced();
    const RECT paneAfter = RectIn(pane, Dialog());
    const RECT listAfter = RectIn(List(), pane);
    EXPECT_EQ(paneBefore.bottom + 77, paneAfter.bottom);
    EXPECT_EQ(paneBefore.right, paneAfter.right);
    EXPECT_EQ(listBefore.bottom + 77, listAfter.bottom);
    EXPECT_EQ(listBefore.right, listAfter.right);
    Cancel();
}

// If it is lower than its content, the pane has a scroll bar like every page, beside the list's.
TEST_F(PaneTest, PaneScrollsLikeAPageWhereTheDialogIsLow)
{
    ASSERT_TRUE(Open());
    const auto hasBar = [](HWND window, LONG_PTR bar) {
        return (GetWindowLongPtrW(window, GWL_STYLE) & bar) != 0;
    };
    HWND pane = GetParent(List());
    EXPECT_FALSE(hasBar(pane, WS_VSCROLL | WS_HSCROLL));
    EXPECT_FALSE(hasBar(List(), WS_HSCROLL));
    Resize(Dialog(), 580, 400);
    EXPECT_TRUE(hasBar(pane, WS_VSCROLL));
    EXPECT_FALSE(hasBar(pane, WS_HSCROLL));
    EXPECT_FALSE(hasBar(List(), WS_HSCROLL));
    // The longest title ends before the scroll bar.
    RECT client = {};
    GetClientRect(pane, &client);
    int widest = 0;
    for (const std::wstring& title : BuiltTitles()) {
        const auto width =
            SendMessageW(List(), LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(title.c_str()));
        widest = std::max(widest, static_cast<int>(width));
    }
    constexpr int textMargins = 12;
    EXPECT_LE(widest + textMargins, client.right);
    Cancel();
}

} // namespace

// What all pages have in common: scrolling, the wheel, edits without a value.
#include "pages/conforming/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

#include <algorithm>
#include <set>

using namespace uidriver;

namespace
{

/// Sets the lines per wheel notch, and restores the setting in the destructor.
class WheelLines
{
  public:
    explicit WheelLines(UINT lines)
    {
        SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &m_before, 0);
        SystemParametersInfoW(SPI_SETWHEELSCROLLLINES, lines, nullptr, 0);
    }
    ~WheelLines() { SystemParametersInfoW(SPI_SETWHEELSCROLLLINES, m_before, nullptr, 0); }
    WheelLines(const WheelLines&) = delete;
    WheelLines& operator=(const WheelLines&) = delete;

  private:
    UINT m_before = 3;
};

/// Longer than an edit's default limit.
constexpr std::size_t longText = 64 * 1024;

class PageBaseTest : public DialogSession
{
  protected:
    // The width of the Conforming page's content.
    static constexpr int ContentWidth = 440;
    static constexpr int ContentHeight = 370;

    /// Shows Conforming in the dialog at its minimum size, where it has to scroll.
    bool OpenSmall()
    {
        if (!Open())
            return false;
        Resize(Dialog(), 580, 400);
        return ShowPage(L"Conforming") != nullptr;
    }

    SCROLLINFO Scroll(int bar)
    {
        SCROLLINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = SIF_ALL;
        GetScrollInfo(Page(), bar, &info);
        return info;
    }
    int Position(int bar = SB_VERT) { return Scroll(bar).nPos; }
    int LastPosition(int bar)
    {
        const SCROLLINFO info = Scroll(bar);
        return info.nMax + 1 - static_cast<int>(info.nPage);
    }

    bool HasStyle(LONG_PTR style) { return (GetWindowLongPtrW(Page(), GWL_STYLE) & style) != 0; }

    int TopOf(int id) { return static_cast<int>(RectIn(PageControl(id), Page()).top); }
    int LeftOf(int id) { return static_cast<int>(RectIn(PageControl(id), Page()).left); }

    void Request(UINT message, WORD code)
    {
        PostMessageW(Page(), message, code, 0);
        Settle(Dialog());
    }

    void Wheel(int notches)
    {
        const auto delta = static_cast<short>(notches * WHEEL_DELTA);
        PostMessageW(Page(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(delta)), 0);
        Settle(Dialog());
    }

    /// Expects that many pixels of scrolling, both at the bar and at the controls.
    void ExpectScrolled(int vertical)
    {
        EXPECT_EQ(vertical, Position());
        EXPECT_EQ(m_top - vertical, TopOf(IDC_CONFORMING_CHECK_CELLS));
    }
    void RememberOrigin()
    {
        EXPECT_EQ(0, Position());
        m_top = TopOf(IDC_CONFORMING_CHECK_CELLS);
    }

    int m_top = 0;
};

TEST_F(PageBaseTest, PageThatFitsShowsNoScrollBarsAndSitsAtTheOrigin)
{
    ASSERT_TRUE(Open());
    Resize(Dialog(), 900, 760);
    for (const wchar_t* title : {L"Branding", L"Conforming"}) {
        ASSERT_TRUE(ShowPage(title));
        EXPECT_FALSE(HasStyle(WS_VSCROLL));
        EXPECT_FALSE(HasStyle(WS_HSCROLL));
        EXPECT_EQ(0, Position(SB_VERT));
        EXPECT_EQ(0, Position(SB_HORZ));
    }
    Cancel();
}

TEST_F(PageBaseTest, PageThatDoesNotFitShowsBarsOverItsWholeContent)
{
    ASSERT_TRUE(OpenSmall());
    EXPECT_TRUE(HasStyle(WS_VSCROLL));
    EXPECT_TRUE(HasStyle(WS_HSCROLL));
    EXPECT_EQ(ContentHeight - 1, Scroll(SB_VERT).nMax);
    EXPECT_EQ(ContentWidth - 1, Scroll(SB_HORZ).nMax);
    // The page's size inside its border, as if it had no scroll bars.
    RECT page = {};
    GetWindowRect(Page(), &page);
    if (HasStyle(WS_BORDER))
        InflateRect(&page, -1, -1);
    EXPECT_EQ(page.bottom - page.top, static_cast<int>(Scroll(SB_VERT).nPage));
    EXPECT_EQ(page.right - page.left, static_cast<int>(Scroll(SB_HORZ).nPage));
    Cancel();
}

TEST_F(PageBaseTest, EveryControlCanBeReachedByScrolling)
{
    ASSERT_TRUE(OpenSmall());
    RECT client = {};
    GetClientRect(Page(), &client);
    // Collects the controls that were completely visible on an axis, step by step to the
    // end. A control wider than the page has to show both its ends.
    std::set<int> seen;
    std::set<int> seenLeft;
    std::set<int> seenRight;
    const auto look = [&] {
        for (HWND child : Children(Page())) {
            const RECT rect = RectIn(child, Page());
            const int id = GetDlgCtrlID(child);
            if (rect.top >= 0 && rect.bottom <= client.bottom)
                seen.insert(id);
            if (rect.left >= 0 && rect.left < client.right)
                seenLeft.insert(id);
            if (rect.right > 0 && rect.right <= client.right)
                seenRight.insert(id);
        }
    };
    look();
    const auto scrollThrough = [&](int bar, UINT message) {
        for (int before = -1; before != Position(bar);) {
            before = Position(bar);
            Request(message, SB_LINEDOWN);
            look();
        }
        EXPECT_EQ(LastPosition(bar), Position(bar));
    };
    scrollThrough(SB_VERT, WM_VSCROLL);
    scrollThrough(SB_HORZ, WM_HSCROLL);
    for (HWND child : Children(Page())) {
        const int id = GetDlgCtrlID(child);
        EXPECT_TRUE(seen.contains(id) && seenLeft.contains(id) && seenRight.contains(id)) << id;
    }
    // The last control of the last row is visible now.
    const RECT last = RectIn(PageControl(IDC_CONFORMING_IGNORED_LEVELS_BROWSE), Page());
    EXPECT_LE(last.right, client.right);
    EXPECT_LE(last.bottom, client.bottom);
    EXPECT_GE(last.left, 0);
    EXPECT_GE(last.top, 0);
    Cancel();
}

TEST_F(PageBaseTest, WheelScrolls60PixelsANotch)
{
    const WheelLines lines(3);
    ASSERT_TRUE(OpenSmall());
    RememberOrigin();
    ASSERT_GT(LastPosition(SB_VERT), 180);
    Wheel(-1);
    ExpectScrolled(60);
    Wheel(-2);
    ExpectScrolled(180);
    Wheel(1);
    ExpectScrolled(120);
    Wheel(2);
    ExpectScrolled(0);
    Cancel();
}

TEST_F(PageBaseTest, TenNotchesReachTheEndAndBack)
{
    const WheelLines lines(3);
    ASSERT_TRUE(OpenSmall());
    RememberOrigin();
    const int last = LastPosition(SB_VERT);
    ASSERT_LT(last, 600);
    Wheel(-10);
    ExpectScrolled(last);
    Wheel(10);
    ExpectScrolled(0);
    Cancel();
}

TEST_F(PageBaseTest, WheelByThePageScrollsOnePage)
{
    const WheelLines lines(WHEEL_PAGESCROLL);
    ASSERT_TRUE(OpenSmall());
    RememberOrigin();
    const auto page = static_cast<int>(Scroll(SB_VERT).nPage);
    Wheel(-1);
    ExpectScrolled(std::min(page, LastPosition(SB_VERT)));
    Wheel(1);
    ExpectScrolled(std::max(0, std::min(page, LastPosition(SB_VERT)) - page));
    Cancel();
}

TEST_F(PageBaseTest, WheelLeavesAPageThatFitsAlone)
{
    const WheelLines lines(3);
    ASSERT_TRUE(Open());
    Resize(Dialog(), 900, 760);
    ASSERT_TRUE(ShowPage(L"Conforming"));
    RememberOrigin();
    Wheel(-1);
    ExpectScrolled(0);
    Cancel();
}

TEST_F(PageBaseTest, ArrowsAndPagesOfTheBarScrollAsFarAsTheySay)
{
    ASSERT_TRUE(OpenSmall());
    RememberOrigin();
    const auto page = static_cast<int>(Scroll(SB_VERT).nPage);
    Request(WM_VSCROLL, SB_LINEDOWN);
    ExpectScrolled(60);
    Request(WM_VSCROLL, SB_PAGEDOWN);
    ExpectScrolled(std::min(60 + page, LastPosition(SB_VERT)));
    Request(WM_VSCROLL, SB_PAGEUP);
    Request(WM_VSCROLL, SB_LINEUP);
    ExpectScrolled(0);
    Cancel();
}

TEST_F(PageBaseTest, ScrollsSideways)
{
    ASSERT_TRUE(OpenSmall());
    const int left = LeftOf(IDC_CONFORMING_CHECK_CELLS);
    const int last = LastPosition(SB_HORZ);
    ASSERT_GT(last, 0);
    Request(WM_HSCROLL, SB_LINERIGHT);
    const int step = std::min(60, last);
    EXPECT_EQ(step, Position(SB_HORZ));
    EXPECT_EQ(left - step, LeftOf(IDC_CONFORMING_CHECK_CELLS));
    Request(WM_HSCROLL, SB_LINELEFT);
    EXPECT_EQ(0, Position(SB_HORZ));
    EXPECT_EQ(left, LeftOf(IDC_CONFORMING_CHECK_CELLS));
    Cancel();
}

TEST_F(PageBaseTest, ResizingReturnsAScrolledPageToItsOrigin)
{
    ASSERT_TRUE(OpenSmall());
    RememberOrigin();
    const int left = LeftOf(IDC_CONFORMING_CHECK_CELLS);
    for (const SIZE size : {SIZE{600, 420}, {580, 400}, {900, 760}}) {
        Request(WM_VSCROLL, SB_PAGEDOWN);
        Request(WM_HSCROLL, SB_PAGERIGHT);
        ASSERT_GT(Position(), 0);
        ASSERT_GT(Position(SB_HORZ), 0);
        Resize(Dialog(), size.cx, size.cy);
        ExpectScrolled(0);
        EXPECT_EQ(0, Position(SB_HORZ));
        EXPECT_EQ(left, LeftOf(IDC_CONFORMING_CHECK_CELLS));
    }
    Cancel();
}

TEST_F(PageBaseTest, UpDownControlDoesNotScrollThePage)
{
    ASSERT_TRUE(OpenSmall());
    RememberOrigin();
    Wheel(-10);
    const int position = Position();
    ASSERT_GT(position, 0);
    TypeOnPage(IDC_CONFORMING_MAX_ERROR, L"5");
    Focus(PageControl(IDC_CONFORMING_MAX_ERROR));
    PostKey(Dialog(), VK_UP);
    EXPECT_EQ(L"6", PageText(IDC_CONFORMING_MAX_ERROR));
    ExpectScrolled(position);
    RECT arrows = {};
    GetClientRect(PageControl(IDC_CONFORMING_MAX_ERROR_SPIN), &arrows);
    ClickAt(PageControl(IDC_CONFORMING_MAX_ERROR_SPIN), {arrows.right / 2, arrows.bottom - 3});
    EXPECT_EQ(L"5", PageText(IDC_CONFORMING_MAX_ERROR));
    ExpectScrolled(position);
    Abandon();
}

TEST_F(PageBaseTest, ScrolledPageKeepsItsEdits)
{
    ASSERT_TRUE(OpenSmall());
    TypeOnPage(IDC_CONFORMING_IGNORED_LEVELS, L"Scratch");
    Wheel(-10);
    Wheel(10);
    EXPECT_EQ(L"Scratch", PageText(IDC_CONFORMING_IGNORED_LEVELS));
    Abandon();
}

TEST_F(PageBaseTest, LongTextIsShownTypedOnAndSaved)
{
    UseCurrent("_ORTHOVAL_CHECK_IGNORED_LEVELS = " + std::string(longText, 'a') + "\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    const HWND edit = PageControl(IDC_CONFORMING_IGNORED_LEVELS);
    EXPECT_EQ(std::wstring(longText, L'a'), GetText(edit));
    Send(edit, EM_SETSEL, longText, longText);
    Send(edit, WM_CHAR, L'b', 1);
    EXPECT_EQ(std::wstring(longText, L'a') + L'b', GetText(edit));
    Save();
    EXPECT_EQ("_ORTHOVAL_CHECK_IGNORED_LEVELS = \"" + std::string(longText, 'a') + "b\"",
              AssignmentOf(CurrentBytes(), "_ORTHOVAL_CHECK_IGNORED_LEVELS"));
}

} // namespace

// The page scroller and the memory device context, with real windows.
#include "wizard/page_scroller.h"
#include "wizard/prefs_mem_dc.h"

#include <gtest/gtest.h>

#include <ostream>

static void PrintTo(const CPoint& point, std::ostream* out)
{
    *out << point.x << ", " << point.y;
}

namespace
{

constexpr UINT scrolledTemplate = 2;
constexpr UINT movedButton = 2001;
constexpr UINT spinButton = 2002;

// A page with a content of 300 x 1000 pixels.
class ScrolledPage : public CDialog
{
  public:
    ScrolledPage() : CDialog(scrolledTemplate, nullptr) {}

    CPageScroller scroller{*this, CSize(300, 1000)};

  protected:
    void OnSize(UINT type, int width, int height)
    {
        CDialog::OnSize(type, width, height);
        scroller.OnSize();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ScrolledPage, CDialog)
    ON_WM_SIZE()
END_MESSAGE_MAP()

class Scroller : public ::testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(page.Create(scrolledTemplate, nullptr));
        ASSERT_TRUE(::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &linesBefore, 0));
        ASSERT_TRUE(::SystemParametersInfoW(SPI_SETWHEELSCROLLLINES, 3, nullptr, 0));
        Resize(400, 250);
        page.ShowWindow(SW_SHOWNOACTIVATE);
        origin = ButtonRect();
    }
    void TearDown() override
    {
        ::SystemParametersInfoW(SPI_SETWHEELSCROLLLINES, linesBefore, nullptr, 0);
        page.DestroyWindow();
    }

    void Resize(int width, int height)
    {
        CRect outer(0, 0, width, height);
        ::AdjustWindowRectEx(&outer, page.GetStyle() & ~static_cast<DWORD>(WS_VSCROLL | WS_HSCROLL), FALSE,
                             page.GetExStyle());
        page.SetWindowPos(nullptr, 0, 0, outer.Width(), outer.Height(),
                          SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    CRect ButtonRect() const
    {
        CRect rect;
        page.GetDlgItem(movedButton)->GetWindowRect(&rect);
        page.ScreenToClient(&rect);
        return rect;
    }

    // The distance by which the content is scrolled, read from the child window.
    CPoint Scrolled() const
    {
        const CRect now = ButtonRect();
        return {origin.left - now.left, origin.top - now.top};
    }

    SCROLLINFO Bar(int bar) const
    {
        SCROLLINFO info{};
        info.cbSize = sizeof info;
        info.fMask = SIF_ALL;
        ::GetScrollInfo(page.m_hWnd, bar, &info);
        return info;
    }

    UINT linesBefore = 3;
    ScrolledPage page;
    CPageScroller& scroller = page.scroller;
    CRect origin;
};

TEST_F(Scroller, BarsShowOnlyWhereTheContentDoesNotFit)
{
    EXPECT_EQ(Bar(SB_HORZ).nMax, 0);
    EXPECT_EQ(Bar(SB_VERT).nMin, 0);
    EXPECT_EQ(Bar(SB_VERT).nMax, 999);
    EXPECT_EQ(Bar(SB_VERT).nPage, 250u);
    EXPECT_NE(page.GetStyle() & WS_VSCROLL, 0u);
    EXPECT_EQ(page.GetStyle() & WS_HSCROLL, 0u);
}

TEST_F(Scroller, ContentSmallerThanTheAreaShowsNoBars)
{
    Resize(400, 1100);
    EXPECT_EQ(page.GetStyle() & (WS_VSCROLL | WS_HSCROLL), 0u);
    scroller.OnVScroll(SB_LINEDOWN, nullptr);
    EXPECT_FALSE(scroller.OnMouseWheel(-120));
    EXPECT_EQ(Scrolled(), CPoint(0, 0));
}

TEST_F(Scroller, BarsFollowANewDisplaySizeAtOnce)
{
    scroller.SetDisplaySize(CSize(900, 500));
    EXPECT_EQ(Bar(SB_HORZ).nMax, 899);
    EXPECT_EQ(Bar(SB_VERT).nMax, 499);
    EXPECT_NE(page.GetStyle() & WS_HSCROLL, 0u);
    scroller.SetDisplaySize(CSize(300, 100));
    EXPECT_EQ(page.GetStyle() & (WS_VSCROLL | WS_HSCROLL), 0u);
}

TEST_F(Scroller, ContentFollowsANewDisplaySizeAtOnce)
{
    for (int i = 0; i < 3; ++i)
        scroller.OnVScroll(SB_PAGEDOWN, nullptr);
    ASSERT_EQ(Scrolled(), CPoint(0, 750));
    scroller.SetDisplaySize(CSize(300, 600));
    EXPECT_EQ(Scrolled(), CPoint(0, 349)); // the last position: 600 - 250 - 1
    EXPECT_EQ(Bar(SB_VERT).nPos, 349);
    scroller.SetDisplaySize(CSize(300, 100));
    EXPECT_EQ(Scrolled(), CPoint(0, 0));
}

TEST_F(Scroller, ReservedSizeLeavesRoomForBothBars)
{
    scroller.SetDisplaySize(CSize(300, 200), CSize(900, 700));
    EXPECT_EQ(Bar(SB_HORZ).nMax, 899 + ::GetSystemMetrics(SM_CXVSCROLL));
    EXPECT_EQ(Bar(SB_VERT).nMax, 699 + ::GetSystemMetrics(SM_CYHSCROLL));
    scroller.SetDisplaySize(CSize(300, 2000), CSize(0, 700));
    EXPECT_EQ(Bar(SB_VERT).nMax, 1999);
}

TEST_F(Scroller, RequestsMoveTheChildWindows)
{
    scroller.OnVScroll(SB_LINEDOWN, nullptr);
    EXPECT_EQ(Scrolled(), CPoint(0, 60));
    EXPECT_EQ(Bar(SB_VERT).nPos, 60);
    scroller.OnVScroll(SB_PAGEDOWN, nullptr);
    EXPECT_EQ(Scrolled(), CPoint(0, 310));
    scroller.OnVScroll(SB_PAGEUP, nullptr);
    scroller.OnVScroll(SB_LINEUP, nullptr);
    EXPECT_EQ(Scrolled(), CPoint(0, 0));
    Resize(200, 250);
    scroller.OnHScroll(SB_LINERIGHT, nullptr);
    EXPECT_EQ(Scrolled(), CPoint(60, 0));
    EXPECT_EQ(Bar(SB_HORZ).nPos, 60);
}

TEST_F(Scroller, SpinButtonsScrollHorizontallyOnly)
{
    Resize(200, 250);
    const CWnd* spin = page.GetDlgItem(spinButton);
    scroller.OnVScroll(SB_LINEDOWN, spin);
    EXPECT_EQ(Scrolled(), CPoint(0, 0));
    scroller.OnVScroll(SB_LINEDOWN, page.GetDlgItem(movedButton));
    EXPECT_EQ(Scrolled(), CPoint(0, 60));
    scroller.OnHScroll(SB_LINERIGHT, spin);
    EXPECT_EQ(Scrolled(), CPoint(60, 60));
}

TEST_F(Scroller, WheelMovesSixtyPixelsANotch)
{
    EXPECT_TRUE(scroller.OnMouseWheel(-120));
    EXPECT_EQ(Scrolled(), CPoint(0, 60));
    EXPECT_TRUE(scroller.OnMouseWheel(-240));
    EXPECT_EQ(Scrolled(), CPoint(0, 180));
    EXPECT_TRUE(scroller.OnMouseWheel(-1200));
    EXPECT_EQ(Scrolled(), CPoint(0, 750));
    EXPECT_TRUE(scroller.OnMouseWheel(120));
    EXPECT_EQ(Scrolled(), CPoint(0, 690));
}

TEST_F(Scroller, WheelSetToPagesMovesOnePage)
{
    ASSERT_TRUE(::SystemParametersInfoW(SPI_SETWHEELSCROLLLINES, WHEEL_PAGESCROLL, nullptr, 0));
    EXPECT_TRUE(scroller.OnMouseWheel(-240));
    EXPECT_EQ(Scrolled(), CPoint(0, 250));
    EXPECT_TRUE(scroller.OnMouseWheel(120));
    EXPECT_EQ(Scrolled(), CPoint(0, 0));
}

TEST_F(Scroller, EnlargingWhileScrolledToTheBottomReturnsToTheTop)
{
    scroller.OnVScroll(SB_PAGEDOWN, nullptr);
    scroller.OnVScroll(SB_PAGEDOWN, nullptr);
    scroller.OnVScroll(SB_PAGEDOWN, nullptr);
    ASSERT_EQ(Scrolled(), CPoint(0, 750));
    Resize(400, 500);
    EXPECT_EQ(Scrolled(), CPoint(0, 0));
    EXPECT_EQ(Bar(SB_VERT).nPos, 0);
    EXPECT_EQ(Bar(SB_VERT).nPage, 500u);
}

TEST_F(Scroller, HiddenPageReturnsToItsOriginToo)
{
    scroller.OnVScroll(SB_PAGEDOWN, nullptr);
    ASSERT_EQ(Scrolled(), CPoint(0, 250));
    page.ShowWindow(SW_HIDE);
    Resize(400, 500);
    EXPECT_EQ(Scrolled(), CPoint(0, 0));
}

TEST(MemoryContext, ReachesTheTargetInOneTransferAtTheEnd)
{
    const HDC screen = ::GetDC(nullptr);
    CDC target;
    ASSERT_TRUE(target.CreateCompatibleDC(nullptr));
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(CDC::FromHandle(screen), 40, 40));
    ::ReleaseDC(nullptr, screen);
    const HGDIOBJ previous = ::SelectObject(target.m_hDC, bitmap.GetSafeHandle());
    target.FillSolidRect(CRect(0, 0, 40, 40), RGB(255, 255, 255));
    {
        CPrefsMemDC memory(&target, CRect(10, 10, 30, 30));
        memory.FillSolidRect(CRect(0, 0, 40, 40), RGB(255, 0, 0));
        memory.FillSolidRect(CRect(12, 12, 14, 14), RGB(0, 0, 255));
        EXPECT_EQ(::GetPixel(target.m_hDC, 20, 20), RGB(255, 255, 255));
    }
    EXPECT_EQ(::GetPixel(target.m_hDC, 20, 20), RGB(255, 0, 0));
    EXPECT_EQ(::GetPixel(target.m_hDC, 13, 13), RGB(0, 0, 255));
    EXPECT_EQ(::GetPixel(target.m_hDC, 9, 9), RGB(255, 255, 255));
    EXPECT_EQ(::GetPixel(target.m_hDC, 30, 30), RGB(255, 255, 255));
    ::SelectObject(target.m_hDC, previous);
}

} // namespace

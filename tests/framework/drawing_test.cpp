#include "tests/framework/test_app.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

/// A bitmap of 20 by 20 pixels, initially black.
class Drawing : public testing::Test
{
  protected:
    Drawing()
    {
        const HDC screen = ::GetDC(nullptr);
        m_context.CreateCompatibleDC(nullptr);
        m_bitmap.CreateCompatibleBitmap(CDC::FromHandle(screen), 20, 20);
        ::ReleaseDC(nullptr, screen);
        m_previous = ::SelectObject(m_context, m_bitmap.GetSafeHandle());
        m_context.FillSolidRect(CRect(0, 0, 20, 20), 0);
    }
    ~Drawing() override
    {
        ::SelectObject(m_context, m_previous);
        AfxDeleteTempMap();
    }
    COLORREF At(int x, int y) const { return ::GetPixel(m_context, x, y); }

    CDC m_context;
    CBitmap m_bitmap;
    HGDIOBJ m_previous = nullptr;
};
} // namespace

TEST(Rectangle, KnowsItsMeasures)
{
    CRect r(10, 20, 40, 60);
    EXPECT_EQ(30, r.Width());
    EXPECT_EQ(40, r.Height());
    EXPECT_EQ(CPoint(10, 20), r.TopLeft());
    EXPECT_TRUE(r.PtInRect(CPoint(10, 20)));
    EXPECT_TRUE(r.PtInRect(CPoint(39, 59)));
    EXPECT_FALSE(r.PtInRect(CPoint(40, 59)));
    EXPECT_FALSE(r.PtInRect(CPoint(39, 60)));
    EXPECT_FALSE(CRect().PtInRect(CPoint()));
    r.OffsetRect(-10, -20);
    EXPECT_EQ(CRect(0, 0, 30, 40), r);
    EXPECT_EQ(CRect(1, 2, 4, 6), CRect(CPoint(1, 2), CSize(3, 4)));
    EXPECT_EQ(CPoint(-3, 4), CPoint(MAKELPARAM(static_cast<WORD>(-3), 4)));
}

TEST_F(Drawing, FillsWithinTheRectangle)
{
    m_context.FillSolidRect(CRect(0, 0, 10, 10), red);
    EXPECT_EQ(red, At(9, 9));
    EXPECT_EQ(0u, At(10, 10));
}

TEST_F(Drawing, RectangleInTwoColoursStandsAtTheEdges)
{
    m_context.Draw3dRect(CRect(0, 0, 20, 20), red, blue);
    EXPECT_EQ(red, At(0, 0));
    EXPECT_EQ(red, At(0, 18));
    EXPECT_EQ(red, At(18, 0));
    EXPECT_EQ(blue, At(19, 0));
    EXPECT_EQ(blue, At(0, 19));
    EXPECT_EQ(blue, At(19, 19));
    EXPECT_EQ(0u, At(1, 1));
    EXPECT_EQ(0u, At(18, 18));
}

TEST_F(Drawing, EtchedEdgeHasTheSystemsColours)
{
    EXPECT_TRUE(m_context.DrawEdge(CRect(0, 0, 20, 20), EDGE_ETCHED, BF_RECT));
    EXPECT_EQ(::GetSysColor(COLOR_3DSHADOW), At(0, 10));
    EXPECT_EQ(::GetSysColor(COLOR_3DHILIGHT), At(1, 10));
    EXPECT_EQ(0u, At(2, 10));
}

TEST_F(Drawing, RegionsCombineFillAndFrame)
{
    CRgn both;
    CRgn right;
    ASSERT_TRUE(both.CreateRectRgnIndirect(CRect(0, 0, 5, 10)));
    ASSERT_TRUE(right.CreateRectRgnIndirect(CRect(10, 0, 15, 10)));
    EXPECT_EQ(COMPLEXREGION, both.CombineRgn(&both, &right, RGN_OR));
    CBrush fill(green);
    CBrush frame(red);
    EXPECT_TRUE(m_context.FillRgn(&both, &fill));
    EXPECT_TRUE(m_context.FrameRgn(&both, &frame, 2, 1));
    for (const int left : {0, 10}) {
        EXPECT_EQ(red, At(left, 5));
        EXPECT_EQ(red, At(left + 1, 5));
        EXPECT_EQ(green, At(left + 2, 5));
        EXPECT_EQ(red, At(left + 2, 0));
        EXPECT_EQ(green, At(left + 2, 1));
    }
    EXPECT_EQ(0u, At(7, 5));
}

TEST_F(Drawing, RegionsAreRoundOrPolygons)
{
    CBrush fill(green);
    CRgn round;
    ASSERT_TRUE(round.CreateRoundRectRgn(0, 0, 20, 20, 10, 10));
    m_context.FillRgn(&round, &fill);
    EXPECT_EQ(0u, At(0, 0));
    EXPECT_EQ(green, At(0, 10));
    EXPECT_EQ(green, At(10, 10));
    m_context.FillSolidRect(CRect(0, 0, 20, 20), 0);
    const POINT corners[] = {{0, 0}, {20, 0}, {0, 20}};
    CRgn triangle;
    ASSERT_TRUE(triangle.CreatePolygonRgn(corners, 3, WINDING));
    m_context.FillRgn(&triangle, &fill);
    EXPECT_EQ(green, At(1, 1));
    EXPECT_EQ(0u, At(18, 18));
}

TEST_F(Drawing, CopiesABlock)
{
    CDC target;
    target.CreateCompatibleDC(&m_context);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&m_context, 20, 20);
    const HGDIOBJ previous = ::SelectObject(target, bitmap.GetSafeHandle());
    m_context.FillSolidRect(CRect(0, 0, 20, 20), blue);
    EXPECT_TRUE(target.BitBlt(5, 5, 10, 10, &m_context, 0, 0, SRCCOPY));
    EXPECT_EQ(blue, ::GetPixel(target, 5, 5));
    EXPECT_NE(blue, ::GetPixel(target, 15, 15));
    EXPECT_FALSE(target.IsPrinting());
    ::SelectObject(target, previous);
}

TEST_F(Drawing, FontIsMadeSelectedAndGivenBack)
{
    LOGFONTW description{};
    description.lfHeight = -14;
    description.lfWeight = FW_BOLD;
    ::lstrcpynW(description.lfFaceName, L"Tahoma", LF_FACESIZE);
    CFont font;
    LOGFONTW read{};
    EXPECT_FALSE(font.GetLogFont(&read)) << "there is none yet";
    ASSERT_TRUE(font.CreateFontIndirect(&description));
    EXPECT_TRUE(font.GetLogFont(&read));
    EXPECT_EQ(FW_BOLD, read.lfWeight);
    EXPECT_EQ(-14, read.lfHeight);
    CFont* const previous = m_context.SelectObject(&font);
    ASSERT_NE(nullptr, previous);
    EXPECT_EQ(font.GetSafeHandle(), ::GetCurrentObject(m_context, OBJ_FONT));
    EXPECT_EQ(nullptr, m_context.SelectObject(nullptr));
    EXPECT_EQ(font.GetSafeHandle(), ::GetCurrentObject(m_context, OBJ_FONT)) << "none to select instead";
    m_context.SelectObject(previous);
    EXPECT_NE(font.GetSafeHandle(), ::GetCurrentObject(m_context, OBJ_FONT));
}

TEST_F(Drawing, TextIsMeasuredAndLeavesItsColour)
{
    CRect line;
    const int height = m_context.DrawText(u"M", line, DT_CALCRECT);
    EXPECT_EQ(height, line.Height());
    EXPECT_LT(0, line.Width());
    CRect lines;
    EXPECT_EQ(2 * height, m_context.DrawText(u"M\r\nM", lines, DT_CALCRECT));
    EXPECT_EQ(line.Width(), lines.Width());
    const ov::Text text = u"MM";
    CRect part;
    m_context.DrawText(ov::TextView(text).substr(0, 1), part, DT_CALCRECT);
    EXPECT_EQ(line, part);

    m_context.SetBkMode(TRANSPARENT);
    m_context.SetTextColor(red);
    m_context.DrawText(u"MMMM", CRect(0, 0, 20, 20), 0);
    int coloured = 0;
    int untouched = 0;
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x) {
            coloured += At(x, y) == red ? 1 : 0;
            untouched += At(x, y) == 0 ? 1 : 0;
        }
    }
    EXPECT_LT(0, coloured);
    EXPECT_LT(0, untouched);
}

TEST_F(Drawing, OwnedObjectsAreDeletedTemporaryOnesNot)
{
    LOGFONTW description{};
    HGDIOBJ owned = nullptr;
    {
        CFont font;
        ASSERT_TRUE(font.CreateFontIndirect(&description));
        owned = font.GetSafeHandle();
        ASSERT_EQ(static_cast<DWORD>(OBJ_FONT), ::GetObjectType(owned));
    }
    EXPECT_EQ(0u, ::GetObjectType(owned));
    const HFONT foreign = ::CreateFontIndirectW(&description);
    EXPECT_EQ(foreign, CFont::FromHandle(foreign)->GetSafeHandle());
    AfxDeleteTempMap();
    EXPECT_EQ(static_cast<DWORD>(OBJ_FONT), ::GetObjectType(foreign));
    ::DeleteObject(foreign);
}

TEST(Painting, ContextValidatesTheWindow)
{
    class CPainted : public CHostWindow
    {
      public:
        CRect m_painted;

      protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_PAINT)
                return CHostWindow::WindowProc(message, wParam, lParam);
            const CPaintDC context(this);
            m_painted = context.m_ps.rcPaint;
            return 0;
        }
    };
    CPainted window;
    ::UpdateWindow(window);
    const CRect part(10, 10, 30, 40);
    ::InvalidateRect(window, part, TRUE);
    ::UpdateWindow(window);
    EXPECT_EQ(part, window.m_painted);
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE));
}

TEST(Painting, ClientContextDrawsIntoTheWindow)
{
    CHostWindow window;
    CClientDC context(&window);
    EXPECT_EQ(window.m_hWnd, ::WindowFromDC(context));
}

TEST(Painting, RedrawIsDoneAtOnce)
{
    class CErased : public CHostWindow
    {
      public:
        std::vector<UINT> m_messages;

      protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_PAINT || message == WM_ERASEBKGND)
                m_messages.push_back(message);
            return CHostWindow::WindowProc(message, wParam, lParam);
        }
    };
    CErased window;
    ::UpdateWindow(window);
    window.m_messages.clear();
    EXPECT_TRUE(window.RedrawWindow());
    EXPECT_EQ((std::vector<UINT>{WM_PAINT, WM_ERASEBKGND}), window.m_messages);
}

TEST(Painting, WindowIsCutToItsRegion)
{
    CHostWindow window;
    CRgn region;
    ASSERT_TRUE(region.CreateRectRgnIndirect(CRect(0, 0, 30, 20)));
    ASSERT_NE(0, window.SetWindowRgn(region, FALSE));
    region.Detach();
    CRect box;
    EXPECT_EQ(SIMPLEREGION, ::GetWindowRgnBox(window, box));
    EXPECT_EQ(CRect(0, 0, 30, 20), box);
}

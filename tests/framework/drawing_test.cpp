#include "tests/framework/test_app.h"

#include <gtest/gtest.h>

namespace
{
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

/// A drawing of 20 by 20 pixels in memory, black at first.
class Drawing : public testing::Test
{
  protected:
    Drawing()
    {
        CClientDC screen(nullptr);
        m_context.CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, 20, 20);
        m_previous = m_context.SelectObject(&m_bitmap);
        m_context.FillSolidRect(CRect(0, 0, 20, 20), 0);
    }
    ~Drawing() override
    {
        m_context.SelectObject(m_previous);
        AfxDeleteTempMap();
    }
    COLORREF At(int x, int y) const { return ::GetPixel(m_context, x, y); }

    CDC m_context;
    CBitmap m_bitmap;
    CBitmap* m_previous = nullptr;
};
} // namespace

TEST(Rectangle, KnowsItsMeasures)
{
    CRect r(10, 20, 40, 60);
    EXPECT_EQ(30, r.Width());
    EXPECT_EQ(40, r.Height());
    EXPECT_EQ(CSize(30, 40), r.Size());
    EXPECT_EQ(CPoint(25, 40), r.CenterPoint());
    EXPECT_TRUE(r.PtInRect(CPoint(10, 20)));
    EXPECT_FALSE(r.PtInRect(CPoint(40, 20)));
    r.InflateRect(1, 2);
    EXPECT_EQ(CRect(9, 18, 41, 62), r);
    r.DeflateRect(1, 2);
    r.OffsetRect(-10, -20);
    EXPECT_EQ(CRect(0, 0, 30, 40), r);
    r.MoveToXY(5, 6);
    EXPECT_EQ(CRect(5, 6, 35, 46), r);
    EXPECT_FALSE(r.IsRectEmpty());
    r.SetRectEmpty();
    EXPECT_TRUE(r.IsRectEmpty());
    EXPECT_EQ(CRect(1, 2, 4, 6), CRect(CPoint(1, 2), CSize(3, 4)));
    EXPECT_EQ(CPoint(-3, 4), CPoint(MAKELPARAM(static_cast<WORD>(-3), 4)));
}

TEST_F(Drawing, FillsAndFrames)
{
    m_context.FillSolidRect(CRect(0, 0, 10, 10), red);
    EXPECT_EQ(red, At(9, 9));
    EXPECT_EQ(0u, At(10, 10));
    CBrush brush(green);
    m_context.FillRect(CRect(10, 10, 20, 20), &brush);
    EXPECT_EQ(green, At(10, 10));
    m_context.Draw3dRect(CRect(0, 0, 20, 20), red, blue);
    EXPECT_EQ(red, At(0, 5));
    EXPECT_EQ(red, At(5, 0));
    EXPECT_EQ(blue, At(19, 5));
    EXPECT_EQ(blue, At(5, 19));
    EXPECT_EQ(blue, At(19, 19));
}

TEST_F(Drawing, RegionsCombineFillAndFrame)
{
    CRgn left;
    CRgn right;
    ASSERT_TRUE(left.CreateRectRgn(0, 0, 5, 10));
    ASSERT_TRUE(right.CreateRectRgnIndirect(CRect(10, 0, 15, 10)));
    CRgn both;
    both.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(COMPLEXREGION, both.CombineRgn(&left, &right, RGN_OR));
    CRect box;
    both.GetRgnBox(&box);
    EXPECT_EQ(CRect(0, 0, 15, 10), box);
    EXPECT_TRUE(both.PtInRegion(CPoint(12, 5)));
    EXPECT_FALSE(both.PtInRegion(CPoint(7, 5)));
    CBrush fill(green);
    CBrush frame(red);
    EXPECT_TRUE(m_context.FillRgn(&both, &fill));
    EXPECT_TRUE(m_context.FrameRgn(&both, &frame, 1, 1));
    EXPECT_EQ(red, At(0, 0));
    EXPECT_EQ(green, At(2, 5));
    EXPECT_EQ(0u, At(7, 5));
}

TEST_F(Drawing, CopiesABlock)
{
    CDC target;
    target.CreateCompatibleDC(&m_context);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&m_context, 20, 20);
    CBitmap* const previous = target.SelectObject(&bitmap);
    m_context.FillSolidRect(CRect(0, 0, 20, 20), blue);
    EXPECT_TRUE(target.BitBlt(5, 5, 10, 10, &m_context, 0, 0, SRCCOPY));
    EXPECT_EQ(blue, ::GetPixel(target, 5, 5));
    EXPECT_NE(blue, ::GetPixel(target, 15, 15));
    EXPECT_FALSE(target.IsPrinting());
    target.SelectObject(previous);
}

TEST_F(Drawing, FontIsMadeSelectedAndGivenBack)
{
    LOGFONTW description{};
    description.lfHeight = -14;
    description.lfWeight = FW_BOLD;
    ::lstrcpynW(description.lfFaceName, L"Tahoma", LF_FACESIZE);
    CFont font;
    EXPECT_FALSE(font.GetLogFont(&description)) << "there is none yet";
    ASSERT_TRUE(font.CreateFontIndirect(&description));
    LOGFONTW read{};
    EXPECT_TRUE(font.GetLogFont(&read));
    EXPECT_EQ(FW_BOLD, read.lfWeight);
    EXPECT_EQ(-14, read.lfHeight);
    CFont* const previous = m_context.SelectObject(&font);
    ASSERT_NE(nullptr, previous);
    EXPECT_EQ(font.GetSafeHandle(), ::GetCurrentObject(m_context, OBJ_FONT));
    CRect box;
    const int height = m_context.DrawText(u"two\r\nlines", &box, DT_CALCRECT);
    EXPECT_EQ(box.Height(), height);
    const CSize line = m_context.GetTextExtent(u"lines");
    EXPECT_EQ(2 * line.cy, height);
    m_context.SelectObject(previous);
}

TEST_F(Drawing, TextLeavesItsColour)
{
    m_context.SetBkMode(TRANSPARENT);
    m_context.SetTextColor(red);
    EXPECT_TRUE(m_context.TextOut(0, 0, u"\u2588\u2588MMMM"));
    bool found = false;
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x)
            found = found || At(x, y) == red;
    }
    EXPECT_TRUE(found);
    EXPECT_TRUE(m_context.ExtTextOut(0, 0, ETO_OPAQUE, CRect(0, 0, 20, 20), u"", nullptr));
}

TEST_F(Drawing, OwnedObjectsAreDeletedTemporaryOnesNot)
{
    HGDIOBJ owned = nullptr;
    {
        CBrush brush(red);
        owned = brush.GetSafeHandle();
        ASSERT_EQ(static_cast<DWORD>(OBJ_BRUSH), ::GetObjectType(owned));
    }
    EXPECT_EQ(0u, ::GetObjectType(owned));
    const HBRUSH foreign = ::CreateSolidBrush(green);
    EXPECT_EQ(foreign, CBrush::FromHandle(foreign)->GetSafeHandle());
    AfxDeleteTempMap();
    EXPECT_EQ(static_cast<DWORD>(OBJ_BRUSH), ::GetObjectType(foreign));
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
    window.UpdateWindow();
    const CRect part(10, 10, 30, 40);
    window.InvalidateRect(part);
    window.UpdateWindow();
    EXPECT_EQ(part, window.m_painted);
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE));
}

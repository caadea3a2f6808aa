#include "tests/framework/test_app.h"

#include <gtest/gtest.h>

namespace
{
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

/// A drawing of 20 by 20 pixels in memory, black at first.
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

TEST_F(Drawing, FontIsMadeAsDescribed)
{
    LOGFONTW description{};
    description.lfHeight = -14;
    description.lfWeight = FW_BOLD;
    ::lstrcpynW(description.lfFaceName, L"Tahoma", LF_FACESIZE);
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&description));
    LOGFONTW read{};
    EXPECT_NE(0, ::GetObjectW(font.GetSafeHandle(), sizeof read, &read));
    EXPECT_EQ(FW_BOLD, read.lfWeight);
    EXPECT_EQ(-14, read.lfHeight);
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

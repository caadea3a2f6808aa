// The tooltip's window, which the program never shows: these tests start a show and
// check what it draws.
#include "controls/tool_tip_control.h"
#include "tests/support/process.h"
#include "tests/ui/controls_application.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <ostream>
#include <utility>
#include <vector>

static void PrintTo(const CRect& rect, std::ostream* out)
{
    *out << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom;
}

namespace
{

constexpr COLORREF background = RGB(255, 0, 255);
constexpr COLORREF iconColour = RGB(0, 255, 255);
constexpr int iconWidth = 40;
constexpr int iconHeight = 60;
constexpr int tailHeight = 25;

constexpr auto fullText = u"<T>_ORTHOVAL_LLLL<H>HHHH<D>EEEE\r\nEEEE";

// Points with room for each of the four placements, on a screen of any usual size.
constexpr CPoint topLeft(5, 5);
constexpr CPoint topRight(600, 5);
constexpr CPoint bottomLeft(5, 600);
constexpr CPoint bottomRight(600, 600);

/// Gives access to the functions for showing tooltips.
class ShownTooltip : public CToolTipControl
{
  public:
    using CToolTipControl::Draw;
    using CToolTipControl::m_anchor;
    using CToolTipControl::m_controlRect;
    using CToolTipControl::m_currentText;
    using CToolTipControl::m_outline;
    using CToolTipControl::m_pending;
    using CToolTipControl::m_showDelay;
    using CToolTipControl::m_side;
    using CToolTipControl::showTimer;
    using CToolTipControl::watchTimer;

    CRect WindowRect() const
    {
        CRect rect;
        GetWindowRect(rect);
        return rect;
    }
};

/// A picture of the tooltip, on a background colour that it does not use.
class Picture
{
  public:
    explicit Picture(ShownTooltip& tip)
        : m_width(tip.WindowRect().Width()), m_height(tip.WindowRect().Height())
    {
        const HDC screen = ::GetDC(nullptr);
        m_context.CreateCompatibleDC(nullptr);
        m_bitmap.CreateCompatibleBitmap(CDC::FromHandle(screen), m_width, m_height);
        ::ReleaseDC(nullptr, screen);
        m_previous = ::SelectObject(m_context, m_bitmap.GetSafeHandle());
        m_context.FillSolidRect(CRect(0, 0, m_width, m_height), background);
        tip.Draw(&m_context);
    }
    ~Picture() { ::SelectObject(m_context, m_previous); }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    COLORREF At(int x, int y) const { return ::GetPixel(m_context, x, y); }

    /// The number of pixels of the colour within the rectangle.
    int Count(COLORREF colour, const CRect& rect) const
    {
        int count = 0;
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x)
                count += At(x, y) == colour ? 1 : 0;
        }
        return count;
    }
    /// The first and last drawn column of a row; -1 for none.
    std::pair<int, int> DrawnColumns(int y) const
    {
        std::pair<int, int> columns{-1, -1};
        for (int x = 0; x < m_width; ++x) {
            if (At(x, y) == background)
                continue;
            if (columns.first < 0)
                columns.first = x;
            columns.second = x;
        }
        return columns;
    }

  private:
    int m_width;
    int m_height;
    CDC m_context;
    CBitmap m_bitmap;
    HGDIOBJ m_previous = nullptr;
};

HICON MakeIcon()
{
    std::vector<DWORD> pixels(iconWidth * iconHeight, 0xFF00FFFF);
    const std::vector<BYTE> mask(iconHeight * 48 / 8, 0);
    return ::CreateIcon(nullptr, iconWidth, iconHeight, 1, 32, mask.data(),
                        reinterpret_cast<const BYTE*>(pixels.data()));
}

int HeightOfText(int fontHeight, int weight, bool underline)
{
    LOGFONTW description{};
    description.lfHeight = fontHeight;
    description.lfWeight = weight;
    description.lfUnderline = underline;
    description.lfPitchAndFamily = FF_SWISS;
    ::lstrcpynW(description.lfFaceName, L"Tahoma", LF_FACESIZE);
    CFont font;
    font.CreateFontIndirect(&description);
    CDC context;
    context.CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = ::SelectObject(context, font.GetSafeHandle());
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(context, &metrics);
    ::SelectObject(context, previous);
    return metrics.tmHeight;
}

class TooltipDisplay : public ::testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(parent.CreateEx(0, L"STATIC", L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
        Make(kTooltipBalloon);
    }
    void TearDown() override
    {
        applicationIcon = nullptr;
        tip.DestroyWindow();
        AfxDeleteTempMap();
    }

    void Make(UINT style)
    {
        if (tip.m_hWnd != nullptr)
            tip.DestroyWindow();
        ASSERT_TRUE(tip.Create(&parent, style, 8, nullptr));
        tip.m_currentText = fullText;
    }

    CWnd parent;
    ShownTooltip tip;
};

TEST_F(TooltipDisplay, WindowStandsAtTheAnchorWithoutBeingActivated)
{
    const HWND active = ::GetActiveWindow();
    tip.ShowAt(bottomRight);
    EXPECT_TRUE(tip.IsWindowVisible());
    EXPECT_EQ(::GetActiveWindow(), active);
    EXPECT_EQ(tip.m_anchor, bottomRight);
    const CRect rect = tip.WindowRect();
    EXPECT_EQ(rect.left, 600 - rect.Width() + 12);
    EXPECT_EQ(rect.top, 600 - rect.Height() + 10);
    EXPECT_FALSE(::GetUpdateRect(tip, nullptr, FALSE)) << "it is drawn at once";
    tip.Hide();
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_EQ(tip.m_anchor, CPoint());
}

TEST_F(TooltipDisplay, NearTheLeftOrTopEdgeTheBodyOpensAwayFromIt)
{
    tip.ShowAt(bottomRight);
    const int width = tip.m_outline.body.Width();
    const int height = tip.m_outline.body.Height();
    tip.ShowAt(CPoint(width + 12, height + 11));
    EXPECT_TRUE(tip.m_side.right);
    EXPECT_TRUE(tip.m_side.above);
    EXPECT_EQ(tip.WindowRect().left, width);
    tip.ShowAt(CPoint(width + 13, height + 10));
    EXPECT_FALSE(tip.m_side.right);
    EXPECT_FALSE(tip.m_side.above);
    EXPECT_EQ(tip.WindowRect().TopLeft(), CPoint(25, height));
}

TEST_F(TooltipDisplay, TailPointsAtTheAnchorInEveryPlacement)
{
    for (const CPoint anchor : {topLeft, topRight, bottomLeft, bottomRight}) {
        SCOPED_TRACE(testing::Message() << anchor.x << ", " << anchor.y);
        tip.ShowAt(anchor);
        const bool right = anchor.x == topLeft.x;
        const bool above = anchor.y == bottomLeft.y;
        EXPECT_EQ(tip.m_side.right, right);
        EXPECT_EQ(tip.m_side.above, above);
        const Picture picture(tip);
        // From its tip, which may be too thin to be drawn, the tail widens by one pixel per row.
        for (int row = 1; row < tailHeight; ++row) {
            const auto [first, last] = picture.DrawnColumns(above ? picture.Height() - 1 - row : row);
            const int outer = right ? first : picture.Width() - 1 - last;
            EXPECT_NEAR(outer, 12, 1) << row;
            EXPECT_NEAR(last - first + 1, row + 1, 1) << row;
        }
        // The body occupies the rest, without a gap at the tail or at the far end.
        for (int row = tailHeight + 5; row < picture.Height() - 5; ++row) {
            const auto [first, last] = picture.DrawnColumns(above ? picture.Height() - 1 - row : row);
            EXPECT_EQ(first, 0) << row;
            EXPECT_GE(last, picture.Width() - 2) << row;
        }
        for (int row = tailHeight; row < tailHeight + 5; ++row)
            EXPECT_GE(picture.DrawnColumns(above ? picture.Height() - 1 - row : row).second, 25) << row;
        const auto [first, last] = picture.DrawnColumns(above ? 1 : picture.Height() - 3);
        EXPECT_LE(first, 6);
        EXPECT_GE(last, picture.Width() - 8);
        // The window's region is exactly what is drawn.
        CRgn region;
        ASSERT_TRUE(region.CreateRectRgnIndirect(CRect()));
        ASSERT_NE(::GetWindowRgn(tip, region), ERROR);
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < picture.Width(); ++x)
                ASSERT_EQ(::PtInRegion(region, x, y) != FALSE, picture.At(x, y) != background)
                    << x << ", " << y;
        }
    }
}

TEST_F(TooltipDisplay, FrameIsLightOutsideAndDarkBesideIt)
{
    for (const UINT style : {kTooltipBalloon, kTooltipRoundedRectangle}) {
        Make(style);
        tip.ShowAt(bottomRight);
        const Picture picture(tip);
        const int middle = tip.m_outline.body.Height() / 2;
        EXPECT_EQ(picture.At(0, middle), kTooltipLightFrameColour);
        EXPECT_EQ(picture.At(1, middle), kTooltipDarkFrameColour);
        EXPECT_EQ(picture.At(2, middle), kTooltipFillColour);
        const int column = tip.m_outline.body.Width() / 2;
        EXPECT_EQ(picture.At(column, 0), kTooltipLightFrameColour);
        EXPECT_EQ(picture.At(column, 1), kTooltipFillColour);
        EXPECT_EQ(picture.At(0, 0), background) << "corners are round";
    }
}

TEST_F(TooltipDisplay, RoundedRectangleHasNoTail)
{
    Make(kTooltipRoundedRectangle);
    for (const CPoint anchor : {topLeft, topRight, bottomLeft, bottomRight}) {
        tip.ShowAt(anchor);
        const CRect rect = tip.WindowRect();
        EXPECT_EQ(rect.Height(), tip.m_outline.body.Height());
        EXPECT_EQ(rect.left, tip.m_side.right ? anchor.x - 12 : anchor.x - rect.Width() + 12);
        EXPECT_EQ(rect.top, tip.m_side.above ? anchor.y - rect.Height() : anchor.y + 10);
    }
}

TEST_F(TooltipDisplay, RectangleHasAnEdgeInTwoColours)
{
    Make(kTooltipRectangle);
    tip.ShowAt(bottomRight);
    const Picture picture(tip);
    const int right = picture.Width() - 1;
    const int bottom = picture.Height() - 1;
    EXPECT_EQ(picture.At(0, 0), kTooltipLightFrameColour);
    EXPECT_EQ(picture.At(0, bottom - 1), kTooltipLightFrameColour);
    EXPECT_EQ(picture.At(right - 1, 0), kTooltipLightFrameColour);
    EXPECT_EQ(picture.At(right, 0), kTooltipDarkFrameColour);
    EXPECT_EQ(picture.At(0, bottom), kTooltipDarkFrameColour);
    EXPECT_EQ(picture.At(right, bottom), kTooltipDarkFrameColour);
    // Inside it is the edge in the system's colours.
    EXPECT_EQ(picture.At(1, 5), ::GetSysColor(COLOR_3DHILIGHT));
    EXPECT_EQ(picture.At(right - 1, 5), ::GetSysColor(COLOR_3DSHADOW));
    EXPECT_EQ(picture.At(2, 5), kTooltipFillColour);
}

TEST_F(TooltipDisplay, SectionsStandBelowEachOtherInTheirColours)
{
    constexpr std::array<COLORREF, 3> colours{kTooltipHeadingColour, kTooltipVariableColour,
                                              kTooltipDescriptionColour};
    for (const CPoint anchor : {topLeft, bottomRight}) {
        tip.ShowAt(anchor);
        const Picture picture(tip);
        const int heading = HeightOfText(14, FW_BOLD, false);
        const int variable = HeightOfText(14, FW_NORMAL, true);
        const int description = HeightOfText(14, FW_NORMAL, false);
        int top = 10 + (tip.m_side.above ? 0 : tailHeight);
        const std::array<int, 3> heights{heading, variable, 2 * description};
        for (size_t section = 0; section < heights.size(); ++section) {
            const CRect band(12, top, picture.Width() - 12, top + heights[section]);
            for (size_t other = 0; other < colours.size(); ++other) {
                if (other == section)
                    EXPECT_GT(picture.Count(colours[other], band), 5) << section;
                else
                    EXPECT_EQ(picture.Count(colours[other], band), 0) << section << " has " << other;
            }
            // Three background pixels separate it from the next part.
            const CRect gap(12, band.bottom, picture.Width() - 12, band.bottom + 3);
            EXPECT_EQ(picture.Count(kTooltipFillColour, gap), gap.Width() * gap.Height()) << section;
            top = gap.bottom;
        }
        EXPECT_EQ(tip.m_outline.body.Height(), heading + variable + 2 * description + 3 * 3 + 2 * 10);
    }
}

TEST_F(TooltipDisplay, SubHeadingsLookLikeTheVariable)
{
    tip.m_currentText = u"<S>EEEE<D>LLLL";
    tip.ShowAt(bottomRight);
    const Picture picture(tip);
    const int line = HeightOfText(14, FW_NORMAL, true);
    const CRect first(12, 10, picture.Width() - 12, 10 + line);
    EXPECT_GT(picture.Count(kTooltipVariableColour, first), 5);
    CRect second = first;
    second.OffsetRect(0, line + 3);
    EXPECT_GT(picture.Count(kTooltipDescriptionColour, second), 5);
    EXPECT_EQ(tip.m_outline.body.Height(), 2 * (line + 3) + 2 * 14 + 2 * 10);
}

TEST_F(TooltipDisplay, VariableAloneIsUnderlined)
{
    const auto longestRun = [&](const ov::Text& text, COLORREF colour) {
        tip.m_currentText = text;
        tip.ShowAt(bottomRight);
        const Picture picture(tip);
        int longest = 0;
        for (int y = 0; y < picture.Height(); ++y) {
            int run = 0;
            for (int x = 0; x < picture.Width(); ++x) {
                run = picture.At(x, y) == colour ? run + 1 : 0;
                longest = std::max(longest, run);
            }
        }
        return std::pair(longest, picture.Width() - 24);
    };
    const auto [variable, variableWidth] = longestRun(u"<T>iiiiiiii", kTooltipVariableColour);
    EXPECT_EQ(variable, variableWidth);
    const auto [heading, headingWidth] = longestRun(u"<H>iiiiiiii", kTooltipHeadingColour);
    EXPECT_LT(heading, headingWidth / 2);
    const auto [description, descriptionWidth] = longestRun(u"<D>iiiiiiii", kTooltipDescriptionColour);
    EXPECT_LT(description, descriptionWidth / 2);
}

TEST_F(TooltipDisplay, LinesBreakWhereTheTextBreaksThemOnly)
{
    tip.m_currentText = u"<D>" + ov::Text(300, u'x') + u" " + ov::Text(300, u'x');
    tip.ShowAt(bottomRight);
    const int oneLine = tip.m_outline.body.Height();
    EXPECT_GT(tip.m_outline.body.Width(), 600 * 3);
    tip.m_currentText = u"<D>one\r\ntwo\r\nthree";
    tip.ShowAt(bottomRight);
    EXPECT_EQ(tip.m_outline.body.Height() - oneLine, 2 * HeightOfText(14, FW_NORMAL, false));
}

TEST_F(TooltipDisplay, AmpersandsAndTabsAreText)
{
    const auto width = [&](const ov::Text& text) {
        tip.m_currentText = text;
        tip.ShowAt(bottomRight);
        return tip.m_outline.body.Width();
    };
    EXPECT_GT(width(u"<D>a && b"), width(u"<D>a & b"));
    EXPECT_GT(width(u"<D>\tx"), width(u"<D>    x"));
}

TEST_F(TooltipDisplay, FontFollowsTheParents)
{
    LOGFONTW description{};
    description.lfHeight = -30;
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&description));
    parent.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font.GetSafeHandle()), FALSE);
    tip.m_currentText = u"<H>Heading";
    tip.ShowAt(bottomRight);
    EXPECT_EQ(tip.m_outline.body.Height(), HeightOfText(30, FW_BOLD, false) + 30 / 3 + 2 * 10);
    // The next window uses the font of its own parent.
    parent.SendMessage(WM_SETFONT, 0, FALSE);
    Make(kTooltipBalloon);
    tip.m_currentText = u"<H>Heading";
    tip.ShowAt(bottomRight);
    EXPECT_EQ(tip.m_outline.body.Height(), HeightOfText(14, FW_BOLD, false) + 3 + 2 * 10);
}

TEST_F(TooltipDisplay, ApplicationsIconStandsBesideTheText)
{
    tip.m_currentText = u"<H>HHHH";
    tip.ShowAt(bottomRight);
    const int width = tip.m_outline.body.Width();
    const HICON icon = MakeIcon();
    ASSERT_NE(icon, nullptr);
    applicationIcon = icon;
    for (const CPoint anchor : {topLeft, bottomRight}) {
        tip.ShowAt(anchor);
        EXPECT_EQ(tip.m_outline.body.Width(), width + iconWidth + 2);
        EXPECT_EQ(tip.m_outline.body.Height(), iconHeight);
        const Picture picture(tip);
        const int down = tip.m_side.above ? 0 : tailHeight;
        const CRect place(10, 10 + down, 10 + iconWidth, iconHeight - 5 + down);
        EXPECT_EQ(picture.Count(iconColour, place), place.Width() * place.Height());
        EXPECT_NE(picture.At(9, 12 + down), iconColour);
        EXPECT_NE(picture.At(10 + iconWidth, 12 + down), iconColour);
        EXPECT_NE(picture.At(12, 9 + down), iconColour);
        const CRect text(12 + iconWidth + 2, 10 + down, picture.Width() - 12, 30 + down);
        EXPECT_GT(picture.Count(kTooltipHeadingColour, text), 5);
    }
    applicationIcon = nullptr;
    ::DestroyIcon(icon);
}

TEST_F(TooltipDisplay, TextWithoutSectionsShowsNothing)
{
    tip.m_currentText = u"no tag";
    tip.m_pending = true;
    tip.ShowAt(bottomRight);
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_FALSE(tip.m_pending);
}

TEST_F(TooltipDisplay, NothingArmsTheShow)
{
    tip.AddTool(&parent, 7001);
    EXPECT_FALSE(tip.m_pending);
    EXPECT_EQ(tip.m_showDelay, 1000u);
    EXPECT_FALSE(tip.KillTimer(ShownTooltip::showTimer));
    EXPECT_FALSE(tip.KillTimer(ShownTooltip::watchTimer));
    EXPECT_FALSE(tip.IsWindowVisible());
}

/// The cursor is in the middle of the control, and a show is waiting for its delay.
class TooltipTimers : public TooltipDisplay
{
  protected:
    static constexpr CPoint cursor{400, 300};

    void SetUp() override
    {
        TooltipDisplay::SetUp();
        ASSERT_TRUE(::SetCursorPos(cursor.x, cursor.y));
        tip.m_controlRect = control;
        tip.m_pending = true;
        ASSERT_NE(tip.SetTimer(ShownTooltip::showTimer, 1000 * 1000), 0u);
    }
    void Fire(UINT_PTR timer) { tip.SendMessage(WM_TIMER, timer); }
    bool IsRunning(UINT_PTR timer) { return tip.KillTimer(timer) != FALSE; }

    CRect control{380, 290, 420, 310};
};

TEST_F(TooltipTimers, DelayEndsInAShowAtTheCursor)
{
    Fire(ShownTooltip::showTimer);
    EXPECT_TRUE(tip.IsWindowVisible());
    EXPECT_EQ(tip.m_anchor, cursor);
    EXPECT_FALSE(tip.m_pending);
    EXPECT_FALSE(IsRunning(ShownTooltip::showTimer));
    EXPECT_TRUE(IsRunning(ShownTooltip::watchTimer));
}

TEST_F(TooltipTimers, DelayShowsNothingWhenNoneIsPending)
{
    tip.m_pending = false;
    Fire(ShownTooltip::showTimer);
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_TRUE(IsRunning(ShownTooltip::showTimer));
    EXPECT_FALSE(IsRunning(ShownTooltip::watchTimer));
}

TEST_F(TooltipTimers, DelayShowsNothingWhenTheCursorIsElsewhere)
{
    tip.m_controlRect.OffsetRect(100, 0);
    Fire(ShownTooltip::showTimer);
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_TRUE(tip.m_pending);
}

TEST_F(TooltipTimers, WindowStaysWhileTheCursorIsInsideAndGoesWhenItLeaves)
{
    Fire(ShownTooltip::showTimer);
    Fire(ShownTooltip::watchTimer);
    EXPECT_TRUE(tip.IsWindowVisible());
    ASSERT_TRUE(::SetCursorPos(control.right + 1, cursor.y));
    Fire(ShownTooltip::watchTimer);
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_FALSE(IsRunning(ShownTooltip::watchTimer));
    EXPECT_EQ(tip.m_controlRect, CRect());
    EXPECT_EQ(tip.m_anchor, CPoint());
}

TEST_F(TooltipTimers, OtherTimersDoNothing)
{
    Fire(102);
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_TRUE(tip.m_pending);
}

// Uses the real timers with a short delay, and their messages as they arrive.
TEST_F(TooltipTimers, RunByThemselves)
{
    tip.m_showDelay = 10;
    ASSERT_NE(tip.SetTimer(ShownTooltip::showTimer, tip.m_showDelay), 0u);
    MSG message{};
    while (!tip.IsWindowVisible() && ::GetMessageW(&message, nullptr, 0, 0) > 0)
        ::DispatchMessageW(&message);
    EXPECT_EQ(tip.m_anchor, cursor);
    ASSERT_TRUE(::SetCursorPos(control.right + 1, cursor.y));
    while (tip.IsWindowVisible() && ::GetMessageW(&message, nullptr, 0, 0) > 0)
        ::DispatchMessageW(&message);
    EXPECT_EQ(tip.m_controlRect, CRect());
}

TEST_F(TooltipTimers, AThousandShowsLeaveNothingBehind)
{
    constexpr int warmUp = 20;
    constexpr int rounds = 1000;
    const HICON icon = MakeIcon();
    applicationIcon = icon;
    const auto showAndHide = [&](int count) {
        for (int round = 0; round < count; ++round) {
            tip.ShowAt(round % 2 == 0 ? topLeft : bottomRight);
            ASSERT_TRUE(tip.IsWindowVisible());
            tip.Hide();
        }
        AfxDeleteTempMap();
    };
    showAndHide(warmUp);
    const uidriver::Resources before = uidriver::MeasureResources();
    showAndHide(rounds);
    const uidriver::Resources after = uidriver::MeasureResources();
    SCOPED_TRACE("before: " + uidriver::Describe(before) + "\nafter: " + uidriver::Describe(after));
    EXPECT_GT(before.gdiObjects, 0u);
    EXPECT_LE(after.gdiObjects, before.gdiObjects);
    EXPECT_LE(after.userObjects, before.userObjects);
    applicationIcon = nullptr;
    ::DestroyIcon(icon);
}

TEST_F(TooltipTimers, DestroyingTheShownWindowEndsItAll)
{
    Fire(ShownTooltip::showTimer);
    const uidriver::Resources shown = uidriver::MeasureResources();
    tip.DestroyWindow();
    const uidriver::Resources gone = uidriver::MeasureResources();
    EXPECT_LE(gone.gdiObjects + 3, shown.gdiObjects) << "the three fonts go with it";
    ASSERT_TRUE(tip.Create(&parent, kTooltipBalloon, 8, nullptr));
    EXPECT_FALSE(tip.m_pending);
    EXPECT_TRUE(tip.m_currentText.empty());
    EXPECT_FALSE(IsRunning(ShownTooltip::watchTimer));
}

} // namespace

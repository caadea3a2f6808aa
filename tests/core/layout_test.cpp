#include "controls/core/layout.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace
{

using namespace ov;

constexpr std::uint32_t designWidth = 580;
constexpr std::uint32_t designHeight = 400;
// The client area in which the control is captured: the control is 50 from the right
// edge and 30 from the bottom edge.
constexpr std::int32_t capturedWidth = 300;
constexpr std::int32_t capturedHeight = 200;
constexpr Rect initialRect{100, 40, 250, 170};

CDlgControlInfo Captured(std::uint32_t flags, const Rect& rect = initialRect)
{
    CDlgControlInfo info;
    info.controlId = 7;
    info.layoutFlags = flags;
    CaptureControl(info, rect, capturedWidth, capturedHeight);
    return info;
}

Rect Place(std::uint32_t flags, std::int32_t width, std::int32_t height, const Rect& rect = initialRect)
{
    return PlaceControl(Captured(flags, rect), designWidth, designHeight, width, height);
}

// The controls of a dialog without a window.
class Controls : public LayoutControls
{
  public:
    std::map<std::uint16_t, Rect> rects;
    std::map<std::uint16_t, std::int32_t> columns;
    std::map<std::uint16_t, std::int32_t> columnWidths;
    std::string moved;

    std::optional<Rect> ControlRect(std::uint16_t controlId) override
    {
        const auto found = rects.find(controlId);
        return found == rects.end() ? std::nullopt : std::optional(found->second);
    }
    std::int32_t ListColumns(std::uint16_t controlId) override
    {
        const auto found = columns.find(controlId);
        return found == columns.end() ? 0 : found->second;
    }
    void SetListColumnWidths(std::uint16_t controlId, std::int32_t width) override
    {
        columnWidths[controlId] = width;
    }
    void MoveControl(std::uint16_t controlId, const Rect& rect) override
    {
        rects[controlId] = rect;
        moved += std::to_string(controlId) + ' ';
    }
};

CDlgControlInfo Entry(std::uint16_t id, std::uint32_t flags)
{
    CDlgControlInfo info;
    info.controlId = id;
    info.layoutFlags = flags;
    return info;
}

TEST(Layout, FlagsHaveTheirValues)
{
    EXPECT_EQ(LayoutKeepLeft, 0x001u);
    EXPECT_EQ(LayoutKeepTop, 0x002u);
    EXPECT_EQ(LayoutAnchorRight, 0x004u);
    EXPECT_EQ(LayoutAnchorBottom, 0x008u);
    EXPECT_EQ(LayoutScaleWidth, 0x010u);
    EXPECT_EQ(LayoutScaleHeight, 0x020u);
    EXPECT_EQ(LayoutScaleX, 0x040u);
    EXPECT_EQ(LayoutScaleY, 0x080u);
    EXPECT_EQ(LayoutStretchWidth, 0x100u);
    EXPECT_EQ(LayoutStretchHeight, 0x200u);
    EXPECT_EQ(LayoutScaleWidthFromRight, 0x400u);
}

TEST(Layout, CaptureTakesEdgesAndMargins)
{
    const CDlgControlInfo info = Captured(LayoutKeepLeft);
    EXPECT_EQ(info.initialRect, initialRect);
    EXPECT_EQ(info.left, 100);
    EXPECT_EQ(info.rightMargin, 50);
    EXPECT_EQ(info.top, 40);
    EXPECT_EQ(info.bottomMargin, 30);
    EXPECT_EQ(info.captured, 1u);
}

TEST(Layout, CaptureHappensOncePerEntry)
{
    CDlgControlInfo info = Captured(LayoutKeepLeft);
    CaptureControl(info, {1, 2, 3, 4}, 1000, 1000);
    EXPECT_EQ(info.initialRect, initialRect);
    EXPECT_EQ(info.rightMargin, 50);
}

TEST(Layout, NoFlagKeepsTheInitialRectangle)
{
    EXPECT_EQ(Place(0, 900, 700), initialRect);
}

TEST(Layout, KeepLeft)
{
    EXPECT_EQ(Place(LayoutKeepLeft, 900, 700), initialRect);
}

TEST(Layout, KeepTop)
{
    EXPECT_EQ(Place(LayoutKeepTop, 900, 700), initialRect);
}

TEST(Layout, AnchorRightKeepsWidthAndRightMargin)
{
    EXPECT_EQ(Place(LayoutAnchorRight, 900, 700), (Rect{700, 40, 850, 170}));
}

TEST(Layout, AnchorBottomKeepsHeightAndBottomMargin)
{
    EXPECT_EQ(Place(LayoutAnchorBottom, 900, 700), (Rect{100, 540, 250, 670}));
}

TEST(Layout, ScaleWidthIsInProportionToTheDesignWidth)
{
    // 150 / 580 x 900 = 232.7...
    EXPECT_EQ(Place(LayoutScaleWidth, 900, 700), (Rect{100, 40, 332, 170}));
}

TEST(Layout, ScaleHeightIsInProportionToTheDesignHeight)
{
    // 130 / 400 x 600 = 195
    EXPECT_EQ(Place(LayoutScaleHeight, 900, 600), (Rect{100, 40, 250, 235}));
}

TEST(Layout, ScaleXMovesTheLeftEdgeAndKeepsTheWidth)
{
    // 100 / 580 x 900 = 155.1...
    EXPECT_EQ(Place(LayoutScaleX, 900, 700), (Rect{155, 40, 305, 170}));
}

TEST(Layout, ScaleYMovesTheTopEdgeAndKeepsTheHeight)
{
    // 40 / 400 x 600 = 60
    EXPECT_EQ(Place(LayoutScaleY, 900, 600), (Rect{100, 60, 250, 190}));
}

TEST(Layout, StretchWidthKeepsLeftAndRightMargin)
{
    EXPECT_EQ(Place(LayoutStretchWidth, 900, 700), (Rect{100, 40, 850, 170}));
}

TEST(Layout, StretchHeightKeepsTopAndBottomMargin)
{
    EXPECT_EQ(Place(LayoutStretchHeight, 900, 700), (Rect{100, 40, 250, 670}));
}

TEST(Layout, ScaleWidthFromRightSitsOnePixelInsideTheRightMargin)
{
    // width 232; right = 900 - 50 - 1
    EXPECT_EQ(Place(LayoutScaleWidth | LayoutScaleWidthFromRight, 900, 700), (Rect{617, 40, 849, 170}));
}

TEST(Layout, ScaleWidthFromRightAloneDoesNothing)
{
    EXPECT_EQ(Place(LayoutScaleWidthFromRight, 900, 700), initialRect);
}

TEST(Layout, Combination3IsFixed)
{
    EXPECT_EQ(Place(3, 900, 700), initialRect);
}

TEST(Layout, Combination6IsTopRight)
{
    EXPECT_EQ(Place(6, 900, 700), (Rect{700, 40, 850, 170}));
}

TEST(Layout, Combination9IsBottomLeft)
{
    EXPECT_EQ(Place(9, 900, 700), (Rect{100, 540, 250, 670}));
}

TEST(Layout, Combination12IsBottomRight)
{
    EXPECT_EQ(Place(12, 900, 700), (Rect{700, 540, 850, 670}));
}

TEST(Layout, Combination258IsTopStretchedInWidth)
{
    EXPECT_EQ(Place(258, 900, 700), (Rect{100, 40, 850, 170}));
}

TEST(Layout, Combination264IsBottomStretchedInWidth)
{
    EXPECT_EQ(Place(264, 900, 700), (Rect{100, 540, 850, 670}));
}

TEST(Layout, Combination512IsStretchedInHeight)
{
    EXPECT_EQ(Place(512, 900, 700), (Rect{100, 40, 250, 670}));
}

TEST(Layout, Combination768IsStretchedBothWays)
{
    EXPECT_EQ(Place(768, 900, 700), (Rect{100, 40, 850, 670}));
}

TEST(Layout, Combination770IsStretchedBothWaysWithItsTopKept)
{
    EXPECT_EQ(Place(770, 900, 700), (Rect{100, 40, 850, 670}));
}

TEST(Layout, ScaleXAfterStretchingPutsWidthAndVerticalEdgesBack)
{
    EXPECT_EQ(Place(LayoutStretchWidth | LayoutStretchHeight | LayoutScaleX, 900, 700),
              (Rect{155, 40, 305, 170}));
}

TEST(Layout, AnchorRightAfterStretchingInHeightPutsTheVerticalEdgesBack)
{
    EXPECT_EQ(Place(LayoutStretchHeight | LayoutAnchorRight, 900, 700), (Rect{700, 40, 850, 170}));
}

TEST(Layout, KeepLeftAfterStretchingPutsTheWholeRectangleBack)
{
    EXPECT_EQ(Place(LayoutStretchWidth | LayoutStretchHeight | LayoutKeepLeft, 900, 700), initialRect);
}

TEST(Layout, ScaleWidthComesBeforeAnchorRightAndKeepLeft)
{
    EXPECT_EQ(Place(LayoutScaleWidth | LayoutAnchorRight | LayoutKeepLeft, 900, 700),
              (Rect{100, 40, 332, 170}));
}

TEST(Layout, AnchorRightComesBeforeKeepLeft)
{
    EXPECT_EQ(Place(LayoutAnchorRight | LayoutKeepLeft, 900, 700), (Rect{700, 40, 850, 170}));
}

TEST(Layout, ScaleWidthStartsAtTheScaledLeftEdge)
{
    EXPECT_EQ(Place(LayoutScaleX | LayoutScaleWidth, 900, 700), (Rect{155, 40, 387, 170}));
}

TEST(Layout, ScaleWidthKeepsAStretchedHeight)
{
    EXPECT_EQ(Place(LayoutStretchHeight | LayoutScaleWidth, 900, 700), (Rect{100, 40, 332, 670}));
}

TEST(Layout, ScaleHeightStartsAtTheScaledTopEdge)
{
    EXPECT_EQ(Place(LayoutScaleY | LayoutScaleHeight, 900, 600), (Rect{100, 60, 250, 255}));
}

TEST(Layout, ScaleHeightComesBeforeAnchorBottomAndKeepTop)
{
    EXPECT_EQ(Place(LayoutScaleHeight | LayoutAnchorBottom | LayoutKeepTop, 900, 600),
              (Rect{100, 40, 250, 235}));
}

TEST(Layout, AnchorBottomComesBeforeKeepTop)
{
    EXPECT_EQ(Place(LayoutAnchorBottom | LayoutKeepTop, 900, 700), (Rect{100, 540, 250, 670}));
}

TEST(Layout, KeepTopAfterScaleYPutsOnlyTheTopEdgeBack)
{
    EXPECT_EQ(Place(LayoutScaleY | LayoutKeepTop, 900, 600), (Rect{100, 40, 250, 190}));
}

TEST(Layout, ProportionsAreTruncated)
{
    // 150 / 580 x 601 = 155.4..., 130 / 400 x 403 = 130.9...
    EXPECT_EQ(Place(LayoutScaleWidth | LayoutScaleHeight, 601, 403), (Rect{100, 40, 255, 170}));
    // 100 / 580 x 599 = 103.2..., 40 / 400 x 409 = 40.9
    EXPECT_EQ(Place(LayoutScaleX | LayoutScaleY, 599, 409), (Rect{103, 40, 253, 170}));
}

TEST(Layout, ProportionsAreTruncatedTowardsZeroLeftOfTheOrigin)
{
    // -10 / 580 x 601 = -10.3...
    EXPECT_EQ(Place(LayoutScaleX, 601, 400, {-10, 0, 20, 20}), (Rect{-10, 0, 20, 20}));
}

TEST(Layout, ProportionsAreComputedInSinglePrecision)
{
    // 73 / 580 is a little less in single precision, so 73 x 580 / 580 is not 73.
    EXPECT_EQ(Place(LayoutScaleX, 580, 400, {73, 0, 83, 20}).left, 72);
    EXPECT_EQ(Place(LayoutScaleWidth, 580, 400, {0, 0, 105, 20}).right, 104);
}

TEST(Layout, ProportionsReferToTheDesignSizeNotToTheCapturedOne)
{
    // Captured in 300 x 200 and placed in the same size: 150 / 580 x 300 = 77.5...
    EXPECT_EQ(Place(LayoutScaleWidth, capturedWidth, capturedHeight), (Rect{100, 40, 177, 170}));
}

TEST(Layout, ColumnsShareTheWidthLessTheBorders)
{
    EXPECT_EQ(ColumnWidth(304, 3), 100);
    EXPECT_EQ(ColumnWidth(305, 3), 100);
    EXPECT_EQ(ColumnWidth(303, 3), 99);
    EXPECT_EQ(ColumnWidth(304, 1), 300);
}

TEST(Layout, ColumnsWithoutRoomAreEmpty)
{
    EXPECT_EQ(ColumnWidth(0, 1), 0);
    EXPECT_EQ(ColumnWidth(-50, 2), 0);
    EXPECT_EQ(ColumnWidth(304, 0), 0);
}

TEST(Layout, GripSitsInTheBottomRightCorner)
{
    EXPECT_EQ(GripRect(580, 400), (Rect{569, 389, 580, 400}));
}

constexpr Size usualUnits{6, 13};
constexpr Size largeWorkArea{3000, 2000};

TEST(Layout, MinimumTrackSizeIsTheDesignSizeUntilDestruction)
{
    EXPECT_EQ(MinimumTrackSize(580, 400, usualUnits, largeWorkArea), (Size{580, 400}));
    EXPECT_EQ(MinimumTrackSize(0, 400, usualUnits, largeWorkArea), std::nullopt);
}

TEST(Layout, MinimumTrackSizeGrowsWithTheUnitsAndNeverShrinks)
{
    EXPECT_EQ(MinimumTrackSize(580, 400, {12, 26}, largeWorkArea), (Size{1160, 800}));
    EXPECT_EQ(MinimumTrackSize(580, 400, {3, 7}, largeWorkArea), (Size{580, 400}));
    // The units before the dialog has measured them.
    EXPECT_EQ(MinimumTrackSize(580, 400, {0, 0}, largeWorkArea), (Size{580, 400}));
}

TEST(Layout, MinimumTrackSizeFitsTheWorkAreaIfTheDesignSizeDoes)
{
    EXPECT_EQ(MinimumTrackSize(580, 400, {12, 26}, {1024, 728}), (Size{1024, 728}));
    EXPECT_EQ(MinimumTrackSize(580, 400, {12, 26}, {500, 300}), (Size{580, 400}));
}

TEST(Layout, RecapturingReplacesWhatWasCaptured)
{
    Controls controls;
    controls.rects[7] = {10, 20, 110, 40};
    std::vector entries{Entry(7, LayoutStretchWidth | LayoutAnchorBottom)};
    CaptureControls(entries, controls, 200, 100);
    controls.rects[7] = {15, 30, 165, 60};
    CaptureControls(entries, controls, 300, 150);
    EXPECT_EQ(entries[0].initialRect, (Rect{10, 20, 110, 40}));
    RecaptureControls(entries, controls, 300, 150);
    ApplyLayout(entries, controls, designWidth, designHeight, 400, 200);
    EXPECT_EQ(controls.rects[7], (Rect{15, 80, 265, 110}));
}

TEST(LayoutPass, StretchedListWithThreeColumnsAnd304PixelsGetsColumnsOf100)
{
    Controls controls;
    controls.rects[7] = {0, 0, 200, 100};
    controls.columns[7] = 3;
    std::vector entries{Entry(7, 770)};
    CaptureControls(entries, controls, 200, 100);
    ApplyLayout(entries, controls, designWidth, designHeight, 304, 100);
    EXPECT_EQ(controls.rects[7], (Rect{0, 0, 304, 100}));
    EXPECT_EQ(controls.columnWidths[7], 100);
}

TEST(LayoutPass, ListThatIsNotStretchedInWidthKeepsItsColumns)
{
    Controls controls;
    controls.rects[7] = {0, 0, 200, 100};
    controls.columns[7] = 3;
    std::vector entries{Entry(7, 512)};
    CaptureControls(entries, controls, 200, 100);
    ApplyLayout(entries, controls, designWidth, designHeight, 304, 300);
    EXPECT_TRUE(controls.columnWidths.empty());
    EXPECT_EQ(controls.rects[7], (Rect{0, 0, 200, 300}));
}

TEST(LayoutPass, RepeatedResizingDoesNotDrift)
{
    Controls controls;
    controls.rects[1] = {10, 10, 73, 41};
    controls.rects[2] = {100, 40, 250, 170};
    std::vector entries{
        Entry(1, LayoutScaleX | LayoutScaleWidth | LayoutScaleY | LayoutScaleHeight),
        Entry(2, 768),
    };
    CaptureControls(entries, controls, 580, 400);
    ApplyLayout(entries, controls, designWidth, designHeight, 580, 400);
    const auto first = controls.rects;
    for (std::int32_t i = 0; i < 1000; ++i)
        ApplyLayout(entries, controls, designWidth, designHeight, 100 + 7 * i % 1201, 90 + 11 * i % 907);
    EXPECT_NE(controls.rects, first);
    ApplyLayout(entries, controls, designWidth, designHeight, 580, 400);
    EXPECT_EQ(controls.rects, first);
    EXPECT_EQ(controls.rects[2], (Rect{100, 40, 250, 170}));
}

TEST(LayoutPass, MissingControlIsSkipped)
{
    Controls controls;
    controls.rects[2] = initialRect;
    std::vector entries{Entry(1, 12), Entry(2, 12)};
    CaptureControls(entries, controls, capturedWidth, capturedHeight);
    EXPECT_EQ(entries[0].captured, 0u);
    EXPECT_EQ(entries[0].initialRect, Rect{});
    EXPECT_EQ(entries[0].rightMargin, 0);
    EXPECT_EQ(entries[1].captured, 1u);
    ApplyLayout(entries, controls, designWidth, designHeight, 900, 700);
    EXPECT_EQ(controls.moved, "2 ");
}

TEST(LayoutPass, ControlsArePlacedInTheOrderOfTheirEntries)
{
    Controls controls;
    controls.rects[1] = controls.rects[2] = controls.rects[3] = initialRect;
    std::vector entries{Entry(3, 3), Entry(1, 3), Entry(2, 3)};
    CaptureControls(entries, controls, capturedWidth, capturedHeight);
    ApplyLayout(entries, controls, designWidth, designHeight, 900, 700);
    EXPECT_EQ(controls.moved, "3 1 2 ");
}

TEST(LayoutPass, NothingMovesWithoutADesignSize)
{
    Controls controls;
    controls.rects[2] = initialRect;
    std::vector entries{Entry(2, 12)};
    CaptureControls(entries, controls, capturedWidth, capturedHeight);
    ApplyLayout(entries, controls, 0, designHeight, 900, 700);
    ApplyLayout(entries, controls, designWidth, 0, 900, 700);
    EXPECT_EQ(controls.moved, "");
    EXPECT_EQ(controls.rects[2], initialRect);
}

TEST(LayoutPass, CaptureAfterASecondCreationKeepsTheFirstGeometry)
{
    Controls controls;
    controls.rects[2] = initialRect;
    std::vector entries{Entry(2, 12)};
    CaptureControls(entries, controls, capturedWidth, capturedHeight);
    controls.rects[2] = {0, 0, 10, 10};
    CaptureControls(entries, controls, 50, 50);
    EXPECT_EQ(entries[0].initialRect, initialRect);
}

} // namespace

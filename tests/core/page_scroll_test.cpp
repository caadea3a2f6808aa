#include "wizard/core/page_scroll.h"

#include <gtest/gtest.h>

namespace
{

using namespace ov;

// Performs the scroll steps of a wheel movement one by one, as the page does.
std::int32_t TurnWheel(ScrollAxis& axis, std::int32_t delta, std::uint32_t lines)
{
    const WheelSteps steps = StepsOfWheel(delta, lines);
    std::int32_t moved = 0;
    for (std::uint64_t i = 0; i < steps.count; ++i)
        moved += Scroll(axis, steps.request, 0);
    return moved;
}

TEST(PageScrollAvailable, HiddenScrollBarAddsNothing)
{
    EXPECT_EQ(AvailableSize(400, 400, 17), 400);
    EXPECT_EQ(AvailableSize(402, 400, 17), 400);
    EXPECT_EQ(AvailableSize(416, 400, 17), 400);
}

TEST(PageScrollAvailable, ShownScrollBarIsAddedBack)
{
    EXPECT_EQ(AvailableSize(417, 400, 17), 417);
    EXPECT_EQ(AvailableSize(419, 400, 17), 417);
}

TEST(PageScrollUpdate, ContentSmallerThanTheAreaShowsNoBarAndSitsAtTheOrigin)
{
    ScrollAxis axis{0, 220, 0};
    EXPECT_EQ(UpdateAxis(axis, 300, 0), (ScrollUpdate{{0, 0, 0}, 0}));
    EXPECT_EQ(axis.pageSize, 0);
    EXPECT_EQ(axis.position, 0);
}

TEST(PageScrollUpdate, ContentThatFitsExactlyShowsNoBar)
{
    ScrollAxis axis{0, 300, 0};
    EXPECT_EQ(UpdateAxis(axis, 300, 0), (ScrollUpdate{{0, 0, 0}, 0}));
}

TEST(PageScrollUpdate, ContentThatBeginsToFitReturnsToTheOrigin)
{
    ScrollAxis axis{200, 370, 90};
    EXPECT_EQ(UpdateAxis(axis, 400, 90), (ScrollUpdate{{0, 0, 0}, 90}));
    EXPECT_EQ(axis.pageSize, 0);
    EXPECT_EQ(axis.position, 0);
}

TEST(PageScrollUpdate, ContentThatDoesNotFitGetsABar)
{
    ScrollAxis axis{0, 370, 0};
    EXPECT_EQ(UpdateAxis(axis, 200, 0), (ScrollUpdate{{369, 200, 0}, 0}));
    EXPECT_EQ(axis.pageSize, 200);
}

TEST(PageScrollUpdate, PositionFollowsThePageSizeTruncated)
{
    // 50 x 250 / 200 = 62.5
    ScrollAxis axis{200, 1000, 50};
    EXPECT_EQ(UpdateAxis(axis, 250, 50), (ScrollUpdate{{999, 250, 62}, -12}));
    EXPECT_EQ(axis.position, 62);
}

TEST(PageScrollUpdate, PositionEndsOnePixelBeforeTheLastPage)
{
    // 100 x 350 / 200 = 175, but only 370 - 350 - 1 are left
    ScrollAxis axis{200, 370, 100};
    EXPECT_EQ(UpdateAxis(axis, 350, 100), (ScrollUpdate{{369, 350, 19}, 81}));
}

TEST(PageScrollUpdate, ShiftIsCountedFromWhatTheBarShows)
{
    ScrollAxis axis{0, 370, 0};
    EXPECT_EQ(UpdateAxis(axis, 200, 30).contentShift, 30);
}

TEST(PageScrollRequest, LinesAreSixtyPixels)
{
    ScrollAxis axis{200, 1000, 100};
    EXPECT_EQ(Scroll(axis, ScrollRequest::LineForward, 0), 60);
    EXPECT_EQ(axis.position, 160);
    EXPECT_EQ(Scroll(axis, ScrollRequest::LineBack, 0), -60);
    EXPECT_EQ(axis.position, 100);
}

TEST(PageScrollRequest, PagesAreThePageSize)
{
    ScrollAxis axis{200, 1000, 300};
    EXPECT_EQ(Scroll(axis, ScrollRequest::PageForward, 0), 200);
    EXPECT_EQ(axis.position, 500);
    EXPECT_EQ(Scroll(axis, ScrollRequest::PageBack, 0), -200);
    EXPECT_EQ(axis.position, 300);
}

TEST(PageScrollRequest, ThumbRequestsGoWhereTheThumbIs)
{
    ScrollAxis axis{200, 1000, 300};
    EXPECT_EQ(Scroll(axis, ScrollRequest::ThumbTrack, 450), 150);
    EXPECT_EQ(Scroll(axis, ScrollRequest::ThumbPosition, 20), -430);
    EXPECT_EQ(axis.position, 20);
}

TEST(PageScrollRequest, OtherRequestsDoNothing)
{
    ScrollAxis axis{200, 1000, 300};
    for (std::uint32_t code = 6; code <= 8; ++code)
        EXPECT_EQ(Scroll(axis, static_cast<ScrollRequest>(code), 77), 0) << code;
    EXPECT_EQ(axis.position, 300);
}

TEST(PageScrollRequest, PositionIsHeldWithinTheContent)
{
    ScrollAxis axis{200, 370, 150};
    EXPECT_EQ(Scroll(axis, ScrollRequest::LineForward, 0), 20);
    EXPECT_EQ(axis.position, 170);
    EXPECT_EQ(Scroll(axis, ScrollRequest::LineForward, 0), 0);
    EXPECT_EQ(Scroll(axis, ScrollRequest::PageBack, 0), -170);
    EXPECT_EQ(axis.position, 0);
    EXPECT_EQ(Scroll(axis, ScrollRequest::LineBack, 0), 0);
    EXPECT_EQ(Scroll(axis, ScrollRequest::ThumbTrack, 5000), 170);
    EXPECT_EQ(Scroll(axis, ScrollRequest::ThumbTrack, -1), -170);
}

TEST(PageScrollRequest, ContentThatFitsStaysAtTheOrigin)
{
    ScrollAxis axis{0, 220, 0};
    EXPECT_EQ(Scroll(axis, ScrollRequest::LineForward, 0), 0);
    EXPECT_EQ(Scroll(axis, ScrollRequest::ThumbTrack, 100), 0);
    EXPECT_EQ(axis.position, 0);
}

TEST(PageScrollShowing, WhatIsInViewStaysWhereItIs)
{
    const ScrollAxis axis{200, 1000, 300};
    EXPECT_EQ(PositionShowing(axis, 300, 320, 200), 300);
    EXPECT_EQ(PositionShowing(axis, 480, 500, 200), 300);
    EXPECT_EQ(PositionShowing(axis, 300, 500, 200), 300);
}

TEST(PageScrollShowing, WhatIsOutOfViewComesInTheShortestWay)
{
    const ScrollAxis axis{200, 1000, 300};
    EXPECT_EQ(PositionShowing(axis, 481, 501, 200), 301);
    EXPECT_EQ(PositionShowing(axis, 900, 920, 200), 720);
    EXPECT_EQ(PositionShowing(axis, 299, 319, 200), 299);
    EXPECT_EQ(PositionShowing(axis, 250, 270, 200), 250);
}

TEST(PageScrollShowing, WhatTheOriginShowsIsShownThere)
{
    const ScrollAxis axis{200, 1000, 300};
    EXPECT_EQ(PositionShowing(axis, 10, 30, 200), 0);
    EXPECT_EQ(PositionShowing(axis, 180, 200, 200), 0);
    EXPECT_EQ(PositionShowing(axis, 181, 201, 200), 181);
}

TEST(PageScrollShowing, TheOtherBarTakesItsPartOfTheView)
{
    // The bars leave 183 of 200 pixels.
    const ScrollAxis axis{200, 1000, 300};
    EXPECT_EQ(PositionShowing(axis, 463, 483, 183), 300);
    EXPECT_EQ(PositionShowing(axis, 464, 484, 183), 301);
}

TEST(PageScrollShowing, OfWhatIsLongerThanTheViewTheBeginningIsShown)
{
    const ScrollAxis atOrigin{200, 1000, 0};
    EXPECT_EQ(PositionShowing(atOrigin, 10, 300, 200), 0);
    EXPECT_EQ(PositionShowing(atOrigin, 100, 400, 200), 50);
    const ScrollAxis axis{200, 1000, 300};
    EXPECT_EQ(PositionShowing(axis, 310, 600, 200), 300);
    EXPECT_EQ(PositionShowing(axis, 200, 600, 200), 200);
    EXPECT_EQ(PositionShowing(axis, 10, 600, 200), 0);
}

TEST(PageScrollWheel, OneNotchOfThreeLinesIsSixtyPixels)
{
    ScrollAxis axis{200, 5000, 0};
    EXPECT_EQ(TurnWheel(axis, -120, 3), 60);
}

TEST(PageScrollWheel, TwoNotchesAreOneHundredAndTwentyPixels)
{
    ScrollAxis axis{200, 5000, 0};
    EXPECT_EQ(TurnWheel(axis, -240, 3), 120);
}

TEST(PageScrollWheel, TenNotchesAreTenSteps)
{
    EXPECT_EQ(StepsOfWheel(-1200, 3), (WheelSteps{ScrollRequest::LineForward, 10}));
    ScrollAxis axis{200, 5000, 0};
    EXPECT_EQ(TurnWheel(axis, -1200, 3), 600);
}

TEST(PageScrollWheel, AwayFromTheUserGoesBack)
{
    EXPECT_EQ(StepsOfWheel(240, 3), (WheelSteps{ScrollRequest::LineBack, 2}));
    EXPECT_EQ(StepsOfWheel(0, 3), (WheelSteps{ScrollRequest::LineForward, 1}));
}

TEST(PageScrollWheel, FewerThanSixLinesAreOneStep)
{
    EXPECT_EQ(StepsOfWheel(-120, 5).count, 1u);
    EXPECT_EQ(StepsOfWheel(-120, 6).count, 2u);
    EXPECT_EQ(StepsOfWheel(-120, 8).count, 2u);
    EXPECT_EQ(StepsOfWheel(-120, 9).count, 3u);
    EXPECT_EQ(StepsOfWheel(-120, 0).count, 1u);
}

TEST(PageScrollWheel, PartsOfANotchDoNotCount)
{
    EXPECT_EQ(StepsOfWheel(-119, 100).count, 1u);
    EXPECT_EQ(StepsOfWheel(-239, 3).count, 1u);
    EXPECT_EQ(StepsOfWheel(30, 3), (WheelSteps{ScrollRequest::LineBack, 1}));
}

TEST(PageScrollWheel, PageSettingScrollsOnePageWhateverTheMovement)
{
    EXPECT_EQ(StepsOfWheel(-1200, kWheelScrollsPage), (WheelSteps{ScrollRequest::PageForward, 1}));
    EXPECT_EQ(StepsOfWheel(120, kWheelScrollsPage), (WheelSteps{ScrollRequest::PageBack, 1}));
    EXPECT_EQ(StepsOfWheel(0, kWheelScrollsPage), (WheelSteps{ScrollRequest::PageForward, 1}));
}

TEST(PageScrollResize, ScrolledAxisReturnsToItsOrigin)
{
    ScrollAxis axis{200, 370, 170};
    EXPECT_EQ(ResetAxis(axis), 170);
    EXPECT_EQ(axis.position, 0);
    EXPECT_EQ(ResetAxis(axis), 0);
}

TEST(PageScrollResize, AxisWithoutContentOrPageIsLeftAlone)
{
    ScrollAxis nothing{200, 0, 10};
    EXPECT_EQ(ResetAxis(nothing), 0);
    EXPECT_EQ(nothing.position, 10);
    ScrollAxis fits{0, 370, 10};
    EXPECT_EQ(ResetAxis(fits), 0);
    EXPECT_EQ(fits.position, 10);
}

TEST(PageScrollResize, EnlargingWhileScrolledToTheBottomReturnsToTheTop)
{
    ScrollAxis axis{0, 750, 0};
    UpdateAxis(axis, 300, 0);
    while (Scroll(axis, ScrollRequest::PageForward, 0) != 0) {
    }
    EXPECT_EQ(axis.position, 450);
    EXPECT_EQ(ResetAxis(axis), 450);
    EXPECT_EQ(UpdateAxis(axis, 500, 0), (ScrollUpdate{{749, 500, 0}, 0}));
    EXPECT_EQ(axis.position, 0);
}

TEST(PageScrollReach, ContentThatFitsIsReachedAsFarAsThePageGoes)
{
    const ScrollAxis axis{0, 290, 0};
    EXPECT_EQ(ReachableSize(axis, 386, 386), 386);
    EXPECT_EQ(ReachableSize(axis, 386, 369), 369); // beside the scroll bar of the other axis
}

TEST(PageScrollReach, BarOfTheOtherAxisCoversTheEndOfAScrolledContent)
{
    const ScrollAxis axis{386, 440, 0};
    EXPECT_EQ(ReachableSize(axis, 386, 386), 440);
    EXPECT_EQ(ReachableSize(axis, 386, 369), 423);
}

TEST(PageScrollReach, IsAsFarAsTheLastPositionShows)
{
    ScrollAxis axis{0, 440, 0};
    UpdateAxis(axis, 386, 0);
    Scroll(axis, ScrollRequest::ThumbPosition, 1000);
    EXPECT_EQ(ReachableSize(axis, 386, 369), axis.position + 369);
}

} // namespace

#include "controls/core/layout.h"
#include "pages/core/page_geometry.h"

#include <gtest/gtest.h>

#include <vector>

namespace ov
{
namespace
{

// A page of 300 pixels; an edit may shrink to 75, a frame ends 10 after its members.
constexpr PageWidths kWidths{.templateWidth = 300, .frameMargin = 10, .shortestContent = 75};
constexpr std::uint32_t kFixedPlace = LayoutKeepLeft | LayoutKeepTop;
constexpr std::uint32_t kAtTheRight = LayoutKeepTop | LayoutAnchorRight;
constexpr std::uint32_t kStretching = LayoutKeepTop | LayoutStretchWidth;

PlacedControl Control(std::int32_t left, std::int32_t right, std::uint32_t flags,
                      WidthKind kind = WidthKind::Content)
{
    return {{left, 20, right, 40}, flags, kind};
}

std::int32_t Narrowest(const std::vector<PlacedControl>& controls)
{
    return NarrowestPageWidth(controls, kWidths);
}

TEST(NarrowestPageWidth, AnEditShrinksUntilItShowsOneWord)
{
    EXPECT_EQ(Narrowest({Control(100, 290, kStretching)}), 300 - (190 - 75));
}

TEST(NarrowestPageWidth, AnEditThatIsShortInTheTemplateDoesNotShrink)
{
    EXPECT_EQ(Narrowest({Control(220, 290, kStretching)}), 300);
    EXPECT_EQ(Narrowest({Control(215, 290, kStretching)}), 300);
}

TEST(NarrowestPageWidth, TheControlWithTheLeastRoomDecides)
{
    EXPECT_EQ(Narrowest({Control(10, 290, kStretching), Control(190, 290, kStretching)}), 300 - (100 - 75));
}

TEST(NarrowestPageWidth, ACaptionKeepsTheWidthThatItsLinesAreBrokenFor)
{
    EXPECT_EQ(Narrowest({Control(10, 290, kStretching), Control(10, 290, kStretching, WidthKind::Caption)}),
              300);
}

TEST(NarrowestPageWidth, ControlsOfFixedPlaceAreNotCut)
{
    EXPECT_EQ(Narrowest({Control(10, 290, kStretching), Control(10, 250, kFixedPlace)}), 250);
    EXPECT_EQ(Narrowest({Control(10, 290, kStretching), Control(10, 60, kFixedPlace)}), 300 - (280 - 75));
    EXPECT_EQ(Narrowest({Control(10, 240, kFixedPlace)}), 240) << "nothing stretches";
}

TEST(NarrowestPageWidth, WhatFollowsTheRightEdgeNeedsNoRoomOfItsOwn)
{
    EXPECT_EQ(Narrowest({Control(10, 260, kStretching), Control(264, 290, kAtTheRight)}), 300 - (250 - 75));
}

TEST(NarrowestPageWidth, AFrameIsAsWideAsItsMembersNeed)
{
    const PlacedControl frame{{10, 10, 290, 100}, kStretching, WidthKind::Frame};
    EXPECT_EQ(Narrowest({frame, Control(20, 150, kFixedPlace)}), 300 - (280 - (150 + 10 - 10)));
    EXPECT_EQ(Narrowest({frame, Control(20, 280, kFixedPlace)}), 300);
}

TEST(NarrowestPageWidth, AFrameIgnoresMembersThatFollowAndControlsBesideIt)
{
    const PlacedControl frame{{10, 10, 290, 100}, kStretching, WidthKind::Frame};
    const PlacedControl below{{20, 100, 150, 120}, kFixedPlace, WidthKind::Content};
    const PlacedControl follower{{250, 20, 280, 40}, kAtTheRight, WidthKind::Caption};
    EXPECT_EQ(Narrowest({frame, below, follower, Control(20, 60, kFixedPlace)}), 150);
    EXPECT_EQ(Narrowest({frame, follower, Control(20, 60, kFixedPlace)}), 300 - (280 - (60 + 10 - 10)));
}

TEST(ContentHeight, EndsWithTheLowestControl)
{
    EXPECT_EQ(ContentHeight({}), 0);
    const std::vector<PlacedControl> controls{{{0, 10, 10, 90}, 0, {}}, {{0, 60, 10, 80}, 0, {}}};
    EXPECT_EQ(ContentHeight(controls), 90);
}

} // namespace
} // namespace ov

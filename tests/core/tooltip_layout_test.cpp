#include "controls/core/tooltip_layout.h"

#include <gtest/gtest.h>

#include <ostream>

namespace ov
{

static void PrintTo(const Point& point, std::ostream* out)
{
    *out << point.x << ", " << point.y;
}

static void PrintTo(const Size& size, std::ostream* out)
{
    *out << size.width << " x " << size.height;
}

static void PrintTo(const Rect& rect, std::ostream* out)
{
    *out << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom;
}

} // namespace ov

namespace
{

using namespace ov;

constexpr TooltipSide leftAbove{false, true};
constexpr TooltipSide leftBelow{false, false};
constexpr TooltipSide rightAbove{true, true};
constexpr TooltipSide rightBelow{true, false};
constexpr TooltipSide everySide[] = {leftAbove, leftBelow, rightAbove, rightBelow};

constexpr TooltipMetrics noParent{};
constexpr Size noIcon{};

std::vector<std::pair<TooltipSection, Text>> Split(TextView text)
{
    std::vector<std::pair<TooltipSection, Text>> result;
    for (const TooltipPart& part : SplitTooltip(text))
        result.emplace_back(part.section, part.text);
    return result;
}

using Parts = std::vector<std::pair<TooltipSection, Text>>;

TooltipPart Part(TooltipSection section, std::int32_t width, std::int32_t height)
{
    return {section, u"x", {width, height}};
}

TEST(TooltipParts, HeadingComesBeforeTheVariableWhateverTheText)
{
    EXPECT_EQ(Split(u"<T>NAME<H>Heading<D>text"), (Parts{{TooltipSection::Heading, u"Heading"},
                                                         {TooltipSection::Variable, u"NAME"},
                                                         {TooltipSection::Description, u"text"}}));
}

TEST(TooltipParts, EmptyHeadingAndVariableTakeNoRoom)
{
    EXPECT_EQ(Split(u"<T><H><D>text"), (Parts{{TooltipSection::Description, u"text"}}));
    EXPECT_EQ(Split(u"<H>OK<D>Saves."),
              (Parts{{TooltipSection::Heading, u"OK"}, {TooltipSection::Description, u"Saves."}}));
}

TEST(TooltipParts, SubHeadingsAndDescriptionsAlternate)
{
    EXPECT_EQ(Split(u"<S>first<D>one<S>second<D>two"), (Parts{{TooltipSection::SubHeading, u"first"},
                                                              {TooltipSection::Description, u"one"},
                                                              {TooltipSection::SubHeading, u"second"},
                                                              {TooltipSection::Description, u"two"}}));
}

TEST(TooltipParts, AlternationGoesOnUntilBothAreExhausted)
{
    EXPECT_EQ(Split(u"<D>one<D>two<S>only<D>three"), (Parts{{TooltipSection::SubHeading, u"only"},
                                                            {TooltipSection::Description, u"one"},
                                                            {TooltipSection::Description, u"two"},
                                                            {TooltipSection::Description, u"three"}}));
    EXPECT_EQ(Split(u"<S>a<S>b"),
              (Parts{{TooltipSection::SubHeading, u"a"}, {TooltipSection::SubHeading, u"b"}}));
}

TEST(TooltipParts, TextWithoutSectionsHasNone)
{
    EXPECT_EQ(Split(u""), Parts{});
    EXPECT_EQ(Split(u"no tag"), Parts{});
}

TEST(TooltipMetrics, ComeFromTheParentsFont)
{
    EXPECT_EQ(noParent.fontHeight, 14);
    EXPECT_EQ(noParent.lineGap, 3);
    EXPECT_EQ(MetricsOfFont(14).lineGap, 4);
    EXPECT_EQ(MetricsOfFont(-11).fontHeight, 11);
    EXPECT_EQ(MetricsOfFont(-11).lineGap, 3);
}

TEST(TooltipBody, AddsHeightsGapsAndMargins)
{
    const std::vector<TooltipPart> parts{Part(TooltipSection::Heading, 50, 14),
                                         Part(TooltipSection::Variable, 120, 14),
                                         Part(TooltipSection::Description, 80, 28)};
    EXPECT_EQ(TooltipBodySize(parts, noParent, noIcon),
              (Size{120 + 12 + 12, 14 + 3 + 14 + 3 + 28 + 3 + 10 + 10}));
}

TEST(TooltipBody, SubHeadingsAddAFontHeightEachAndOneMore)
{
    const std::vector<TooltipPart> parts{
        Part(TooltipSection::SubHeading, 10, 14), Part(TooltipSection::Description, 10, 14),
        Part(TooltipSection::SubHeading, 10, 14), Part(TooltipSection::Description, 10, 14)};
    EXPECT_EQ(TooltipBodySize(parts, noParent, noIcon).height, 4 * (14 + 3) + (2 + 1) * 14 + 20);
}

TEST(TooltipBody, IconWidensAndIsTheLeastHeight)
{
    const std::vector<TooltipPart> one{Part(TooltipSection::Heading, 50, 14)};
    EXPECT_EQ(TooltipBodySize(one, noParent, {32, 32}), (Size{50 + 24 + 32 + 2, 14 + 3 + 20}));
    EXPECT_EQ(TooltipBodySize(one, noParent, {48, 48}), (Size{50 + 24 + 48 + 2, 48}));
}

TEST(TooltipSide, NearTheLeftEdgeTheBodyOpensToTheRight)
{
    constexpr Size body{200, 100};
    EXPECT_TRUE(ChooseTooltipSide(body, {212, 500}).right);
    EXPECT_FALSE(ChooseTooltipSide(body, {213, 500}).right);
    // A screen to the left of the main one.
    EXPECT_TRUE(ChooseTooltipSide(body, {-300, 500}).right);
}

TEST(TooltipSide, NearTheTopEdgeTheBodyOpensBelow)
{
    constexpr Size body{200, 100};
    EXPECT_FALSE(ChooseTooltipSide(body, {500, 110}).above);
    EXPECT_TRUE(ChooseTooltipSide(body, {500, 111}).above);
}

TEST(TooltipOutline, WithoutATailIsTheBody)
{
    for (const TooltipSide side : everySide) {
        const TooltipOutline outline = OutlineTooltip({200, 100}, side, false);
        EXPECT_EQ(outline.window, (Size{200, 100}));
        EXPECT_EQ(outline.body, (Rect{0, 0, 200, 100}));
        EXPECT_FALSE(outline.tail);
    }
}

TEST(TooltipOutline, TailMakesTheWindowTwentyFivePixelsTaller)
{
    for (const TooltipSide side : everySide) {
        const TooltipOutline outline = OutlineTooltip({200, 100}, side, true);
        EXPECT_EQ(outline.window, (Size{200, 125}));
        EXPECT_EQ(outline.body, side.above ? (Rect{0, 0, 200, 100}) : (Rect{0, 25, 200, 125}));
    }
}

// The tail's sides, extended or cut to the body's edge, end 12 and 37 pixels
// inside; the side at the inner end rises by one pixel per pixel.
TEST(TooltipOutline, TailHasItsBaseAndTipOnTheSideOfTheAnchor)
{
    for (const TooltipSide side : everySide) {
        const TooltipOutline outline = OutlineTooltip({200, 100}, side, true);
        ASSERT_TRUE(outline.tail);
        const auto& [outer, inner, tip] = *outline.tail;
        EXPECT_EQ(outer.y, inner.y);
        EXPECT_EQ(tip.y, side.above ? 125 : 0);
        const std::int32_t edge = side.above ? outline.body.bottom : outline.body.top;
        const std::int32_t inside = side.above ? edge - outer.y : outer.y - edge;
        EXPECT_GE(inside, 0);
        EXPECT_LE(inside, 5) << "more would show through the frame";
        EXPECT_EQ(outer.x, side.right ? 12 : 200 - 12);
        EXPECT_EQ(tip.x, outer.x);
        EXPECT_EQ(inner.x, side.right ? 37 + inside : 200 - 37 - inside);
    }
}

TEST(TooltipPosition, BalloonsTipStandsOverTheAnchor)
{
    constexpr Point anchor{600, 500};
    for (const TooltipSide side : everySide) {
        const TooltipOutline outline = OutlineTooltip({200, 100}, side, true);
        const Point place = TooltipPosition(outline, side, anchor);
        EXPECT_EQ(place.x, side.right ? 600 - 12 : 600 - 200 + 12);
        EXPECT_EQ(place.y, side.above ? 500 - 125 + 10 : 500 - 10);
        EXPECT_EQ(place.x + outline.tail->back().x, anchor.x);
    }
}

TEST(TooltipPosition, OtherShapesKeepOffTheAnchor)
{
    constexpr Point anchor{600, 500};
    for (const TooltipSide side : everySide) {
        const Point place = TooltipPosition(OutlineTooltip({200, 100}, side, false), side, anchor);
        EXPECT_EQ(place.x, side.right ? 600 - 12 : 600 - 200 + 12);
        EXPECT_EQ(place.y, side.above ? 500 - 100 : 500 + 10);
    }
}

TEST(TooltipContents, PiecesStandBelowEachOther)
{
    const std::vector<TooltipPart> parts{Part(TooltipSection::Heading, 50, 14),
                                         Part(TooltipSection::Description, 80, 28)};
    const TooltipOutline above = OutlineTooltip({200, 100}, leftAbove, true);
    EXPECT_EQ(PlaceTooltipParts(parts, noParent, above, noIcon),
              (std::vector<Rect>{{12, 10, 62, 24}, {12, 27, 92, 55}}));
    EXPECT_EQ(PlaceTooltipIcon(above), (Point{10, 10}));
}

TEST(TooltipContents, StandLowerUnderATailAndRightOfAnIcon)
{
    const std::vector<TooltipPart> parts{Part(TooltipSection::Heading, 50, 14)};
    const TooltipOutline below = OutlineTooltip({200, 100}, leftBelow, true);
    EXPECT_EQ(PlaceTooltipParts(parts, noParent, below, {32, 32}),
              (std::vector<Rect>{{12 + 34, 35, 62 + 34, 49}}));
    EXPECT_EQ(PlaceTooltipIcon(below), (Point{10, 35}));
    const TooltipOutline plain = OutlineTooltip({200, 100}, leftBelow, false);
    EXPECT_EQ(PlaceTooltipParts(parts, noParent, plain, noIcon), (std::vector<Rect>{{12, 10, 62, 24}}));
    EXPECT_EQ(PlaceTooltipIcon(plain), (Point{10, 10}));
}

} // namespace

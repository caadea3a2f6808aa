// Dialog units, fonts and pixel sizes at several resolutions.
#include "controls/core/dialog_units.h"

#include <gtest/gtest.h>

#include <ostream>

namespace ov
{

static void PrintTo(const Rect& rect, std::ostream* out)
{
    *out << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom;
}

static void PrintTo(const Size& size, std::ostream* out)
{
    *out << size.width << " x " << size.height;
}

namespace
{

TEST(DialogUnits, EdgesAreQuartersAndEighthsOfTheUnits)
{
    EXPECT_EQ(EdgesInPixels({0, 0, 4, 8}, {6, 13}), (Rect{0, 0, 6, 13}));
    EXPECT_EQ(EdgesInPixels({8, 16, 80, 160}, {9, 19}), (Rect{18, 38, 180, 380}));
}

TEST(DialogUnits, EdgesAreRoundedToTheNearestPixel)
{
    // 10.5, 11.375; 4.5, 4.875
    EXPECT_EQ(EdgesInPixels({7, 7, 3, 3}, {6, 13}), (Rect{11, 11, 5, 5}));
    EXPECT_EQ(EdgesInPixels({-7, -7, -3, -3}, {6, 13}), (Rect{-11, -11, -5, -5}));
}

TEST(DialogUnits, AControlsSizeDoesNotDependOnItsPlace)
{
    // 50 units are 87.5 pixels, 14 units are 28.
    EXPECT_EQ(ControlInPixels({0, 0, 50, 14}, {7, 16}), (Rect{0, 0, 88, 28}));
    EXPECT_EQ(ControlInPixels({1, 1, 51, 15}, {7, 16}), (Rect{2, 2, 90, 30}));
    EXPECT_EQ(ControlInPixels({2, 2, 52, 16}, {7, 16}), (Rect{4, 4, 92, 32}));
}

TEST(DialogUnits, SizesInPixelsAreThoseOfTheUsualUnits)
{
    EXPECT_EQ(SizeInUnits({290, 750}, kUsualUnits), (Size{290, 750}));
}

TEST(DialogUnits, SizesGrowWithTheUnitsAndAreRoundedUp)
{
    EXPECT_EQ(SizeInUnits({290, 750}, {12, 26}), (Size{580, 1500}));
    EXPECT_EQ(SizeInUnits({290, 750}, {7, 16}), (Size{339, 924})); // 338.3, 923.1
}

TEST(DialogUnits, SmallerUnitsLeaveTheSize)
{
    EXPECT_EQ(SizeInUnits({290, 750}, {5, 12}), (Size{290, 750}));
}

TEST(DialogUnits, PixelsGrowWithTheResolution)
{
    EXPECT_EQ(PixelsAt(16, 96), 16);
    EXPECT_EQ(PixelsAt(16, 120), 20);
    EXPECT_EQ(PixelsAt(16, 144), 24);
    EXPECT_EQ(PixelsAt(16, 192), 32);
}

TEST(DialogUnits, AFontKeepsItsPoints)
{
    // The heights of eight points: 10.7, 13.3, 16, 21.3 pixels.
    constexpr std::int32_t resolutions[] = {96, 120, 144, 192};
    constexpr std::int32_t heights[] = {-11, -13, -16, -21};
    for (int from = 0; from < 4; ++from) {
        for (int to = 0; to < 4; ++to)
            EXPECT_EQ(FontHeightAt(heights[from], resolutions[from], resolutions[to]), heights[to]);
    }
    EXPECT_EQ(FontHeightAt(12, 96, 192), 24);
}

TEST(DialogUnits, UnitsAreTheAverageLetterAndTheLine)
{
    // 312 / 52 letters are 6, 338 / 52 are 6.5, 337 / 52 less.
    EXPECT_EQ(UnitsOfFont(312, 13), (Size{6, 13}));
    EXPECT_EQ(UnitsOfFont(337, 13), (Size{6, 13}));
    EXPECT_EQ(UnitsOfFont(338, 14), (Size{7, 14}));
}

} // namespace
} // namespace ov

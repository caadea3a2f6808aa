#include "base/placeholders.h"

#include <gtest/gtest.h>

namespace ov
{
namespace
{

TEST(Placeholders, EachNumberTakesItsValueEverywhere)
{
    EXPECT_EQ(FillPlaces(u"%2 of %1, %2", {u"a", u"b"}), u"b of a, b");
    EXPECT_EQ(FillPlaces(u"plain", {u"a"}), u"plain");
}

TEST(Placeholders, ValuesAreInsertedAsTheyAre)
{
    EXPECT_EQ(FillPlaces(u"<%1> <%2>", {u"%2", u"100 %1"}), u"<%2> <100 %1>");
    EXPECT_EQ(FillPlaces(u"<%1>", {u""}), u"<>");
}

TEST(Placeholders, OtherPercentSignsRemain)
{
    EXPECT_EQ(FillPlaces(u"100 % %3 %0 %d %", {u"a", u"b"}), u"100 % %3 %0 %d %");
}

TEST(Placeholders, ANumberTakesTheFirstPlace)
{
    EXPECT_EQ(FillNumber(u"%d of %d", 12), u"12 of %d");
    EXPECT_EQ(FillNumber(u"none", -3), u"none");
}

} // namespace
} // namespace ov

#include "base/text.h"

#include <gtest/gtest.h>

#include <limits>

namespace ov
{
namespace
{

TEST(Text, TrimRemovesWhiteSpaceAtBothEndsOnly)
{
    EXPECT_EQ(Trim(u" \t\n\v\f\ra b\r\f\v\n\t "), u"a b");
    EXPECT_EQ(Trim(u" \t "), u"");
    EXPECT_EQ(Trim(u""), u"");
    EXPECT_EQ(Trim(u"\u00A0a"), u"\u00A0a");
}

TEST(Text, ToIntegerReadsTheLeadingDecimalInteger)
{
    EXPECT_EQ(ToInteger(u"12"), 12);
    EXPECT_EQ(ToInteger(u" \t-7x9"), -7);
    EXPECT_EQ(ToInteger(u"+3"), 3);
    EXPECT_EQ(ToInteger(u""), 0);
    EXPECT_EQ(ToInteger(u"abc"), 0);
    EXPECT_EQ(ToInteger(u"- 4"), 0);
}

TEST(Text, ToIntegerIsHeldAtTheLimitsOf32Bits)
{
    EXPECT_EQ(ToInteger(u"2147483647"), std::numeric_limits<int>::max());
    EXPECT_EQ(ToInteger(u"2147483648"), std::numeric_limits<int>::max());
    EXPECT_EQ(ToInteger(u"-2147483648"), std::numeric_limits<int>::min());
    EXPECT_EQ(ToInteger(u"-99999999999999999999999999"), std::numeric_limits<int>::min());
}

TEST(Text, FormatIntegerWritesDecimalDigits)
{
    EXPECT_EQ(FormatInteger(0), u"0");
    EXPECT_EQ(FormatInteger(1234567), u"1234567");
    EXPECT_EQ(FormatInteger(std::numeric_limits<int>::min()), u"-2147483648");
}

TEST(Text, ToUpperAsciiFoldsOnlyAToZ)
{
    EXPECT_EQ(ToUpperAscii(u'a'), u'A');
    EXPECT_EQ(ToUpperAscii(u'z'), u'Z');
    EXPECT_EQ(ToUpperAscii(u'\u00E9'), u'\u00E9');
    EXPECT_EQ(ToUpperAscii(u'['), u'[');
}

TEST(Text, Utf8GoesBothWays)
{
    const Text text = u"A\u00E9\u20AC\U0001F600";
    const std::string bytes = "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";
    EXPECT_EQ(Utf8FromText(text), bytes);
    EXPECT_EQ(TextFromUtf8(bytes), text);
}

TEST(Text, Utf8ReplacesWhatIsNoCharacter)
{
    EXPECT_EQ(Utf8FromText(Text(1, char16_t{0xD800})), "\xEF\xBF\xBD");
    EXPECT_EQ(Utf8FromText(Text(1, char16_t{0xDC41})), "\xEF\xBF\xBD");
    EXPECT_EQ(TextFromUtf8("a\x80z"), u"a\uFFFDz");
    EXPECT_EQ(TextFromUtf8("\xC0\xAF"), u"\uFFFD\uFFFD");           // over-long
    EXPECT_EQ(TextFromUtf8("\xE2\x82"), u"\uFFFD\uFFFD");           // cut off
    EXPECT_EQ(TextFromUtf8("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD"); // a surrogate
    EXPECT_EQ(TextFromUtf8("\xF5\x80\x80\x80"), u"\uFFFD\uFFFD\uFFFD\uFFFD");
}

} // namespace
} // namespace ov

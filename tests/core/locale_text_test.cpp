#include "base/locale_text.h"
#include "tests/core/code_page_locale.h"
#include "tests/core/scoped_locale.h"

#include <gtest/gtest.h>

namespace ov
{
namespace
{

std::string AllBytes()
{
    std::string bytes;
    for (int value = 0; value < 256; ++value)
        bytes.push_back(static_cast<char>(value));
    return bytes;
}

TEST(LocaleText, CLocaleMapsEachByteToTheCharacterOfItsValue)
{
    const test::ScopedLocale locale("C");
    const Text text = DecodeLocale(AllBytes());
    ASSERT_EQ(text.size(), 256u);
    for (char16_t value = 0; value < 256; ++value)
        EXPECT_EQ(text[value], value);
}

TEST(LocaleText, AllBytesSurviveInTheCLocale)
{
    const test::ScopedLocale locale("C");
    std::string back;
    ASSERT_TRUE(EncodeLocale(DecodeLocale(AllBytes()), back));
    EXPECT_EQ(back, AllBytes());
}

TEST(LocaleText, FirstCharacterThatCannotBeWrittenIsReported)
{
    const test::ScopedLocale locale("C");
    std::string bytes = "before";
    const EncodeResult result = EncodeLocale(u"a\u00FF\u0100\u20AC", bytes);
    EXPECT_FALSE(result);
    EXPECT_EQ(result.position, 2u);
    EXPECT_EQ(bytes, "");
}

TEST(LocaleText, FailedAppendLeavesTheBytesAsTheyWere)
{
    const test::ScopedLocale locale("C");
    std::string bytes = "kept";
    EXPECT_FALSE(LocaleEncoder().Append(u"ab\u4E00", bytes));
    EXPECT_EQ(bytes, "kept");
}

TEST(LocaleText, EveryByteIsPlainInTheCLocale)
{
    const test::ScopedLocale locale("C");
    EXPECT_TRUE(LocaleDecoder().IsPlain(AllBytes()));
    EXPECT_TRUE(LocaleEncoder().IsPlain(AllBytes()));
}

TEST(LocaleText, TimeIsFormattedInTheLocalesWords)
{
    const test::ScopedLocale locale("C");
    std::tm time{};
    time.tm_year = 126;
    time.tm_mon = 10;
    time.tm_mday = 20;
    time.tm_wday = 5;
    time.tm_hour = 19;
    time.tm_min = 12;
    EXPECT_EQ(FormatTime("%A %d %B %Y, %H:%M:%S", time, 128), u"Friday 20 November 2026, 19:12:00");
}

TEST(LocaleText, TimeThatDoesNotFitIsEmpty)
{
    const test::ScopedLocale locale("C");
    std::tm time{};
    time.tm_year = 126;
    EXPECT_EQ(FormatTime("%Y", time, 5), u"2026");
    EXPECT_EQ(FormatTime("%Y", time, 4), u"");
}

TEST(LocaleText, CodePage1252MapsItsOwnCharacters)
{
    const test::ScopedLocale locale(test::CodePageLocale(1252).c_str());
    ASSERT_TRUE(locale.IsSet());
    EXPECT_EQ(DecodeLocale("\x80\xE9"), u"\u20AC\u00E9");
    std::string bytes;
    ASSERT_TRUE(EncodeLocale(u"\u20AC\u00E9", bytes));
    EXPECT_EQ(bytes, "\x80\xE9");
}

TEST(LocaleText, AllBytesSurviveInCodePages)
{
    // 1253 leaves three bytes undefined.
    for (const int codePage : {1251, 1252, 1253}) {
        const std::string name = test::CodePageLocale(codePage);
        const test::ScopedLocale locale(name.c_str());
        ASSERT_TRUE(locale.IsSet()) << name;
        std::string back;
        ASSERT_TRUE(EncodeLocale(DecodeLocale(AllBytes()), back)) << name;
        EXPECT_EQ(back, AllBytes()) << name;
    }
}

TEST(LocaleText, AsciiIsPlainInCodePages)
{
    for (const int codePage : {1251, 1252, 932, 936}) {
        const std::string name = test::CodePageLocale(codePage);
        const test::ScopedLocale locale(name.c_str());
        ASSERT_TRUE(locale.IsSet()) << name;
        EXPECT_TRUE(LocaleDecoder().IsPlain("a\\~ 1")) << name;
        EXPECT_TRUE(LocaleEncoder().IsPlain("a\\~ 1")) << name;
        EXPECT_FALSE(LocaleDecoder().IsPlain("a long text of ASCII and one other: \x80")) << name;
        EXPECT_FALSE(LocaleEncoder().IsPlain("\x80")) << name;
    }
}

TEST(LocaleText, SimilarCharacterIsNotWrittenInPlaceOfAnother)
{
    const test::ScopedLocale locale(test::CodePageLocale(1252).c_str());
    ASSERT_TRUE(locale.IsSet());
    std::string bytes;
    EXPECT_FALSE(EncodeLocale(u"\u0100", bytes)); // A with a macron, not A
}

TEST(LocaleText, DoubleByteCodePageGoesBothWays)
{
    const test::ScopedLocale locale(test::CodePageLocale(932).c_str());
    ASSERT_TRUE(locale.IsSet());
    const std::string bytes = "a\x93\xFA\x96\x7B\\";
    EXPECT_EQ(DecodeLocale(bytes), u"a\u65E5\u672C\\");
    std::string back;
    ASSERT_TRUE(EncodeLocale(DecodeLocale(bytes), back));
    EXPECT_EQ(back, bytes);
    EXPECT_FALSE(EncodeLocale(u"\u0E01", back)); // Thai
}

#ifndef _WIN32

TEST(LocaleText, Utf8LocaleWritesAndReadsSurrogatePairs)
{
    const test::ScopedLocale locale("C.UTF-8");
    ASSERT_TRUE(locale.IsSet());
    const std::string bytes = "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";
    EXPECT_EQ(DecodeLocale(bytes), u"A\u00E9\u20AC\U0001F600");
    std::string back;
    ASSERT_TRUE(EncodeLocale(DecodeLocale(bytes), back));
    EXPECT_EQ(back, bytes);
}

TEST(LocaleText, InvalidUtf8SurvivesAsItsBytes)
{
    const test::ScopedLocale locale("C.UTF-8");
    ASSERT_TRUE(locale.IsSet());
    EXPECT_EQ(DecodeLocale("a\xE9z"), Text(u"a") + char16_t{0xDCE9} + u"z");
    std::string back;
    ASSERT_TRUE(EncodeLocale(DecodeLocale(AllBytes()), back));
    EXPECT_EQ(back, AllBytes());
}

TEST(LocaleText, AsciiIsPlainInUtf8)
{
    const test::ScopedLocale locale("C.UTF-8");
    ASSERT_TRUE(locale.IsSet());
    for (std::size_t length = 0; length < 20; ++length) {
        std::string bytes(length, '~');
        EXPECT_TRUE(LocaleDecoder().IsPlain(bytes));
        EXPECT_TRUE(LocaleEncoder().IsPlain(bytes));
        bytes.insert(length / 2, 1, '\x80');
        EXPECT_FALSE(LocaleDecoder().IsPlain(bytes));
        EXPECT_FALSE(LocaleEncoder().IsPlain(bytes));
    }
}

TEST(LocaleText, Utf8IsDecodedBetweenAsciiOfAnyLength)
{
    const test::ScopedLocale locale("C.UTF-8");
    ASSERT_TRUE(locale.IsSet());
    for (std::size_t before = 0; before < 20; ++before) {
        for (std::size_t after = 0; after < 20; ++after) {
            const std::string bytes = std::string(before, 'a') + "\xC3\xA9" + std::string(after, 'z');
            const Text text = Text(before, u'a') + u'\u00E9' + Text(after, u'z');
            EXPECT_EQ(DecodeLocale(bytes), text);
            std::string back;
            EXPECT_TRUE(EncodeLocale(text, back));
            EXPECT_EQ(back, bytes);
        }
    }
}

TEST(LocaleText, LoneSurrogateCannotBeWrittenInUtf8)
{
    const test::ScopedLocale locale("C.UTF-8");
    ASSERT_TRUE(locale.IsSet());
    std::string bytes;
    const EncodeResult result = EncodeLocale(Text(u"ab") + char16_t{0xD83D}, bytes);
    EXPECT_FALSE(result);
    EXPECT_EQ(result.position, 2u);
}

#endif

TEST(LocaleText, Utf8IsTheSameInEveryLocale)
{
    const test::ScopedLocale locale("C");
    const std::string bytes = "a\xC3\xA4\xF0\x9F\x98\x80\xE4";
    Text text;
    LocaleDecoder(Charset::Utf8).Append(bytes, text);
    EXPECT_EQ(text, Text(u"a\u00E4\U0001F600") + Text(1, static_cast<char16_t>(0xDCE4)));
    std::string back;
    ASSERT_TRUE(LocaleEncoder(Charset::Utf8).Append(text, back));
    EXPECT_EQ(back, bytes);
}

TEST(LocaleText, Windows1252IsTheSameInEveryLocale)
{
    const test::ScopedLocale locale("C");
    Text text;
    LocaleDecoder(Charset::Windows1252).Append("A\x7F\x80\x85\x99\x9F\xA0\xE4\xFF", text);
    EXPECT_EQ(text, u"A\u007F\u20AC\u2026\u2122\u0178\u00A0\u00E4\u00FF");
}

TEST(LocaleText, BytesThatWindows1252LeavesUndefinedAreControlCharacters)
{
    Text text;
    LocaleDecoder(Charset::Windows1252).Append("\x81\x8D\x8F\x90\x9D", text);
    EXPECT_EQ(text, u"\u0081\u008D\u008F\u0090\u009D");
}

TEST(LocaleText, AllBytesSurviveInWindows1252)
{
    Text text;
    LocaleDecoder(Charset::Windows1252).Append(AllBytes(), text);
    EXPECT_EQ(text.size(), 256u);
    std::string back;
    ASSERT_TRUE(LocaleEncoder(Charset::Windows1252).Append(text, back));
    EXPECT_EQ(back, AllBytes());
}

TEST(LocaleText, CharacterThatWindows1252LacksIsRefused)
{
    std::string bytes;
    const EncodeResult result = LocaleEncoder(Charset::Windows1252).Append(u"\u20AC\u0394", bytes);
    EXPECT_FALSE(result);
    EXPECT_EQ(result.position, 1u);
    EXPECT_FALSE(LocaleEncoder(Charset::Windows1252).Append(u"\u0080", bytes));
    EXPECT_EQ(bytes, "");
}

TEST(DetectCharset, Utf8NeedsACharacterBeyondAscii)
{
    EXPECT_EQ(DetectCharset(""), Charset::Windows1252);
    EXPECT_EQ(DetectCharset("A = 1\r\n"), Charset::Windows1252);
    EXPECT_EQ(DetectCharset(std::string_view("\0\x7F", 2)), Charset::Windows1252);
    EXPECT_EQ(DetectCharset("A = \xC3\xA4\r\n"), Charset::Utf8);
    EXPECT_EQ(DetectCharset("\xEF\xBB\xBF"), Charset::Utf8);
}

TEST(DetectCharset, OneInvalidByteMakesItWindows1252)
{
    EXPECT_EQ(DetectCharset("\xE4"), Charset::Windows1252);
    EXPECT_EQ(DetectCharset("\xC3\xA4 \xE4"), Charset::Windows1252);
    EXPECT_EQ(DetectCharset("\xC3\xA4\xC3"), Charset::Windows1252);
    EXPECT_EQ(DetectCharset("12345678\xC0\x80"), Charset::Windows1252);
    EXPECT_EQ(DetectCharset("\xED\xA0\x80"), Charset::Windows1252);
}

} // namespace
} // namespace ov

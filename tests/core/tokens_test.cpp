#include "match/core/buffer_text.h"
#include "match/core/tokens.h"
#include "tests/core/no_memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <new>
#include <vector>

namespace ov
{
namespace
{

constexpr char16_t kQuote = u'"';

struct Token {
    Text text;
    std::size_t consumed;

    bool operator==(const Token&) const = default;
};

void PrintTo(const Token& token, std::ostream* out)
{
    *out << '<' << Utf8FromText(token.text) << "> " << token.consumed;
}

// Calls the function as the writer and the list texts do; both forms must agree.
Token Extract(const Text& source, const char16_t* remove = nullptr, const char16_t* consumedStops = u";",
              const char16_t* keptStops = nullptr, std::size_t capacity = 1024)
{
    Text text = u"old";
    const std::size_t consumed =
        ExtractTokenString(text, source, u" ", u" ", remove, consumedStops, keptStops, &kQuote, capacity);
    std::vector<char16_t> buffer(capacity + 1, u'!');
    EXPECT_EQ(ExtractToken(buffer.data(), source.c_str(), u" ", u" ", remove, consumedStops, keptStops,
                           &kQuote, capacity),
              consumed);
    EXPECT_EQ(Text(buffer.data()), text);
    return {text, consumed};
}

TEST(ExtractToken, BlanksAroundAreDroppedAndTheStopIsConsumed)
{
    EXPECT_EQ(Extract(u"  one ; two"), (Token{u"one", 7}));
}

TEST(ExtractToken, StopInsideQualifiersIsText)
{
    EXPECT_EQ(Extract(u"\"a;b\";c"), (Token{u"a;b", 6}));
}

TEST(ExtractToken, DoubledQualifiersWithinAQualifiedTokenBecomeOne)
{
    EXPECT_EQ(Extract(u"\"say \"\"hi\"\" now\""), (Token{u"say \"hi\" now", 16}));
    EXPECT_EQ(Extract(u"\"\"\"hi\"\"\""), (Token{u"\"hi\"", 8}));
}

TEST(ExtractToken, EmptyOrNullSourceYieldsNothing)
{
    EXPECT_EQ(Extract(u""), (Token{u"", 0}));
    std::array<char16_t, 4> buffer{u'x', u'y', u'z', u'\0'};
    EXPECT_EQ(ExtractToken(buffer.data(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 3),
              0u);
    EXPECT_EQ(Text(buffer.data()), u"");
    EXPECT_EQ(ExtractToken(nullptr, u"a", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 3), 0u);
}

TEST(ExtractToken, SourceOfBlanksOnlyIsConsumedWhole)
{
    EXPECT_EQ(Extract(u"   "), (Token{u"", 3}));
}

TEST(ExtractToken, TokensFollowOneAnotherToTheEnd)
{
    const Text source = u"a; b ;;\"c;d\" e;f";
    std::vector<Text> tokens;
    std::size_t at = 0;
    while (const std::size_t next = Extract(source.substr(at)).consumed) {
        tokens.push_back(Extract(source.substr(at)).text);
        at += next;
    }
    EXPECT_EQ(at, source.size());
    EXPECT_EQ(tokens, (std::vector<Text>{u"a", u"b", u"", u"c;d e", u"f"}));
}

TEST(ExtractToken, TwoQualifiersBeforeAStopAreAnEmptyToken)
{
    EXPECT_EQ(Extract(u"\"\";b"), (Token{u"", 3}));
    EXPECT_EQ(Extract(u"\"\",b", nullptr, u";", u","), (Token{u"", 2}));
}

TEST(ExtractToken, NothingButTwoQualifiersIsAnEmptyToken)
{
    EXPECT_EQ(Extract(u"\"\""), (Token{u"", 2}));
    EXPECT_EQ(Extract(u"\"\" "), (Token{u"", 3}));
    EXPECT_EQ(Extract(u"  \"\"   "), (Token{u"", 7}));
}

TEST(ExtractToken, TwoQualifiersBeforeABlankAndAStopAreOneQualifier)
{
    // The stop does not follow directly, so the doubled qualifier is a literal one, and the blank is trimmed.
    EXPECT_EQ(Extract(u"\"\" ;b"), (Token{u"\"", 4}));
}

TEST(ExtractToken, WithoutMemoryTheTokenIsEmptyAndNothingIsConsumed)
{
    const Text source(2000, u'a');
    std::vector<char16_t> buffer(2001, u'!');
    std::size_t consumed = 1;
    {
        const test::NoMemory noMemory;
        consumed =
            ExtractToken(buffer.data(), source.c_str(), u" ", u" ", nullptr, u";", nullptr, &kQuote, 2000);
    }
    EXPECT_EQ(consumed, 0u);
    EXPECT_EQ(buffer[0], u'\0');
    EXPECT_EQ(ExtractToken(buffer.data(), source.c_str(), u" ", u" ", nullptr, u";", nullptr, &kQuote, 2000),
              2000u);
}

TEST(ExtractTokenString, RunningOutOfMemoryComesOut)
{
    const Text source(2000, u'a');
    bool thrown = false;
    {
        Text token;
        const test::NoMemory noMemory;
        try {
            ExtractTokenString(token, source, u" ", u" ", nullptr, u";", nullptr, &kQuote, 2000);
        } catch (const std::bad_alloc&) {
            thrown = true;
        }
    }
    EXPECT_TRUE(thrown);
}

TEST(ExtractToken, QualifiedTokenBeforeOneLastStopTakesTheWholeSource)
{
    EXPECT_EQ(Extract(u"\"a;b\";"), (Token{u"a;b", 6}));
    EXPECT_EQ(Extract(u"\"a;b\",", nullptr, u";", u","), (Token{u"a;b", 6}));
}

TEST(ExtractToken, QualifiedTokenBeforeBlanksTakesTheWholeSource)
{
    EXPECT_EQ(Extract(u" \" a \"  "), (Token{u" a ", 8}));
}

TEST(ExtractToken, EvenRunOfQualifiersOpensNothing)
{
    EXPECT_EQ(Extract(u"\"\"a;b"), (Token{u"\"a", 4}));
}

TEST(ExtractToken, SingleQualifierTogglesAndIsDropped)
{
    EXPECT_EQ(Extract(u"a\"b;c\"d;e"), (Token{u"ab;cd", 8}));
    EXPECT_EQ(Extract(u"\"a;b"), (Token{u"a;b", 4}));
}

TEST(ExtractToken, DoubledQualifierOutsideQuotesYieldsOne)
{
    EXPECT_EQ(Extract(u"a\"\"b;c"), (Token{u"a\"b", 5}));
}

TEST(ExtractToken, BlanksBeforeTheLastClosingQualifierSurvive)
{
    EXPECT_EQ(Extract(u"x\"a  \"  ;b"), (Token{u"xa  ", 9}));
}

TEST(ExtractToken, RemoveSetCountsOutsideQuotesOnly)
{
    EXPECT_EQ(Extract(u"a-b\"-\"c;d", u"-"), (Token{u"ab-c", 8}));
}

TEST(ExtractToken, KeptStopIsNotConsumed)
{
    EXPECT_EQ(Extract(u"ab,cd", nullptr, u";", u","), (Token{u"ab", 2}));
}

TEST(ExtractToken, WithoutAQualifierQuotesAreText)
{
    Text text;
    EXPECT_EQ(ExtractTokenString(text, u"\"a;b\"", u" ", u" ", nullptr, u";", nullptr, nullptr, 0), 3u);
    EXPECT_EQ(text, u"\"a");
}

TEST(ExtractToken, AllSetsMayBeNull)
{
    Text text;
    EXPECT_EQ(ExtractTokenString(text, u" a;b ", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 0),
              5u);
    EXPECT_EQ(text, u" a;b ");
}

TEST(ExtractToken, AtMostCapacityCharactersAreWritten)
{
    EXPECT_EQ(Extract(u"abcdef;g", nullptr, u";", nullptr, 3), (Token{u"abc", 7}));
    EXPECT_EQ(Extract(u"\"abcdef\"", nullptr, u";", nullptr, 3), (Token{u"abc", 8}));
    EXPECT_EQ(Extract(u"abc;d", nullptr, u";", nullptr, 3), (Token{u"abc", 4}));
}

TEST(ExtractToken, DoubledQualifiersOnEachSideOfAWordBecomeOneEach)
{
    EXPECT_EQ(Extract(u"\"a \"\"hi\"\" b\""), (Token{u"a \"hi\" b", 12}));
    EXPECT_EQ(Extract(u"\"\"\"hi\"\" b\";"), (Token{u"\"hi\" b", 11}));
}

TEST(ExtractToken, NothingButQualifiersIsReadTwoByTwo)
{
    EXPECT_EQ(Extract(u"\"\"\"\""), (Token{u"\"\"", 4}));
    EXPECT_EQ(Extract(u"\"\"\""), (Token{u"\"", 3}));
}

TEST(ExtractToken, TrailingTrimBeforeAStopAndBeforeTheEnd)
{
    EXPECT_EQ(Extract(u"ab  ;c"), (Token{u"ab", 5}));
    EXPECT_EQ(Extract(u"ab  "), (Token{u"ab", 4}));
    EXPECT_EQ(Extract(u"ab  ,c", nullptr, u";", u","), (Token{u"ab", 4}));
    EXPECT_EQ(Extract(u"  ;c"), (Token{u"", 3}));
}

TEST(ExtractToken, EveryCharacterOfASetCounts)
{
    Text text;
    EXPECT_EQ(ExtractTokenString(text, u"\t .a-b+c. \t;d", u" \t.", u".\t ", u"+-", u",;", u"|/", nullptr, 0),
              12u);
    EXPECT_EQ(text, u"abc");
    EXPECT_EQ(ExtractTokenString(text, u"a,b", u" \t.", u".\t ", u"+-", u",;", u"|/", nullptr, 0), 2u);
    EXPECT_EQ(text, u"a");
    EXPECT_EQ(ExtractTokenString(text, u"a/b|c", u" \t.", u".\t ", u"+-", u",;", u"|/", nullptr, 0), 1u);
    EXPECT_EQ(text, u"a");
    EXPECT_EQ(ExtractTokenString(text, u"a|b/c", u" \t.", u".\t ", u"+-", u",;", u"|/", nullptr, 0), 1u);
    EXPECT_EQ(text, u"a");
}

TEST(ExtractToken, AnyCharacterMayBeTheQualifier)
{
    const char16_t qualifier = u'\'';
    Text text;
    EXPECT_EQ(ExtractTokenString(text, u"'a;\"b';c", u" ", u" ", nullptr, u";", nullptr, &qualifier, 0), 7u);
    EXPECT_EQ(text, u"a;\"b");
    EXPECT_EQ(ExtractTokenString(text, u"'it''s'", u" ", u" ", nullptr, u";", nullptr, &qualifier, 0), 7u);
    EXPECT_EQ(text, u"it's");
}

TEST(ExtractToken, LongTokensAreReadWhole)
{
    for (const std::size_t length : {799u, 800u, 801u, 5000u}) {
        EXPECT_EQ(Extract(Text(length, u'a') + u";b", nullptr, u";", nullptr, 6000),
                  (Token{Text(length, u'a'), length + 1}));
        EXPECT_EQ(Extract(u"\"" + Text(length, u';') + u"\"", nullptr, u";", nullptr, 6000),
                  (Token{Text(length, u';'), length + 2}));
    }
}

TEST(ExtractTokenString, EmptySourceLeavesTheTextEmpty)
{
    Text text = u"old";
    EXPECT_EQ(ExtractTokenString(text, u"", u" ", u" ", nullptr, u";", nullptr, &kQuote, 10), 0u);
    EXPECT_EQ(text, u"");
    text = u"old";
    EXPECT_EQ(ExtractTokenString(text, TextView(), u" ", u" ", nullptr, u";", nullptr, &kQuote, 10), 0u);
    EXPECT_EQ(text, u"");
}

TEST(ExtractTokenString, CapacityZeroStandsFor512)
{
    Text text;
    EXPECT_EQ(ExtractTokenString(text, Text(600, u'a'), u" ", u" ", nullptr, u";", nullptr, &kQuote, 0),
              600u);
    EXPECT_EQ(text, Text(512, u'a'));
}

TEST(ExtractTokenString, NulIsACharacterLikeAnyOther)
{
    Text text;
    const Text source(u"a\0b;c", 5);
    EXPECT_EQ(ExtractTokenString(text, source, u" ", u" ", nullptr, u";", nullptr, &kQuote, 0), 4u);
    EXPECT_EQ(text, Text(u"a\0b", 3));
}

TEST(ExtractTokenString, BlanksBehindTheClosingQualifierAreConsumedThoughNotTrimmed)
{
    Text token;
    EXPECT_EQ(ExtractTokenString(token, u"\"a;b\"  ", nullptr, nullptr, nullptr, u";", nullptr, &kQuote, 0),
              7U);
    EXPECT_EQ(token, u"a;b");
}

TEST(ExtractTokenString, TwoQualifiersAreAnEmptyTokenEvenWhereQualifiersAreTrimmed)
{
    Text token = u"old";
    EXPECT_EQ(ExtractTokenString(token, u"\"\"", nullptr, u"\"", nullptr, u";", nullptr, &kQuote, 0), 2U);
    EXPECT_EQ(token, u"");
}

TEST(FindNoCase, FindsTheFirstOccurrenceInAnyCase)
{
    const char16_t* text = u"one TWO two";
    EXPECT_EQ(FindNoCase(text, u"two", 11), text + 4);
    EXPECT_EQ(FindNoCase(text, u"ONE", 3), text);
    EXPECT_EQ(FindNoCase(text, u"three", 11), nullptr);
}

TEST(FindNoCase, LooksOnlyAtTheFirstCharactersUpToTheLimit)
{
    const char16_t* text = u"one two";
    EXPECT_EQ(FindNoCase(text, u"two", 7), text + 4);
    EXPECT_EQ(FindNoCase(text, u"two", 6), nullptr);
    EXPECT_EQ(FindNoCase(text, u"two", 100), text + 4);
}

TEST(FindNoCase, NullZeroAndLongerNeedlesFindNothing)
{
    EXPECT_EQ(FindNoCase(nullptr, u"a", 1), nullptr);
    EXPECT_EQ(FindNoCase(u"a", nullptr, 1), nullptr);
    EXPECT_EQ(FindNoCase(u"a", u"a", 0), nullptr);
    EXPECT_EQ(FindNoCase(u"ab", u"abc", 3), nullptr);
}

TEST(FindNoCase, NeedleLongerThanTheLimitIsNotFound)
{
    EXPECT_EQ(FindNoCase(u"abc", u"abc", 2), nullptr);
    EXPECT_EQ(FindNoCase(u"abcabc", u"abc", 2), nullptr);
}

TEST(FindNoCase, EmptyNeedleIsFoundAtTheStart)
{
    const char16_t* text = u"abc";
    EXPECT_EQ(FindNoCase(text, u"", 3), text);
}

TEST(FindNoCase, EmptyNeedleIsFoundInAnEmptyText)
{
    const char16_t* const nothing = u"";
    EXPECT_EQ(FindNoCase(nothing, u"", 1), nothing);
}

TEST(FindNoCase, OnlyAToZHaveACase)
{
    EXPECT_EQ(FindNoCase(u"\u00C9", u"\u00E9", 1), nullptr);
    EXPECT_EQ(FindNoCase(u"@[", u"`", 2), nullptr);
    EXPECT_EQ(FindNoCase(u"@[", u"{", 2), nullptr);
}

TEST(FindNoCase, LongTextsAreSearchedWhole)
{
    const Text needle = Text(1500, u'b') + u"c";
    for (const std::size_t before : {0u, 1023u, 1024u, 1025u, 5000u}) {
        const Text text = Text(before, u'a') + Text(1500, u'B') + u"C";
        EXPECT_EQ(FindNoCase(text.c_str(), needle.c_str(), text.size()), text.c_str() + before);
        EXPECT_EQ(FindNoCase(text.c_str(), needle.c_str(), text.size() - 1), nullptr);
        EXPECT_EQ(FindNoCase(text.c_str(), u"C", text.size()), text.c_str() + before + 1500);
    }
}

struct Replaced {
    Text text;
    std::uint32_t status;

    bool operator==(const Replaced&) const = default;
};

Replaced Replace(const char16_t* source, const char16_t* find, const char16_t* replacement,
                 std::size_t capacity = 100, int caseFlag = 0)
{
    std::vector<char16_t> buffer(capacity + 1, u'!');
    const std::uint32_t status = ReplaceAll(buffer.data(), source, find, replacement, capacity, caseFlag);
    return {buffer.data(), status};
}

TEST(ReplaceAll, EveryOccurrenceIsReplaced)
{
    EXPECT_EQ(Replace(u"a-b-c", u"-", u"++"), (Replaced{u"a++b++c", kMatchDone}));
    EXPECT_EQ(Replace(u"aaa", u"aa", u"a"), (Replaced{u"aa", kMatchDone}));
    EXPECT_EQ(Replace(u"abc", u"b", u""), (Replaced{u"ac", kMatchDone}));
}

TEST(ReplaceAll, CaseFlagMakesTheSearchExact)
{
    EXPECT_EQ(Replace(u"xAxa", u"a", u"b"), (Replaced{u"xbxb", kMatchDone}));
    EXPECT_EQ(Replace(u"xAxa", u"a", u"b", 100, 1), (Replaced{u"xAxb", kMatchDone}));
}

TEST(ReplaceAll, WithoutAnOccurrenceTheSourceIsCopied)
{
    EXPECT_EQ(Replace(u"abc", u"x", u"y"), (Replaced{u"abc", kMatchFailed}));
    EXPECT_EQ(Replace(u"abc", u"", u"y"), (Replaced{u"abc", kMatchFailed}));
    EXPECT_EQ(Replace(u"abc", u"abcd", u"y"), (Replaced{u"abc", kMatchFailed}));
}

TEST(ReplaceAll, DestinationAndSourceMayBeOneBuffer)
{
    std::array<char16_t, 16> buffer{u'a', u'-', u'b', u'\0'};
    EXPECT_EQ(ReplaceAll(buffer.data(), buffer.data(), u"-", u"--", 15, 0), kMatchDone);
    EXPECT_EQ(Text(buffer.data()), u"a--b");
    EXPECT_EQ(ReplaceAll(buffer.data(), buffer.data(), u"", u"x", 15, 0), kMatchFailed);
    EXPECT_EQ(Text(buffer.data()), u"a--b");
}

TEST(ReplaceAll, AtMostCapacityCharactersAreWritten)
{
    EXPECT_EQ(Replace(u"a-b", u"-", u"+++", 3), (Replaced{u"a++", kMatchDone}));
}

TEST(ReplaceAll, WhatIsCopiedUnchangedIsCutToTheCapacityToo)
{
    EXPECT_EQ(Replace(u"abcdef", u"x", u"y", 3), (Replaced{u"abc", kMatchFailed}));
    EXPECT_EQ(Replace(u"abcdef", u"", u"y", 3), (Replaced{u"abc", kMatchFailed}));
    EXPECT_EQ(Replace(u"abcdef", u"abcdefg", u"y", 3), (Replaced{u"abc", kMatchFailed}));
    EXPECT_EQ(Replace(u"abcdef", u"x", u"y", 0), (Replaced{u"", kMatchFailed}));
}

TEST(ReplaceAll, WhatWasPutInIsNotSearchedAgain)
{
    EXPECT_EQ(Replace(u"aba", u"a", u"aa"), (Replaced{u"aabaa", kMatchDone}));
    EXPECT_EQ(Replace(u"aab", u"ab", u"b"), (Replaced{u"ab", kMatchDone}));
}

TEST(ReplaceAll, WholeSourceMayBeReplaced)
{
    EXPECT_EQ(Replace(u"abc", u"ABC", u""), (Replaced{u"", kMatchDone}));
    EXPECT_EQ(Replace(u"abc", u"abc", u"x", 100, 1), (Replaced{u"x", kMatchDone}));
}

TEST(ReplaceAll, OneBufferIsLeftAloneWhenNothingIsReplaced)
{
    std::array<char16_t, 16> buffer{u'a', u'b', u'c', u'd', u'\0'};
    EXPECT_EQ(ReplaceAll(buffer.data(), buffer.data(), u"abcde", u"x", 2, 0), kMatchFailed);
    EXPECT_EQ(Text(buffer.data()), u"abcd");
    EXPECT_EQ(ReplaceAll(buffer.data(), buffer.data(), u"x", u"y", 15, 0), kMatchFailed);
    EXPECT_EQ(Text(buffer.data()), u"abcd");
}

TEST(ReplaceAll, WithoutMemoryNothingIsReplaced)
{
    const Text source = u"-" + Text(2000, u'a');
    std::vector<char16_t> buffer(source.size() + 1, u'!');
    std::uint32_t status = kMatchDone;
    {
        const test::NoMemory noMemory;
        status = ReplaceAll(buffer.data(), source.c_str(), u"-", u"+", source.size(), 0);
    }
    EXPECT_EQ(status, kMatchFailed);
    EXPECT_EQ(ReplaceAll(buffer.data(), source.c_str(), u"-", u"+", source.size(), 0), kMatchDone);
}

TEST(ReplaceAll, NullArgumentsFail)
{
    std::array<char16_t, 4> buffer{};
    EXPECT_EQ(ReplaceAll(nullptr, u"a", u"a", u"b", 3, 0), kMatchFailed);
    EXPECT_EQ(ReplaceAll(buffer.data(), nullptr, u"a", u"b", 3, 0), kMatchFailed);
    EXPECT_EQ(ReplaceAll(buffer.data(), u"a", nullptr, u"b", 3, 0), kMatchFailed);
    EXPECT_EQ(ReplaceAll(buffer.data(), u"a", u"a", nullptr, 3, 0), kMatchFailed);
}

} // namespace
} // namespace ov

#include "match/core/pattern_match.h"
#include "tests/core/literal_match.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <random>
#include <string>

namespace ov
{
namespace
{

// Gives the same cases on every machine, which the standard's distributions do not guarantee.
class Dice
{
  public:
    explicit Dice(std::uint32_t seed) : m_engine(seed) {}

    std::size_t Below(std::size_t count) { return m_engine() % count; }
    bool OneIn(std::size_t count) { return Below(count) == 0; }
    char16_t OneOf(TextView alphabet) { return alphabet[Below(alphabet.size())]; }

    Text Characters(TextView alphabet, std::size_t length)
    {
        Text text;
        while (text.size() < length)
            text.push_back(OneOf(alphabet));
        return text;
    }

  private:
    std::mt19937 m_engine;
};

struct Case {
    Text pattern;
    Text text;
    WildcardType type = WildcardTypeNone;
    int caseFlag = 0;
};

std::string Described(const Case& one)
{
    return "template '" + Utf8FromText(one.pattern) + "', text '" + Utf8FromText(one.text) + "', type " +
           std::to_string(one.type) + ", case flag " + std::to_string(one.caseFlag);
}

constexpr TextView kAll = u"aAbB1-[]^,|*?";
constexpr TextView kLetters = u"aAbB1";
constexpr std::array<TextView, 8> kAlphabets = {kAll,      u"ab*?|",  u"a[]*",   u"aB[]^-",
                                                u"a[],*|", u"ab[],^", u"a1-[],", u"a|[]^"};

// Generates patterns from a grammar.
class Grammar
{
  public:
    explicit Grammar(Dice& dice) : m_dice(dice) {}

    Text Template(std::size_t elements)
    {
        Text pattern;
        for (std::size_t i = 0; i < elements; ++i)
            pattern += Element(2);
        return pattern;
    }

    Text Class()
    {
        Text content;
        for (std::size_t i = m_dice.Below(3) + 1; i > 0; --i) {
            content.push_back(m_dice.OneOf(u"aAbB1"));
            if (m_dice.OneIn(3))
                content.append(u"-").push_back(m_dice.OneOf(u"bBz1"));
            if (m_dice.OneIn(12))
                content.push_back(m_dice.OneOf(u"-*?|^"));
        }
        return Opening() + content + u"]";
    }

  private:
    // Negation is rare enough that the brackets before it have an effect.
    Text Opening() { return m_dice.OneIn(4) ? u"[^" : u"["; }

    Text Element(std::size_t depth)
    {
        switch (m_dice.Below(10)) {
        case 0:
            return u"?";
        case 1:
            return u"*";
        case 2:
            return Text(m_dice.Below(3) + 1, u'|');
        case 3:
        case 4:
            return Class();
        case 5:
        case 6:
            return depth > 0 ? List(depth - 1) : Class();
        default:
            return Text(1, m_dice.OneOf(kLetters));
        }
    }

    Text List(std::size_t depth)
    {
        Text list = Opening();
        const std::size_t alternatives = m_dice.Below(3) + 2;
        for (std::size_t i = 0; i < alternatives; ++i) {
            if (i > 0)
                list += u",";
            for (std::size_t n = m_dice.Below(3); n > 0; --n)
                list += Element(depth);
        }
        return list + u"]";
    }

    Dice& m_dice;
};

// A text that the pattern is likely to match: the pattern's characters, and letters for its wildcards.
Text LikelyText(Dice& dice, TextView pattern)
{
    Text text;
    for (std::size_t i = 0; i < pattern.size() && text.size() < 8; ++i) {
        const char16_t c = pattern[i];
        if (c == u'*' || c == u'|') {
            text += dice.Characters(kLetters, dice.Below(2));
        } else if (c == u'?') {
            text.push_back(dice.OneOf(kLetters));
        } else if (c == u'[') {
            // One of the first characters in the bracket or just after it.
            text.push_back(pattern[std::min(i + 1 + dice.Below(3), pattern.size() - 1)]);
            i = std::min(pattern.find(u']', i), pattern.size());
        } else {
            text.push_back(c);
        }
    }
    return text;
}

Text RandomPattern(Dice& dice)
{
    if (dice.OneIn(3))
        return Grammar(dice).Template(dice.Below(4) + 1);
    return dice.Characters(kAlphabets[dice.Below(kAlphabets.size())], dice.Below(13));
}

Text RandomText(Dice& dice, const Text& pattern)
{
    switch (dice.Below(5)) {
    case 0:
        return dice.Characters(kLetters, dice.Below(9));
    case 1:
        return dice.Characters(kAll, dice.Below(9));
    case 2: // The rest of a pattern: in a recursion the pattern may equal its text.
        return dice.Characters(kLetters, dice.Below(3)) + pattern.substr(dice.Below(pattern.size() + 1));
    default:
        return LikelyText(dice, pattern);
    }
}

WildcardType RandomType(Dice& dice)
{
    constexpr std::array<int, 16> kTypes = {3, 3, 3, 3, 3, 3, 3, 2, 2, 2, 2, 1, 1, 0, 6, -1};
    return static_cast<WildcardType>(kTypes[dice.Below(kTypes.size())]);
}

Case RandomCase(Dice& dice)
{
    Case one;
    one.pattern = RandomPattern(dice);
    one.text = RandomText(dice, one.pattern);
    one.type = RandomType(dice);
    one.caseFlag = dice.OneIn(2) ? 1 : 0;
    return one;
}

std::uint32_t MatcherAnswer(const Case& one)
{
    std::uint32_t match = 2;
    EXPECT_EQ(MatchPattern(&match, one.pattern.c_str(), one.text.c_str(), one.type, one.caseFlag), kMatchDone)
        << Described(one);
    return match;
}

std::size_t NumberOfCases()
{
    const char* const asked = std::getenv("OV_MATCH_CASES");
    return asked == nullptr ? 200000 : std::strtoull(asked, nullptr, 10);
}

TEST(PatternProperty, AnswersAreThoseOfThePlainWalk)
{
    constexpr std::uint32_t kSeed = 20111;
    constexpr std::size_t kCallsAllowed = 2000;
    const std::size_t cases = NumberOfCases();
    Dice dice(kSeed);
    std::size_t fits = 0;
    std::size_t skipped = 0;
    for (std::size_t i = 0; i < cases; ++i) {
        const Case one = RandomCase(dice);
        std::uint32_t expected = 2;
        if (test::LiteralMatch(&expected, one.pattern.c_str(), one.text.c_str(), one.type, one.caseFlag,
                               kCallsAllowed) == test::kMatchTooManyCalls) {
            ++skipped;
            continue;
        }
        ASSERT_EQ(MatcherAnswer(one), expected)
            << "seed " << kSeed << ", case " << i << ": " << Described(one);
        fits += expected;
    }
    std::cout << cases << " cases, " << fits << " fit, " << skipped << " too expensive\n";
    EXPECT_LE(skipped, cases / 100);
    EXPECT_GE(fits, cases / 10);
}

// So many stars and so much text that the simple walk cannot finish.
TEST(PatternProperty, AnswersForLongTextsAreThoseOfTheWalkThatRemembers)
{
    constexpr std::uint32_t kSeed = 20112;
    constexpr std::size_t kCases = 120;
    Dice dice(kSeed);
    std::size_t fits = 0;
    for (std::size_t i = 0; i < kCases; ++i) {
        Case one;
        const auto type = static_cast<std::int32_t>(1 + i % 3);
        one.type = static_cast<WildcardType>(type);
        one.caseFlag = dice.OneIn(2) ? 1 : 0;
        const TextView letters = one.caseFlag != 0 ? u"ab" : u"aAb";
        Grammar grammar(dice);
        for (std::size_t n = dice.Below(8) + 3; n > 0; --n) {
            one.pattern += u"*";
            one.pattern += dice.OneIn(3) ? dice.Characters(u"ab?", 3) : grammar.Template(dice.Below(2) + 1);
        }
        if (dice.OneIn(2))
            one.pattern += u"*";
        one.text = dice.Characters(letters, type == WildcardTypeSubsets ? 40 : 250);
        if (dice.OneIn(3))
            one.text += one.pattern.substr(one.pattern.size() - std::min<std::size_t>(one.pattern.size(), 9));
        std::uint32_t expected = 2;
        ASSERT_EQ(
            test::LiteralMatchOnce(&expected, one.pattern.c_str(), one.text.c_str(), one.type, one.caseFlag),
            kMatchDone);
        ASSERT_EQ(MatcherAnswer(one), expected)
            << "seed " << kSeed << ", case " << i << ": " << Described(one);
        fits += expected;
    }
    std::cout << kCases << " cases, " << fits << " fit\n";
    EXPECT_GE(fits, kCases / 20);
    EXPECT_LE(fits, kCases - kCases / 20);
}

} // namespace
} // namespace ov

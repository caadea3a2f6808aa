#include "match/core/pattern_match.h"
#include "tests/core/literal_match.h"
#include "tests/core/no_memory.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace ov
{
namespace
{

constexpr WildcardType kNone = WildcardTypeNone;
constexpr WildcardType kDos = WildcardTypeDos;
constexpr WildcardType kRanges = WildcardTypeRanges;
constexpr WildcardType kSubsets = WildcardTypeSubsets;
constexpr WildcardType kPerl = WildcardTypePerl;
constexpr WildcardType kPosix = WildcardTypePosix;
constexpr auto kBeyond = static_cast<WildcardType>(6);
constexpr auto kFarBeyond = static_cast<WildcardType>(std::numeric_limits<std::int32_t>::max());
constexpr auto kNegative = static_cast<WildcardType>(-1);
constexpr auto kFarNegative = static_cast<WildcardType>(std::numeric_limits<std::int32_t>::min());

constexpr int kAnyCase = 0;
constexpr int kExact = 1;

struct Result {
    std::uint32_t status;
    std::uint32_t match;

    // After a failed call `match` is unspecified.
    bool operator==(const Result& other) const
    {
        return status == other.status && (status != kMatchDone || match == other.match);
    }
};

constexpr Result kFits{kMatchDone, 1};
constexpr Result kDiffers{kMatchDone, 0};
constexpr Result kFails{kMatchFailed, 0};

void PrintTo(const Result& result, std::ostream* out)
{
    if (result.status != kMatchDone) {
        *out << "status " << result.status;
    } else {
        *out << "match " << result.match;
    }
}

Result Match(const char16_t* pattern, const char16_t* text, WildcardType type, int caseFlag = kAnyCase)
{
    Result result{2, 2};
    result.status = MatchPattern(&result.match, pattern, text, type, caseFlag);
    return result;
}

Result Match(const Text& pattern, const Text& text, WildcardType type, int caseFlag = kAnyCase)
{
    return Match(pattern.c_str(), text.c_str(), type, caseFlag);
}

Text Repeat(TextView piece, std::size_t count)
{
    Text text;
    for (std::size_t i = 0; i < count; ++i)
        text += piece;
    return text;
}

struct Row {
    const char* shows;
    Text pattern;
    Text text;
    WildcardType type;
    int caseFlag;
    std::uint32_t status;
    std::uint32_t match;
};

constexpr std::uint32_t kNo = 0;
constexpr std::uint32_t kYes = 1;

std::string Described(const Row& row)
{
    return std::string(row.shows) + ": '" + Utf8FromText(row.pattern) + "' and '" + Utf8FromText(row.text) +
           "', type " + std::to_string(row.type) + ", case flag " + std::to_string(row.caseFlag);
}

// Checks the matcher's results and, except for regular expressions, those of the simple walk.
void Check(const std::vector<Row>& rows)
{
    for (const Row& row : rows) {
        SCOPED_TRACE(Described(row));
        const Result expected{row.status, row.match};
        EXPECT_EQ(Match(row.pattern, row.text, row.type, row.caseFlag), expected);
        if (row.type == kPerl || row.type == kPosix)
            continue;
        Result literal{2, 2};
        literal.status =
            test::LiteralMatch(&literal.match, row.pattern.c_str(), row.text.c_str(), row.type, row.caseFlag);
        EXPECT_EQ(literal, expected) << "the yardstick";
        literal.status = test::LiteralMatchOnce(&literal.match, row.pattern.c_str(), row.text.c_str(),
                                                row.type, row.caseFlag);
        EXPECT_EQ(literal, expected) << "the yardstick that remembers";
    }
}

constexpr std::uint32_t kDone = kMatchDone;

const std::vector<WildcardType> kAllTypes = {kNone,  kDos,    kRanges,    kSubsets,  kPerl,
                                             kPosix, kBeyond, kFarBeyond, kNegative, kFarNegative};
const std::vector<WildcardType> kWalkingTypes = {kDos, kRanges, kSubsets, kBeyond, kFarBeyond};

TEST(PatternMatch, TemplateEqualToTheTextButForCaseFitsUnderEveryType)
{
    for (const WildcardType type : kAllTypes) {
        EXPECT_EQ(Match(u"ABC", u"abc", type), kFits) << type;
        EXPECT_EQ(Match(u"ABC", u"ABC", type, kExact), kFits) << type;
        EXPECT_EQ(Match(u"", u"", type), kFits) << type;
    }
}

TEST(PatternMatch, TemplateOfWildcardsFitsItsOwnTextUnderEveryType)
{
    for (const WildcardType type : kAllTypes) {
        EXPECT_EQ(Match(u"[^a-z]|*(", u"[^A-Z]|*(", type), kFits) << type;
        EXPECT_EQ(Match(u"[^a-z]|*(", u"[^a-z]|*(", type, kExact), kFits) << type;
    }
    EXPECT_EQ(Match(u"[A]", u"[A]", kRanges), kFits);
    EXPECT_EQ(Match(u"[A]", u"[a]", kRanges, kExact), kDiffers);
}

TEST(PatternMatch, NullArgumentsFail)
{
    for (const WildcardType type : kAllTypes) {
        std::uint32_t match = 0;
        EXPECT_EQ(MatchPattern(nullptr, u"a", u"a", type, 0), kMatchFailed);
        EXPECT_EQ(MatchPattern(&match, nullptr, u"a", type, 0), kMatchFailed);
        EXPECT_EQ(MatchPattern(&match, u"a", nullptr, type, 0), kMatchFailed);
        EXPECT_EQ(MatchPattern(&match, nullptr, nullptr, type, 0), kMatchFailed);
    }
}

TEST(PatternMatch, NoneComparesTheWholeText)
{
    Check({
        {"any case", u"Abc", u"aBC", kNone, kAnyCase, kDone, kYes},
        {"exact", u"Abc", u"Abc", kNone, kExact, kDone, kYes},
        {"exact differs in case", u"Abc", u"aBC", kNone, kExact, kDone, kNo},
        {"another letter", u"abc", u"abd", kNone, kAnyCase, kDone, kNo},
        {"text goes on", u"ab", u"abc", kNone, kAnyCase, kDone, kNo},
        {"text ends early", u"abc", u"ab", kNone, kAnyCase, kDone, kNo},
        {"? is literal", u"a?c", u"abc", kNone, kAnyCase, kDone, kNo},
        {"* is literal", u"a*", u"ab", kNone, kAnyCase, kDone, kNo},
        {"* is literal before nothing", u"*", u"", kNone, kAnyCase, kDone, kNo},
        {"[ is literal", u"[a]", u"a", kNone, kAnyCase, kDone, kNo},
        {"| is literal", u"a|", u"ab", kNone, kAnyCase, kDone, kNo},
        {"empty template", u"", u"a", kNone, kAnyCase, kDone, kNo},
        {"empty text", u"a", u"", kNone, kAnyCase, kDone, kNo},
        // Only the letters a to z have case.
        {"no folding beyond ASCII", u"\u00C9", u"\u00E9", kNone, kAnyCase, kDone, kNo},
    });
}

TEST(PatternMatch, DosFitsAStarAndTheRest)
{
    EXPECT_EQ(Match(u"A*", u"Axyz", kDos), kFits);
}

TEST(PatternMatch, StarAloneFitsTheEmptyText)
{
    for (const WildcardType type : kWalkingTypes)
        EXPECT_EQ(Match(u"*", u"", type), kFits);
}

TEST(PatternMatch, EmptyTemplateFitsOnlyTheEmptyText)
{
    for (const WildcardType type : {kNone, kDos, kRanges, kSubsets, kBeyond, kFarBeyond, kNegative}) {
        EXPECT_EQ(Match(u"", u"", type), kFits);
        EXPECT_EQ(Match(u"", u"a", type), kDiffers);
        EXPECT_EQ(Match(u"", u" ", type), kDiffers);
    }
}

TEST(PatternMatch, QuestionMarkTakesOneCharacter)
{
    for (const WildcardType type : kWalkingTypes) {
        Check({
            {"a letter", u"A?C", u"ABC", type, kAnyCase, kDone, kYes},
            {"a digit", u"A?C", u"A1C", type, kAnyCase, kDone, kYes},
            {"a blank", u"A?C", u"A C", type, kAnyCase, kDone, kYes},
            {"a wildcard", u"A?C", u"A*C", type, kAnyCase, kDone, kYes},
            {"beyond ASCII", u"A?C", u"A\u00E9C", type, kAnyCase, kDone, kYes},
            {"exact", u"A?C", u"AbC", type, kExact, kDone, kYes},
            {"not none", u"A?C", u"AC", type, kAnyCase, kDone, kNo},
            {"not two", u"A?C", u"ABBC", type, kAnyCase, kDone, kNo},
            {"past the end", u"A?", u"A", type, kAnyCase, kDone, kNo},
            {"past the end of nothing", u"?", u"", type, kAnyCase, kDone, kNo},
            {"twice past the end", u"??", u"", type, kAnyCase, kDone, kNo},
            {"past the end with more to come", u"A?*", u"A", type, kAnyCase, kDone, kNo},
            {"as many as there are", u"???", u"abc", type, kAnyCase, kDone, kYes},
            {"one too many", u"???", u"ab", type, kAnyCase, kDone, kNo},
            {"one too few", u"??", u"abc", type, kAnyCase, kDone, kNo},
        });
    }
}

TEST(PatternMatch, StarTakesAnyNumberOfCharacters)
{
    for (const WildcardType type : kWalkingTypes) {
        Check({
            {"last, nothing left", u"A*", u"A", type, kAnyCase, kDone, kYes},
            {"last, something left", u"A*", u"ABCDE", type, kAnyCase, kDone, kYes},
            {"last, wrong before it", u"A*", u"BA", type, kAnyCase, kDone, kNo},
            {"first", u"*C", u"ABC", type, kAnyCase, kDone, kYes},
            {"first, taking nothing", u"*C", u"C", type, kAnyCase, kDone, kYes},
            {"first, text goes on", u"*C", u"ABCD", type, kAnyCase, kDone, kNo},
            {"first, nothing there", u"*C", u"", type, kAnyCase, kDone, kNo},
            {"in the middle, taking nothing", u"A*C", u"AC", type, kAnyCase, kDone, kYes},
            {"in the middle", u"A*C", u"AxCyC", type, kAnyCase, kDone, kYes},
            {"in the middle, no end", u"A*C", u"AxCy", type, kAnyCase, kDone, kNo},
            {"two", u"*B*", u"ABC", type, kAnyCase, kDone, kYes},
            {"two, nothing between", u"*B*", u"AC", type, kAnyCase, kDone, kNo},
            {"two in a row", u"**", u"", type, kAnyCase, kDone, kYes},
            {"two in a row before a letter", u"**A", u"xyA", type, kAnyCase, kDone, kYes},
            {"up to the end of the text", u"A**", u"A", type, kAnyCase, kDone, kYes},
            {"with ?", u"*?", u"A", type, kAnyCase, kDone, kYes},
            {"with ? and nothing left", u"A*?", u"A", type, kAnyCase, kDone, kNo},
            {"case is kept to", u"*a", u"xA", type, kExact, kDone, kNo},
            {"case is not kept to", u"*a", u"xA", type, kAnyCase, kDone, kYes},
            {"back to an earlier one", u"*AB*AC", u"ABABAC", type, kAnyCase, kDone, kYes},
        });
    }
}

TEST(PatternMatch, OtherCharactersStandForThemselves)
{
    for (const WildcardType type : kWalkingTypes) {
        Check({
            {"any case", u"aBc?", u"AbC1", type, kAnyCase, kDone, kYes},
            {"exact", u"aBc?", u"aBc1", type, kExact, kDone, kYes},
            {"exact differs in case", u"aBc?", u"AbC1", type, kExact, kDone, kNo},
            {"below a", u"`?", u"@x", type, kAnyCase, kDone, kNo},
            {"above z", u"{?", u"\u005Bx", type, kAnyCase, kDone, kNo},
            {"beyond ASCII", u"\u00E9?", u"\u00E9x", type, kAnyCase, kDone, kYes},
            {"no folding beyond ASCII", u"\u00E9?", u"\u00C9x", type, kAnyCase, kDone, kNo},
            // Compares more than the last eight bits of a character.
            {"no folding of U+0161", u"\u0161?", u"\u0141x", type, kAnyCase, kDone, kNo},
            {"anchored at the start", u"b?", u"abc", type, kAnyCase, kDone, kNo},
            {"anchored at the end", u"?b", u"abc", type, kAnyCase, kDone, kNo},
            {"text ends early", u"a?c", u"ab", type, kAnyCase, kDone, kNo},
            {"^, -, comma and ] outside a bracket", u"^-,]?", u"^-,]x", type, kAnyCase, kDone, kYes},
        });
    }
}

TEST(PatternMatch, BracketsAreLiteralUnderDos)
{
    Check({
        {"not a class", u"[AB]", u"A", kDos, kAnyCase, kDone, kNo},
        {"the characters", u"[AB]?", u"[ab]x", kDos, kAnyCase, kDone, kYes},
        {"not unclosed either", u"[A?", u"xA", kDos, kAnyCase, kDone, kNo},
    });
}

TEST(PatternMatch, BarIsZeroOrOneCharacterUnderSubsetsAndLiteralUnderRanges)
{
    EXPECT_EQ(Match(u"A|C", u"AC", kSubsets), kFits);
    EXPECT_EQ(Match(u"A|C", u"ABC", kSubsets), kFits);
    EXPECT_EQ(Match(u"A|C", u"AC", kRanges), kDiffers);
    EXPECT_EQ(Match(u"A|C", u"ABC", kRanges), kDiffers);
    EXPECT_EQ(Match(u"A|C", u"A|C", kRanges), kFits);
    EXPECT_EQ(Match(u"A|?", u"a|c", kRanges), kFits);
    EXPECT_EQ(Match(u"A|?", u"a|c", kDos), kFits);
    EXPECT_EQ(Match(u"A|?", u"abc", kRanges), kDiffers);
    EXPECT_EQ(Match(u"A|?", u"abc", kDos), kDiffers);
}

TEST(PatternMatch, BarTakesZeroOrOneCharacter)
{
    for (const WildcardType type : {kSubsets, kBeyond, kFarBeyond}) {
        Check({
            {"not two", u"A|C", u"ABBC", type, kAnyCase, kDone, kNo},
            {"its own character", u"A|C?", u"A|Cx", type, kAnyCase, kDone, kYes},
            {"first", u"|C", u"C", type, kAnyCase, kDone, kYes},
            {"first, taking one", u"|C", u"xC", type, kAnyCase, kDone, kYes},
            {"past the end", u"A|C", u"A", type, kAnyCase, kDone, kNo},
            {"nothing there", u"|C", u"", type, kAnyCase, kDone, kNo},
            // A bar at the end matches exactly one character.
            {"last", u"A|", u"AB", type, kAnyCase, kDone, kYes},
            {"last, past the end", u"A|", u"A", type, kAnyCase, kDone, kNo},
            {"last, text goes on", u"A|", u"ABC", type, kAnyCase, kDone, kNo},
            {"alone", u"|", u"x", type, kAnyCase, kDone, kYes},
            {"alone, nothing there", u"|", u"", type, kAnyCase, kDone, kNo},
            {"two last, one character", u"A||", u"AB", type, kAnyCase, kDone, kYes},
            {"two last, two characters", u"A||", u"ABC", type, kAnyCase, kDone, kYes},
            {"two last, three characters", u"A||", u"ABCD", type, kAnyCase, kDone, kNo},
            {"two last, past the end", u"A||", u"A", type, kAnyCase, kDone, kNo},
            {"two, taking none", u"||A", u"A", type, kAnyCase, kDone, kYes},
            {"two, taking one", u"||A", u"xA", type, kAnyCase, kDone, kYes},
            {"two, taking both", u"||A", u"xyA", type, kAnyCase, kDone, kYes},
            {"two, three to take", u"||A", u"xyzA", type, kAnyCase, kDone, kNo},
            {"two, the rest nowhere", u"||A", u"xyB", type, kAnyCase, kDone, kNo},
            {"three, taking two", u"|||A", u"xyA", type, kAnyCase, kDone, kYes},
            {"before a star", u"|*", u"", type, kAnyCase, kDone, kYes},
            {"two before a star", u"||*", u"", type, kAnyCase, kDone, kYes},
            {"after a star", u"*|", u"x", type, kAnyCase, kDone, kYes},
            {"after a star, nothing there", u"*|", u"", type, kAnyCase, kDone, kNo},
            {"case is kept to", u"|a", u"xA", type, kExact, kDone, kNo},
        });
    }
}

TEST(PatternMatch, RunOfBarsIsGivenUpWhenItsRestFitsNowhereOnItsOwn)
{
    Check({
        // Alone, "[A]" is not negated; after the bars it would be.
        {"one bar: negated after it", u"[^0]|[A]", u"xyC", kSubsets, kAnyCase, kDone, kYes},
        {"two bars: not reached", u"[^0]||[A]", u"xyzC", kSubsets, kAnyCase, kDone, kNo},
        {"two bars, the rest fits", u"[^0]||[A]", u"xyA", kSubsets, kAnyCase, kDone, kYes},
        {"two bars, all taken, negated", u"[^0]||[A]", u"xyzA", kSubsets, kAnyCase, kDone, kNo},
        // The rest alone is equal to the text's end.
        {"one bar: no comparison after it", u"|[A]", u"x[A]", kSubsets, kAnyCase, kDone, kNo},
        {"two bars: the last bar compares", u"||[A]", u"x[A]", kSubsets, kAnyCase, kDone, kYes},
    });
}

TEST(PatternMatch, RangeFitsInAnyCaseAndInEitherOrder)
{
    EXPECT_EQ(Match(u"[A-C]1", u"b1", kRanges), kFits);
    EXPECT_EQ(Match(u"[C-A]1", u"b1", kRanges), kFits);
    EXPECT_EQ(Match(u"[A-C]1", u"d1", kRanges), kDiffers);
    EXPECT_EQ(Match(u"[C-A]1", u"d1", kRanges), kDiffers);
}

TEST(PatternMatch, NegationCarriesOverToLaterBrackets)
{
    EXPECT_EQ(Match(u"[^0-9]X[A]", u"aXA", kRanges), kDiffers);
    EXPECT_EQ(Match(u"[^0-9]X[A]", u"aXB", kRanges), kFits);
}

TEST(PatternMatch, NegationIsStickyWithinOneCallOnly)
{
    for (const WildcardType type : {kRanges, kSubsets, kBeyond}) {
        Check({
            {"not to earlier brackets", u"[A]X[^0]", u"AXb", type, kAnyCase, kDone, kYes},
            {"not to earlier brackets, another", u"[A]X[^0]", u"BXb", type, kAnyCase, kDone, kNo},
            {"to all later ones", u"[^0][A][B]", u"xyz", type, kAnyCase, kDone, kYes},
            {"to the very last", u"[^0][A][B]", u"xyB", type, kAnyCase, kDone, kNo},
            {"a second ^ changes nothing", u"[^0][^A]", u"xA", type, kAnyCase, kDone, kNo},
            {"not past a star", u"[^0]*[A]", u"xyA", type, kAnyCase, kDone, kYes},
            {"not past a star, another", u"[^0]*[A]", u"xyB", type, kAnyCase, kDone, kNo},
            {"from an unclosed bracket", u"[^AB[C]", u"xBD", type, kAnyCase, kDone, kYes},
            {"from an unclosed bracket, hit", u"[^AB[C]", u"xBC", type, kAnyCase, kDone, kNo},
        });
    }
    Check({
        {"past a bar that takes one", u"[^0]|[A]", u"xyB", kSubsets, kAnyCase, kDone, kYes},
        {"past a bar that takes none", u"[^0]|[A]", u"xA", kSubsets, kAnyCase, kDone, kYes},
        {"past a bar, taking one, hit", u"[^0]|[A]", u"xyA", kSubsets, kAnyCase, kDone, kNo},
        {"into a list", u"[^0][A,B]", u"xC", kSubsets, kAnyCase, kDone, kYes},
        {"out of no alternative", u"[[^0]|,Z][A]", u"xyA", kSubsets, kAnyCase, kDone, kYes},
        {"out of no alternative, another", u"[[^0]|,Z][A]", u"xyB", kSubsets, kAnyCase, kDone, kNo},
        {"into no alternative", u"[^0][[A]*B,C]D", u"xAyBD", kSubsets, kAnyCase, kDone, kYes},
    });
}

TEST(PatternMatch, SubsetsFitWholeAlternatives)
{
    EXPECT_EQ(Match(u"[ABC,DEF]", u"DEF", kSubsets), kFits);
    EXPECT_EQ(Match(u"[ABC,DEF]", u"XYZ", kSubsets), kDiffers);
    EXPECT_EQ(Match(u"[ABC,DEF]", u"DEF", kRanges), kDiffers);
    EXPECT_EQ(Match(u"[ABC,DEF]", u",", kRanges), kFits);
    EXPECT_EQ(Match(u"[ABC,DEF]", u"D", kRanges), kFits);
}

TEST(PatternMatch, UnclosedBracketTakesACharacterAndDropsOne)
{
    EXPECT_EQ(Match(u"[AB", u"ZB", kRanges), kFits);
    EXPECT_EQ(Match(u"[AB", u"ZC", kRanges), kDiffers);
}

TEST(PatternMatch, BracketsThatAreNoExpressions)
{
    for (const WildcardType type : {kRanges, kSubsets, kBeyond}) {
        Check({
            {"[ ends the template", u"[", u"x", type, kAnyCase, kDone, kYes},
            {"[ ends the template, past the end", u"[", u"", type, kAnyCase, kDone, kNo},
            {"[ ends the template, text goes on", u"[", u"xy", type, kAnyCase, kDone, kNo},
            {"[ ends a longer template", u"a[", u"ab", type, kAnyCase, kDone, kYes},
            {"[ past the end of a text", u"a[", u"a", type, kAnyCase, kDone, kNo},
            {"[^ ends the template", u"[^", u"x", type, kAnyCase, kDone, kYes},
            {"[^ ends the template, past the end", u"[^", u"", type, kAnyCase, kDone, kNo},
            {"[^ ends the template, text goes on", u"a[^", u"abc", type, kAnyCase, kDone, kNo},
            {"unclosed, nothing after it", u"[A", u"z", type, kAnyCase, kDone, kYes},
            {"unclosed, past the end", u"[A", u"", type, kAnyCase, kDone, kNo},
            {"unclosed, past the end of a text", u"a[bc", u"a", type, kAnyCase, kDone, kNo},
            {"unclosed with ^", u"[^AB", u"zB", type, kAnyCase, kDone, kYes},
            {"unclosed with ^ refuses nothing", u"[^AB", u"AB", type, kAnyCase, kDone, kYes},
            {"unclosed drops a wildcard", u"[*b", u"zb", type, kAnyCase, kDone, kYes},
            {"unclosed drops a wildcard for good", u"[*b", u"zzb", type, kAnyCase, kDone, kNo},
            {"unclosed and then a star", u"[a*", u"zqq", type, kAnyCase, kDone, kYes},
            {"unclosed around a closed one", u"[A[B]", u"xB", type, kAnyCase, kDone, kYes},
            {"unclosed around a closed one, no hit", u"[A[B]", u"xC", type, kAnyCase, kDone, kNo},
            {"unclosed drops an opening one", u"[[B]", u"xB]", type, kAnyCase, kDone, kYes},
            {"a stray ]", u"a]?", u"a]x", type, kAnyCase, kDone, kYes},
        });
    }
}

TEST(PatternMatch, NestedBracketsCloseTheOuterOneAtItsOwnEnd)
{
    for (const WildcardType type : {kRanges, kSubsets, kBeyond}) {
        Check({
            {"before the inner one", u"[A[B]C]x", u"Ax", type, kAnyCase, kDone, kYes},
            {"in the inner one", u"[A[B]C]x", u"Bx", type, kAnyCase, kDone, kYes},
            {"after the inner one", u"[A[B]C]x", u"Cx", type, kAnyCase, kDone, kYes},
            {"the inner [", u"[A[B]C]x", u"[x", type, kAnyCase, kDone, kYes},
            {"the inner ]", u"[A[B]C]x", u"]x", type, kAnyCase, kDone, kYes},
            {"another", u"[A[B]C]x", u"Dx", type, kAnyCase, kDone, kNo},
            {"empty", u"[]", u"x", type, kAnyCase, kDone, kNo},
            {"empty, closed at once", u"[]A]", u"A", type, kAnyCase, kDone, kNo},
            {"empty and negated", u"[^]", u"x", type, kAnyCase, kDone, kYes},
            {"empty and negated, past the end", u"[^]", u"", type, kAnyCase, kDone, kNo},
            {"empty and negated, closed at once", u"[^]A", u"xA", type, kAnyCase, kDone, kYes},
        });
    }
}

TEST(PatternMatch, ClassTakesOneOfItsCharacters)
{
    for (const WildcardType type : {kRanges, kSubsets, kBeyond}) {
        Check({
            {"any case", u"[ABC]", u"b", type, kAnyCase, kDone, kYes},
            {"exact", u"[ABC]", u"B", type, kExact, kDone, kYes},
            {"exact differs in case", u"[ABC]", u"b", type, kExact, kDone, kNo},
            {"another", u"[ABC]", u"d", type, kAnyCase, kDone, kNo},
            {"past the end", u"[ABC]", u"", type, kAnyCase, kDone, kNo},
            {"only one", u"[ABC]", u"ab", type, kAnyCase, kDone, kNo},
            {"and then the rest", u"x[ABC]y", u"xby", type, kAnyCase, kDone, kYes},
            {"beyond ASCII", u"[\u00E9x]", u"\u00E9", type, kAnyCase, kDone, kYes},
            {"no folding beyond ASCII", u"[\u00E9x]", u"\u00C9", type, kAnyCase, kDone, kNo},
            {"negated", u"[^ABC]", u"d", type, kAnyCase, kDone, kYes},
            {"negated, hit", u"[^ABC]", u"b", type, kAnyCase, kDone, kNo},
            {"negated, exact", u"[^ABC]", u"b", type, kExact, kDone, kYes},
            {"negated, past the end", u"[^ABC]", u"", type, kAnyCase, kDone, kNo},
            {"negated takes only one", u"[^ABC]", u"de", type, kAnyCase, kDone, kNo},
            {"negated and then the rest", u"x[^ABC]y", u"xdy", type, kAnyCase, kDone, kYes},
            {"^ not in first place", u"[A^]", u"^", type, kAnyCase, kDone, kYes},
            {"? hits any", u"[?]", u"z", type, kAnyCase, kDone, kYes},
            {"* hits any", u"[*]", u"z", type, kAnyCase, kDone, kYes},
            {"| hits any", u"[|]", u"z", type, kAnyCase, kDone, kYes},
            {"? among others hits any", u"[A?B]", u"z", type, kExact, kDone, kYes},
            {"? past the end", u"[?]", u"", type, kAnyCase, kDone, kNo},
            {"* past the end", u"[*]", u"", type, kAnyCase, kDone, kNo},
            {"* takes only one", u"[*]", u"zz", type, kAnyCase, kDone, kNo},
            {"negated ? refuses any", u"[^?]", u"z", type, kAnyCase, kDone, kNo},
            {"negated * refuses any", u"[^A*]", u"z", type, kAnyCase, kDone, kNo},
            {"negated | refuses any", u"[^|A]", u"z", type, kAnyCase, kDone, kNo},
        });
    }
}

TEST(PatternMatch, RangeOfAClass)
{
    for (const WildcardType type : {kRanges, kSubsets, kBeyond}) {
        Check({
            {"lower bound", u"[B-D]", u"B", type, kExact, kDone, kYes},
            {"between", u"[B-D]", u"C", type, kExact, kDone, kYes},
            {"upper bound", u"[B-D]", u"D", type, kExact, kDone, kYes},
            {"below", u"[B-D]", u"A", type, kExact, kDone, kNo},
            {"above", u"[B-D]", u"E", type, kExact, kDone, kNo},
            {"exact differs in case", u"[B-D]", u"c", type, kExact, kDone, kNo},
            {"any case", u"[B-D]", u"c", type, kAnyCase, kDone, kYes},
            {"any case, the other way", u"[b-d]", u"C", type, kAnyCase, kDone, kYes},
            {"turned round", u"[D-B]", u"c", type, kAnyCase, kDone, kYes},
            {"negated", u"[^B-D]", u"c", type, kAnyCase, kDone, kNo},
            {"negated, exact", u"[^B-D]", u"c", type, kExact, kDone, kYes},
            {"negated, above", u"[^B-D]", u"e", type, kAnyCase, kDone, kYes},
            {"by code", u"[A-z]", u"_", type, kExact, kDone, kYes},
            {"by code in any case", u"[A-z]", u"_", type, kAnyCase, kDone, kYes},
            // Z precedes a, but follows A: the upper-cased bounds enclose nothing.
            {"by code between the cases", u"[Z-a]", u"^", type, kAnyCase, kDone, kYes},
            {"upper-cased bounds crossed", u"[Z-a]", u"m", type, kAnyCase, kDone, kNo},
            {"one bound twice", u"[B-B]", u"b", type, kAnyCase, kDone, kYes},
            {"digits", u"[0-9]", u"5", type, kAnyCase, kDone, kYes},
            {"beyond ASCII", u"[\u03B1-\u03C9]", u"\u03B2", type, kAnyCase, kDone, kYes},
            {"beyond ASCII, no folding", u"[\u03B1-\u03C9]", u"\u0392", type, kAnyCase, kDone, kNo},
            {"- first", u"[-A]", u"-", type, kAnyCase, kDone, kYes},
            {"- first is no range", u"[-A]", u"5", type, kAnyCase, kDone, kNo},
            {"- last", u"[A-]", u"-", type, kAnyCase, kDone, kYes},
            {"- last is no range", u"[A-]", u"B", type, kAnyCase, kDone, kNo},
            {"- alone", u"[-]", u"-", type, kAnyCase, kDone, kYes},
            {"- first after ^", u"[^-A]", u"-", type, kAnyCase, kDone, kNo},
            {"- first after ^, another", u"[^-A]", u"5", type, kAnyCase, kDone, kYes},
            {"- as a bound", u"[--A]", u"5", type, kAnyCase, kDone, kYes},
            {"three - are one range", u"[---]", u"-", type, kAnyCase, kDone, kYes},
            {"one range after another", u"[A-C-E]", u"D", type, kAnyCase, kDone, kYes},
            {"above one after another", u"[A-C-E]", u"F", type, kAnyCase, kDone, kNo},
            {"range and character", u"[A-CX]", u"x", type, kAnyCase, kDone, kYes},
            {"character and range", u"[XA-C]", u"x", type, kAnyCase, kDone, kYes},
            {"the upper bound is no wildcard", u"[A-*]", u"z", type, kAnyCase, kDone, kNo},
            {"a wildcard as upper bound", u"[A-*]", u"5", type, kAnyCase, kDone, kYes},
            {"the lower bound is a wildcard", u"[*-A]", u"z", type, kAnyCase, kDone, kYes},
        });
    }
}

TEST(PatternMatch, OnlyTheFirst255CharactersOfAClassCount)
{
    const Text many(252, u'x');
    for (const WildcardType type : {kRanges, kSubsets}) {
        Check({
            {"the last that counts", u"[" + many + u"xxb]", u"b", type, kAnyCase, kDone, kYes},
            {"the first that does not", u"[" + many + u"xxxb]", u"b", type, kAnyCase, kDone, kNo},
            {"those before it do", u"[" + many + u"xxxb]", u"x", type, kAnyCase, kDone, kYes},
            {"negated", u"[^" + many + u"xxxb]", u"b", type, kAnyCase, kDone, kYes},
            {"negated, the last", u"[^" + many + u"xxb]", u"b", type, kAnyCase, kDone, kNo},
            {"all are passed over", u"[" + many + u"xxxb]c", u"xc", type, kAnyCase, kDone, kYes},
            {"a range just within", u"[" + many + u"a-c]", u"b", type, kAnyCase, kDone, kYes},
            {"a - at the cut", u"[" + many + u"xa-c]", u"-", type, kAnyCase, kDone, kYes},
            {"a - at the cut is no range", u"[" + many + u"xa-c]", u"b", type, kAnyCase, kDone, kNo},
        });
    }
}

TEST(PatternMatch, CommaMakesAList)
{
    Check({
        {"first", u"[ABC,DEF]", u"abc", kSubsets, kAnyCase, kDone, kYes},
        {"exact", u"[ABC,DEF]", u"DEF", kSubsets, kExact, kDone, kYes},
        {"exact differs in case", u"[ABC,DEF]", u"def", kSubsets, kExact, kDone, kNo},
        {"not both", u"[ABC,DEF]", u"ABCDEF", kSubsets, kAnyCase, kDone, kNo},
        {"not one character", u"[ABC,DEF]", u"A", kSubsets, kAnyCase, kDone, kNo},
        {"past the end", u"[ABC,DEF]", u"", kSubsets, kAnyCase, kDone, kNo},
        {"the comma is none", u"[A,B]", u",", kSubsets, kAnyCase, kDone, kNo},
        {"third", u"[A,BC,DEF]", u"def", kSubsets, kAnyCase, kDone, kYes},
        {"within a template", u"x[AB,C]y", u"xaby", kSubsets, kAnyCase, kDone, kYes},
        {"within a template, shorter", u"x[AB,C]y", u"xcy", kSubsets, kAnyCase, kDone, kYes},
        {"within a template, neither", u"x[AB,C]y", u"xay", kSubsets, kAnyCase, kDone, kNo},
        {"the first to fit is taken", u"[A,AB]C", u"ABC", kSubsets, kAnyCase, kDone, kNo},
        {"the first to fit, longest first", u"[AB,A]C", u"ABC", kSubsets, kAnyCase, kDone, kYes},
        {"a longer one does not stand in the way", u"[ABCD,A]", u"A", kSubsets, kAnyCase, kDone, kYes},
        {"empty piece between", u"[A,,B]", u"B", kSubsets, kAnyCase, kDone, kYes},
        {"empty piece fits nothing", u"[A,,B]", u"", kSubsets, kAnyCase, kDone, kNo},
        {"empty piece last", u"[A,]", u"A", kSubsets, kAnyCase, kDone, kYes},
        {"empty piece last is no class", u"[A,]", u",", kSubsets, kAnyCase, kDone, kNo},
        {"empty pieces only", u"[,,]", u",", kSubsets, kAnyCase, kDone, kNo},
        {"comma in first place only: a class", u"[,AB]", u",", kSubsets, kAnyCase, kDone, kYes},
        {"comma in first place only: no list", u"[,AB]", u"AB", kSubsets, kAnyCase, kDone, kNo},
        {"comma first and later: a list", u"[,A,B]", u",", kSubsets, kAnyCase, kDone, kNo},
        {"comma first and later: a member", u"[,A,B]", u"B", kSubsets, kAnyCase, kDone, kYes},
        {"comma first after ^: a class", u"[^,AB]", u",", kSubsets, kAnyCase, kDone, kNo},
        {"comma first after ^, another", u"[^,AB]", u"C", kSubsets, kAnyCase, kDone, kYes},
        {"? in an alternative", u"[A?,B]x", u"AZx", kSubsets, kAnyCase, kDone, kYes},
        {"? in an alternative takes one", u"[A?,B]x", u"Ax", kSubsets, kAnyCase, kDone, kNo},
        {"two lists", u"[A,B][C,D]", u"bc", kSubsets, kAnyCase, kDone, kYes},
        {"beyond POSIX", u"[ABC,DEF]", u"DEF", kBeyond, kAnyCase, kDone, kYes},
        {"far beyond POSIX", u"[ABC,DEF]", u"DEF", kFarBeyond, kAnyCase, kDone, kYes},
        {"under RANGES a class", u"[A,B]", u",", kRanges, kAnyCase, kDone, kYes},
    });
}

TEST(PatternMatch, AlternativeIsComparedWithItsCountedLength)
{
    Check({
        {"a range counts one", u"[[A-Z],12]", u"m", kSubsets, kAnyCase, kDone, kYes},
        {"a range and a letter count two", u"[[A-C]X,D]", u"BX", kSubsets, kAnyCase, kDone, kYes},
        {"a range and a letter, no hit", u"[[A-C]X,D]", u"DX", kSubsets, kAnyCase, kDone, kNo},
        {"two ranges", u"[[A-C][0-9],D]x", u"b5x", kSubsets, kAnyCase, kDone, kYes},
        {"a range is none outside a bracket", u"[A-Z,12]", u"m", kSubsets, kAnyCase, kDone, kNo},
        {"and counts one even there", u"[A-Z,12]", u"A-Z", kSubsets, kAnyCase, kDone, kNo},
        {"- beside a bracket counts", u"[[A-Z]-B,C]", u"M-B", kSubsets, kAnyCase, kDone, kYes},
        {"- beside a comma counts", u"[A-,B]", u"A-", kSubsets, kAnyCase, kDone, kYes},
        {"- beside another character counts", u"[[+-9],x]", u"5", kSubsets, kAnyCase, kDone, kNo},
        {"- between letters beyond ASCII counts", u"[\u00C0-\u00C9,x]", u"\u00C0-\u00C9", kSubsets, kAnyCase,
         kDone, kYes},
        // "[AB]" counts as two: compared with two characters it cannot match.
        {"two in brackets count two", u"[[AB],C]x", u"Axx", kSubsets, kAnyCase, kDone, kNo},
        {"a star makes that right", u"[[AB]*,C]", u"B", kSubsets, kAnyCase, kDone, kYes},
        // With one character less it is compared with the rest of the text, and then matches too much.
        {"one too many is compared", u"[[AB],A]", u"A", kSubsets, kAnyCase, kDone, kNo},
        {"one too many fits not", u"[[BC],A]", u"A", kSubsets, kAnyCase, kDone, kYes},
        {"two too many are not compared", u"[[ABC],A]", u"A", kSubsets, kAnyCase, kDone, kYes},
        {"an earlier one is taken first", u"[A,[AB]]", u"A", kSubsets, kAnyCase, kDone, kYes},
        {"a leading ^ does not count", u"[B,^A]", u"^A", kSubsets, kAnyCase, kDone, kNo},
        {"a leading ^ alone counts nothing", u"[B,^]", u"^", kSubsets, kAnyCase, kDone, kNo},
        {"a later ^ counts", u"[B,A^]", u"A^", kSubsets, kAnyCase, kDone, kYes},
        // Split at its comma, "[[A,B]C,D]" has the alternatives "[A", "B]C" and "D".
        {"an unclosed alternative", u"[[A,B]C,D]", u"z", kSubsets, kAnyCase, kDone, kYes},
        {"the end of an outer level stops", u"[A[1,B]C,D]", u"B]C", kSubsets, kAnyCase, kDone, kNo},
        {"it stops for good", u"[A[1,B]C[DE],F]", u"B]CD", kSubsets, kAnyCase, kDone, kNo},
        {"what is before it", u"[A[1,B]C,D]", u"Az", kSubsets, kAnyCase, kDone, kYes},
        {"what is after it", u"[A[1,B]C,D]", u"D", kSubsets, kAnyCase, kDone, kYes},
        {"an inner level does not stop", u"[[A]B,D]", u"AB", kSubsets, kAnyCase, kDone, kYes},
    });
}

TEST(PatternMatch, AlternativeWithAWildcardTakesAsMuchAsItCan)
{
    Check({
        {"all of the text", u"[A*,B]", u"Axyz", kSubsets, kAnyCase, kDone, kYes},
        {"another alternative", u"[A*,B]", u"B", kSubsets, kAnyCase, kDone, kYes},
        {"neither", u"[A*,B]", u"C", kSubsets, kAnyCase, kDone, kNo},
        {"it gives nothing back", u"[A*,B]C", u"AxC", kSubsets, kAnyCase, kDone, kNo},
        {"it ends where it must", u"[A*B,C]D", u"AxByBD", kSubsets, kAnyCase, kDone, kYes},
        {"at the last place", u"[A*B,C]yBD", u"AxByBD", kSubsets, kAnyCase, kDone, kNo},
        {"at least one character", u"[*,B]", u"x", kSubsets, kAnyCase, kDone, kYes},
        {"never none", u"[*,B]", u"", kSubsets, kAnyCase, kDone, kNo},
        {"never none after a text", u"a[*,B]", u"a", kSubsets, kAnyCase, kDone, kNo},
        {"| between", u"[A|B,C]", u"AB", kSubsets, kAnyCase, kDone, kYes},
        {"| between, taking one", u"[A|B,C]", u"AzB", kSubsets, kAnyCase, kDone, kYes},
        {"| at the end takes one", u"[?|,B]x", u"abx", kSubsets, kAnyCase, kDone, kYes},
        {"| at the end takes no more", u"[?|,B]x", u"abcx", kSubsets, kAnyCase, kDone, kNo},
        {"exact", u"[a*,B]", u"Ax", kSubsets, kExact, kDone, kNo},
        {"beyond POSIX", u"[A|B,C]", u"AzB", kBeyond, kAnyCase, kDone, kYes},
    });
}

TEST(PatternMatch, PartsOfAnAlternativeBetweenItsStarsFollowOneAnother)
{
    Check({
        {"three parts", u"[A*B?C*D,x]Z", u"AxBBBcCyDDZ", kSubsets, kAnyCase, kDone, kYes},
        {"three parts, the last too early", u"[A*B?C*D,x]Z", u"AxDBBcCyZ", kSubsets, kAnyCase, kDone, kNo},
        {"three parts, no first", u"[A*B?C*D,x]Z", u"yABBcDZ", kSubsets, kAnyCase, kDone, kNo},
        {"three parts, exact", u"[A*B?C*D,x]Z", u"AxBBBccyDDZ", kSubsets, kExact, kDone, kNo},
        {"they do not overlap", u"[AB*BA,x]", u"ABA", kSubsets, kAnyCase, kDone, kNo},
        {"they may touch", u"[AB*BA,x]", u"ABBA", kSubsets, kAnyCase, kDone, kYes},
        {"? on both sides", u"[?*?,x]", u"A", kSubsets, kAnyCase, kDone, kNo},
        {"? on both sides, two", u"[?*?,x]", u"AB", kSubsets, kAnyCase, kDone, kYes},
        {"stars on both sides", u"[*A*,x]", u"yAz", kSubsets, kAnyCase, kDone, kYes},
        {"nothing but stars", u"[**,x]", u"yz", kSubsets, kAnyCase, kDone, kYes},
        {"longer than the text", u"[*ABCD,x]", u"BCD", kSubsets, kAnyCase, kDone, kNo},
        {"later in the text", u"y[A*B,x]Z", u"yABAZ", kSubsets, kAnyCase, kDone, kNo},
        {"later in the text, to the last B", u"y[A*B,x]Z", u"yABABZ", kSubsets, kAnyCase, kDone, kYes},
    });
}

TEST(PatternMatch, AlternativeThatEndsInAStarAcceptsTheRest)
{
    Check({
        // "x[*" is unclosed: x, any character, and the "*" is skipped. So it matches two, and the
        // end of the pattern accepts the rest because the alternative's last character is a star.
        {"two characters", u"[x[*,B]]", u"xy", kSubsets, kAnyCase, kDone, kYes},
        {"and the rest", u"[x[*,B]]", u"xyzzy", kSubsets, kAnyCase, kDone, kYes},
        {"the next step ends that", u"[x[*,B]]q", u"xyqz", kSubsets, kAnyCase, kDone, kNo},
        {"and takes what follows", u"[x[*,B]]q", u"xyq", kSubsets, kAnyCase, kDone, kYes},
        {"an alternative without a star", u"[x[*q,B]]", u"xyqz", kSubsets, kAnyCase, kDone, kNo},
    });
}

TEST(PatternMatch, NegatedListRejectsNothing)
{
    Check({
        {"an alternative that fits is taken", u"[^ABC,DEF]", u"abc", kSubsets, kAnyCase, kDone, kYes},
        {"with all its characters", u"[^ABC,DEF]Z", u"defz", kSubsets, kAnyCase, kDone, kYes},
        {"none fits: one character", u"[^ABC,DEF]", u"x", kSubsets, kAnyCase, kDone, kYes},
        {"none fits: only one", u"[^ABC,DEF]", u"xy", kSubsets, kAnyCase, kDone, kNo},
        {"none fits: on with the rest", u"[^ABC,DEF]Z", u"qz", kSubsets, kAnyCase, kDone, kYes},
        {"none fits: past the end", u"[^ABC,DEF]", u"", kSubsets, kAnyCase, kDone, kNo},
        {"past the end of a text", u"q[^ABC,DEF]", u"q", kSubsets, kAnyCase, kDone, kNo},
        {"empty pieces only", u"[^,,]", u"x", kSubsets, kAnyCase, kDone, kYes},
        {"a starred one that fails ends it", u"[^A*Q,BC]D", u"BCD", kSubsets, kAnyCase, kDone, kNo},
        {"with one character", u"[^A*Q,BC]CD", u"BCD", kSubsets, kAnyCase, kDone, kYes},
        {"unless an earlier one fits", u"[^BC,A*Q]D", u"BCD", kSubsets, kAnyCase, kDone, kYes},
        {"a starred one that fits", u"[^A*Q,BC]D", u"AxyQD", kSubsets, kAnyCase, kDone, kYes},
        {"its last star accepts the rest", u"[^A*,BC]", u"xyz", kSubsets, kAnyCase, kDone, kYes},
        {"not when it ends otherwise", u"[^*A,BC]", u"xyz", kSubsets, kAnyCase, kDone, kNo},
        {"not when it ends otherwise, one left", u"[^*A,BC]", u"x", kSubsets, kAnyCase, kDone, kYes},
        {"the next step ends that", u"[^A*,BC]q", u"xqy", kSubsets, kAnyCase, kDone, kNo},
        {"a bar counts as a star", u"[^A|,xy]z", u"xyz", kSubsets, kAnyCase, kDone, kNo},
        {"a starred one past the end", u"[^A*,BC]", u"", kSubsets, kAnyCase, kDone, kNo},
    });
}

TEST(PatternMatch, PieceOfAListEndsAfter255Characters)
{
    const Text many(255, u'a');
    Check({
        {"the rest is a piece", u"[" + many + u"a,b]", u"a", kSubsets, kAnyCase, kDone, kYes},
        {"the first piece", u"[" + many + u"a,b]", many, kSubsets, kAnyCase, kDone, kYes},
        {"not both", u"[" + many + u"a,b]", many + u"a", kSubsets, kAnyCase, kDone, kNo},
        {"the next piece", u"[" + many + u"a,b]", u"b", kSubsets, kAnyCase, kDone, kYes},
        {"a comma after just so many", u"[" + many + u",b]", u"b", kSubsets, kAnyCase, kDone, kYes},
        {"a comma after just so many, all", u"[" + many + u",b]", many, kSubsets, kAnyCase, kDone, kYes},
        {"far pieces", u"[" + many + many + many + u",b]", u"b", kSubsets, kAnyCase, kDone, kYes},
    });
}

TEST(PatternMatch, RestsAndAlternativesEqualToTheirTextFit)
{
    Check({
        {"after a star", u"*[A]", u"x[a]", kRanges, kAnyCase, kDone, kYes},
        {"after a star, exact", u"*[A]", u"x[a]", kRanges, kExact, kDone, kNo},
        {"not after ?", u"?[A]", u"x[A]", kRanges, kAnyCase, kDone, kNo},
        {"after a bar", u"|[A]", u"[a]", kSubsets, kAnyCase, kDone, kYes},
        {"an alternative", u"[[A]*,B]", u"[a]*", kSubsets, kAnyCase, kDone, kYes},
        {"an alternative, exact", u"[[A]*,B]", u"[a]*", kSubsets, kExact, kDone, kNo},
    });
}

TEST(PatternMatch, NegativeCodesFitOnlyTheEmptyText)
{
    for (const WildcardType type : {kNegative, kFarNegative}) {
        Check({
            {"star", u"*", u"", type, kAnyCase, kDone, kYes},
            {"literals", u"abc", u"", type, kAnyCase, kDone, kYes},
            {"literals, exact", u"abc", u"", type, kExact, kDone, kYes},
            {"star and a text", u"*", u"a", type, kAnyCase, kDone, kNo},
            {"an equal text", u"a*", u"A*", type, kAnyCase, kDone, kYes},
            {"another case, exact", u"a*", u"A*", type, kExact, kDone, kNo},
            {"empty template", u"", u"a", type, kAnyCase, kDone, kNo},
        });
    }
}

TEST(PatternMatch, PosixFailsForATemplateThatIsNotTheText)
{
    EXPECT_EQ(Match(u"^a$", u"a", kPosix), kFails);
    EXPECT_EQ(Match(u"abc", u"ABC", kPosix, kExact), kFails);
    EXPECT_EQ(Match(u"", u"a", kPosix), kFails);
    EXPECT_EQ(Match(u"a", u"", kPosix), kFails);
    EXPECT_EQ(Match(u".*", u"\u00E9", kPosix), kFails);
    EXPECT_EQ(Match(Repeat(u".", 100000), u"a", kPosix), kFails);
}

TEST(PatternMatch, PerlFitsWithoutRegardToCaseAndAnywhere)
{
    EXPECT_EQ(Match(u"^A.C$", u"abc", kPerl), kFits);
    EXPECT_EQ(Match(u"B", u"ABC", kPerl), kFits);
}

TEST(PatternMatch, PerlExpressions)
{
    Check({
        {"exact", u"^A.C$", u"ABC", kPerl, kExact, kDone, kYes},
        {"exact differs in case", u"^A.C$", u"abc", kPerl, kExact, kDone, kNo},
        {"^ anchors", u"^B", u"ABC", kPerl, kAnyCase, kDone, kNo},
        {"$ anchors", u"B$", u"ABC", kPerl, kAnyCase, kDone, kNo},
        {"$ at the end", u"C$", u"ABC", kPerl, kAnyCase, kDone, kYes},
        {"empty template fits anywhere", u"", u"abc", kPerl, kAnyCase, kDone, kYes},
        {"empty text", u"a", u"", kPerl, kAnyCase, kDone, kNo},
        {"empty text, nothing needed", u"a*", u"", kPerl, kAnyCase, kDone, kYes},
        {"alternatives", u"^(ab|cd)$", u"CD", kPerl, kAnyCase, kDone, kYes},
        {"classes", u"^[A-Z]{2}\\d+$", u"ab123", kPerl, kAnyCase, kDone, kYes},
        {"back references", u"^(.)\\1$", u"xx", kPerl, kAnyCase, kDone, kYes},
        {"look-ahead", u"^(?=.*1)[a-z1]+$", u"ab1", kPerl, kAnyCase, kDone, kYes},
        {"| is no bar", u"A|C", u"xC", kPerl, kAnyCase, kDone, kYes},
    });
}

TEST(PatternMatch, PerlExpressionThatIsNotValidFails)
{
    for (const char16_t* pattern : {u"(", u"[a", u"*a", u"a{2,1}", u"(?<n", u"\\", u"(?P=x)"}) {
        EXPECT_EQ(Match(pattern, u"abc", kPerl), kFails) << Utf8FromText(pattern);
        EXPECT_EQ(Match(pattern, u"abc", kPerl, kExact), kFails) << Utf8FromText(pattern);
    }
    EXPECT_EQ(Match(u"(", u"(", kPerl), kFits);
}

TEST(PatternMatch, PerlReadsCharactersBeyondAscii)
{
    Check({
        {"in both", u"\u00FC", u"x\u00FCy", kPerl, kExact, kDone, kYes},
        {"in both, any case", u"^\u00C9\u03A9$", u"\u00E9\u03C9", kPerl, kAnyCase, kDone, kYes},
        {"in both, exact", u"^\u00C9$", u"\u00E9", kPerl, kExact, kDone, kNo},
        {"in the text", u"^a.b$", u"a\u00FCb", kPerl, kAnyCase, kDone, kYes},
        {"in the text, one character", u"^a..b$", u"a\u00FCb", kPerl, kAnyCase, kDone, kNo},
        {"in the text, searched to its end", u"b$", u"\u00E9\u00E9\u00E9b", kPerl, kAnyCase, kDone, kYes},
        {"in the template", u"^[\u00E0-\u00EF]?a$", u"a", kPerl, kAnyCase, kDone, kYes},
        {"in the template, not there", u"\u00E9", u"abc", kPerl, kAnyCase, kDone, kNo},
        {"a range", u"^[\u00E0-\u00EF]$", u"\u00E9", kPerl, kAnyCase, kDone, kYes},
        {"beyond U+FFFF in both", u"^\U0001F600$", u"\U0001F600", kPerl, kExact, kDone, kYes},
        {"beyond U+FFFF in the text", u"^.$", u"\U0001F600", kPerl, kAnyCase, kDone, kYes},
        {"beyond U+FFFF is not two", u"^..$", u"\U0001F600", kPerl, kAnyCase, kDone, kNo},
        {"beyond U+FFFF in a class", u"^a[\U0001F600\U0001F601]b$", u"a\U0001F601b", kPerl, kAnyCase, kDone,
         kYes},
        {"by number", u"^\\x{1F600}$", u"\U0001F600", kPerl, kAnyCase, kDone, kYes},
    });
}

TEST(PatternMatch, PerlTakesHalfASurrogatePairForOneCharacter)
{
    const Text half(1, static_cast<char16_t>(0xD800));
    Check({
        {"in the text", u"^a.b$", u"a" + half + u"b", kPerl, kAnyCase, kDone, kYes},
        {"in the text, not two", u"^a..b$", u"a" + half + u"b", kPerl, kAnyCase, kDone, kNo},
        {"at its end", u"^a", u"ab" + half, kPerl, kAnyCase, kDone, kYes},
        {"in both", u"^a" + half, u"a" + half + u"b", kPerl, kExact, kDone, kYes},
    });
}

TEST(PatternMatch, PerlExpressionThatTakesTooLongFails)
{
    EXPECT_EQ(Match(u"^(a+)+$", Text(40, u'a') + u"b", kPerl), kFails);
    EXPECT_EQ(Match(u"^(a+)+$", Text(40, u'a'), kPerl), kFits);
}

TEST(PatternMatch, PerlTakesLongTexts)
{
    const Text text = Text(100000, u'a') + u"b";
    EXPECT_EQ(Match(u"^a*b$", text, kPerl), kFits);
    EXPECT_EQ(Match(u"^a*$", text, kPerl), kDiffers);
    EXPECT_EQ(Match(Text(300, u'a') + u"b$", text, kPerl), kFits);
}

TEST(PatternMatch, WithoutMemoryPerlFails)
{
    const Text pattern = u"^a*" + Repeat(u"a?", 500) + u"b$";
    const Text text = Text(2000, u'a') + u"b";
    Result result{};
    {
        const test::NoMemory noMemory;
        result = Match(pattern.c_str(), text.c_str(), kPerl);
    }
    EXPECT_EQ(result, kFails);
    EXPECT_EQ(Match(pattern, text, kPerl), kFits);
}

TEST(PatternMatch, WithoutMemoryPosixFails)
{
    const Text pattern(2000, u'.');
    const Text text(2000, u'a');
    Result result{};
    {
        const test::NoMemory noMemory;
        result = Match(pattern.c_str(), text.c_str(), kPosix);
    }
    EXPECT_EQ(result, kFails);
}

// The matcher may or may not need memory; a wrong result or an exception is an error.
TEST(PatternMatch, WithoutMemoryTheWalkIsRightOrFails)
{
    struct Case {
        Text pattern;
        Text text;
        WildcardType type;
        Result expected;
    };
    const Text many(1500, u'a');
    const std::vector<Case> cases = {
        {many + u"b", many + u"c", kNone, kDiffers},
        {Repeat(u"*a", 200) + u"*b", many, kDos, kDiffers},
        {Repeat(u"*a", 200) + u"*b", many + u"b", kDos, kFits},
        {Repeat(u"*[^b][c]", 100) + u"*d", many + u"d", kRanges, kFits},
        {Repeat(u"*[^b][c]", 100) + u"*d", many, kRanges, kDiffers},
        {Repeat(u"|", 600) + u"b", many, kSubsets, kDiffers},
        {Repeat(u"|", 1600) + u"b", many + u"b", kSubsets, kFits},
        {u"[*b*,*c*][*d*,*e*]", many, kSubsets, kDiffers},
        {u"[*b*,*a][*d*,*e*]", many, kSubsets, kDiffers},
        {u"[*b*,*a*]", many, kSubsets, kFits},
        {u"[" + many + u",*b]x", many + u"x", kSubsets, kDiffers},
        {Repeat(u"?|", 700) + u"*", many, kBeyond, kFits},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(Utf8FromText(one.pattern.substr(0, 40)));
        Result result{};
        bool thrown = false;
        {
            const test::NoMemory noMemory;
            try {
                result = Match(one.pattern.c_str(), one.text.c_str(), one.type);
            } catch (...) {
                thrown = true;
            }
        }
        EXPECT_FALSE(thrown);
        EXPECT_TRUE(result == kFails || result == one.expected) << testing::PrintToString(result);
        EXPECT_EQ(Match(one.pattern, one.text, one.type), one.expected);
    }
}

// Patterns that are much longer than their texts, and others of the same length.
constexpr std::size_t kLong = 100000;
constexpr std::size_t kEven = 2000;

TEST(PatternMatchLong, StarsFitEverything)
{
    const Text pattern(kLong, u'*');
    for (const WildcardType type : {kDos, kRanges, kSubsets}) {
        EXPECT_EQ(Match(pattern, u"", type), kFits);
        EXPECT_EQ(Match(pattern, u"abc", type), kFits);
        EXPECT_EQ(Match(pattern, Text(1000, u'a'), type), kFits);
        EXPECT_EQ(Match(pattern + u"b", Text(1000, u'a'), type), kDiffers);
        EXPECT_EQ(Match(pattern + u"b", Text(999, u'a') + u"b", type), kFits);
    }
}

TEST(PatternMatchLong, BarsFitAsManyCharactersAsTheyAreButNotNone)
{
    const Text pattern(kLong, u'|');
    EXPECT_EQ(Match(pattern, u"", kSubsets), kDiffers);
    EXPECT_EQ(Match(pattern, u"a", kSubsets), kFits);
    EXPECT_EQ(Match(pattern, u"abc", kSubsets), kFits);
    EXPECT_EQ(Match(pattern, Text(1000, u'a'), kSubsets), kFits);
    EXPECT_EQ(Match(Text(1000, u'|'), Text(1001, u'a'), kSubsets), kDiffers);
    for (const WildcardType type : {kDos, kRanges}) {
        EXPECT_EQ(Match(pattern, u"abc", type), kDiffers);
        EXPECT_EQ(Match(pattern, Text(1000, u'|'), type), kDiffers);
    }
}

TEST(PatternMatchLong, BarsBeforeALetterFitAsManyCharactersAndTheLetter)
{
    const Text pattern = Text(kLong, u'|') + u"b";
    EXPECT_EQ(Match(pattern, u"b", kSubsets), kFits);
    EXPECT_EQ(Match(pattern, u"aab", kSubsets), kFits);
    EXPECT_EQ(Match(pattern, Text(1000, u'a'), kSubsets), kDiffers);
    EXPECT_EQ(Match(pattern, Text(999, u'a') + u"b", kSubsets), kFits);
}

TEST(PatternMatchLong, FortyBarsBeforeALetter)
{
    const Text pattern = Text(40, u'|') + u"b";
    EXPECT_EQ(Match(pattern, u"b", kSubsets), kFits);
    EXPECT_EQ(Match(pattern, Text(20, u'a') + u"b", kSubsets), kFits);
    EXPECT_EQ(Match(pattern, Text(40, u'a') + u"b", kSubsets), kFits);
    EXPECT_EQ(Match(pattern, Text(41, u'a') + u"b", kSubsets), kDiffers);
    EXPECT_EQ(Match(pattern, Text(40, u'a'), kSubsets), kDiffers);
    EXPECT_EQ(Match(pattern, Text(1000, u'a') + u"b", kSubsets), kDiffers);
}

// Each "[" is unclosed, matches one character and skips the next "[".
TEST(PatternMatchLong, OpeningBracketsFitHalfAsManyCharacters)
{
    const Text pattern(kLong, u'[');
    for (const WildcardType type : {kDos, kRanges, kSubsets}) {
        EXPECT_EQ(Match(pattern, u"", type), kDiffers);
        EXPECT_EQ(Match(pattern, u"abc", type), kDiffers);
        EXPECT_EQ(Match(pattern, Text(1000, u'a'), type), kDiffers);
    }
    for (const WildcardType type : {kRanges, kSubsets}) {
        EXPECT_EQ(Match(Text(2000, u'['), Text(1000, u'a'), type), kFits);
        EXPECT_EQ(Match(Text(1999, u'['), Text(1000, u'a'), type), kFits);
        EXPECT_EQ(Match(Text(2000, u'['), Text(999, u'a'), type), kDiffers);
    }
}

TEST(PatternMatchLong, QuestionMarksFitAsManyCharacters)
{
    const Text pattern(kLong, u'?');
    for (const WildcardType type : {kDos, kRanges, kSubsets}) {
        EXPECT_EQ(Match(pattern, u"", type), kDiffers);
        EXPECT_EQ(Match(pattern, u"abc", type), kDiffers);
        EXPECT_EQ(Match(pattern, Text(1000, u'a'), type), kDiffers);
        EXPECT_EQ(Match(Text(kEven, u'?'), Text(kEven, u'a'), type), kFits);
        EXPECT_EQ(Match(Text(kEven, u'?'), Text(kEven + 1, u'a'), type), kDiffers);
    }
}

TEST(PatternMatchLong, LettersFitThemselves)
{
    const Text pattern(kLong, u'a');
    for (const WildcardType type : {kDos, kRanges, kSubsets}) {
        EXPECT_EQ(Match(pattern, u"aaa", type), kDiffers);
        EXPECT_EQ(Match(pattern, Text(1000, u'a'), type), kDiffers);
        EXPECT_EQ(Match(pattern, Text(kLong, u'A'), type), kFits);
        EXPECT_EQ(Match(pattern, Text(kLong, u'A'), type, kExact), kDiffers);
        EXPECT_EQ(Match(Text(kEven, u'a') + u"*", Text(kEven, u'A') + u"x", type), kFits);
        EXPECT_EQ(Match(Text(kEven, u'a') + u"?", Text(kEven, u'A') + u"xy", type), kDiffers);
    }
}

TEST(PatternMatchLong, ClassesAndListsFitAsManyCharacters)
{
    const Text pattern = Repeat(u"[a,b]", kLong);
    for (const WildcardType type : {kDos, kRanges, kSubsets}) {
        EXPECT_EQ(Match(pattern, u"", type), kDiffers);
        EXPECT_EQ(Match(pattern, u"ab", type), kDiffers);
        EXPECT_EQ(Match(pattern, Text(1000, u'a'), type), kDiffers);
    }
    const Text even = Repeat(u"[a,b]", kEven);
    for (const WildcardType type : {kRanges, kSubsets}) {
        EXPECT_EQ(Match(even, Repeat(u"Ab", kEven / 2), type), kFits);
        EXPECT_EQ(Match(even, Repeat(u"Ab", kEven / 2), type, kExact), kDiffers);
        EXPECT_EQ(Match(even, Text(kEven - 1, u'a') + u"c", type), kDiffers);
    }
    EXPECT_EQ(Match(even, Text(kEven - 1, u'a') + u",", kRanges), kFits);
    EXPECT_EQ(Match(even, Text(kEven - 1, u'a') + u",", kSubsets), kDiffers);
}

TEST(PatternMatchLong, ManyStarsThatFitAlmostEverywhere)
{
    for (const WildcardType type : {kDos, kRanges, kSubsets}) {
        EXPECT_EQ(Match(u"*a*a*a*a*a*a*a*b", Text(1000, u'a'), type), kDiffers);
        EXPECT_EQ(Match(u"*a*a*a*a*a*a*a*b", Text(999, u'a') + u"b", type), kFits);
        EXPECT_EQ(Match(u"*a*a*a*a*a*a*a*b", u"aaaaaab", type), kDiffers);
    }
}

TEST(PatternMatchLong, TwoListsWithStarsOnALongText)
{
    const Text text(250, u'a');
    EXPECT_EQ(Match(u"[*x*,*y*][*x*,*y*]", text, kSubsets), kDiffers);
    EXPECT_EQ(Match(u"[*a*x*,*a*y*]*[*a*x*,*a*y*]", text, kSubsets), kDiffers);
    // The first list matches the whole text.
    EXPECT_EQ(Match(u"[a*,b*][a*,b*]", text, kSubsets), kDiffers);
    // The first alternative that matches takes as much as it can: here all, there all up to the x.
    EXPECT_EQ(Match(u"[*y,*x][*y,*x]", text + u"x" + text + u"y", kSubsets), kDiffers);
    EXPECT_EQ(Match(u"[*z,*x][*y,*x]", text + u"x" + text + u"y", kSubsets), kFits);
}

TEST(PatternMatchLong, AsManyOccurrencesAsStarsAskFor)
{
    const Text text = Repeat(u"xyAB", 1500);
    for (const WildcardType type : {kDos, kRanges, kSubsets}) {
        EXPECT_EQ(Match(Repeat(u"*ab", 1500), text, type), kFits);
        EXPECT_EQ(Match(Repeat(u"*ab", 1500), text, type, kExact), kDiffers);
        EXPECT_EQ(Match(Repeat(u"*AB", 1500), text, type, kExact), kFits);
        EXPECT_EQ(Match(Repeat(u"*ab", 1501), text, type), kDiffers);
        EXPECT_EQ(Match(Repeat(u"*ab", 1500) + u"*", text, type), kFits);
        EXPECT_EQ(Match(Repeat(u"*ab", 1500) + u"?", text, type), kDiffers);
        EXPECT_EQ(Match(Repeat(u"*b?", 1499) + u"*b", text, type), kFits);
        EXPECT_EQ(Match(Repeat(u"*b?", 1500), text, type), kDiffers);
    }
}

TEST(PatternMatchLong, StarsBeforeBracketsWithStickyNegation)
{
    // "[^q][x]" is one character other than q and one other than x: not found in "qx..qxx".
    const Text decoys = Repeat(u"qx", 1500);
    const Text pattern = Repeat(u"*z[^q][x]Z", 3) + u"*";
    const auto text = [&](const Text& piece) { return decoys + Repeat(piece + decoys, 3); };
    for (const WildcardType type : {kRanges, kSubsets}) {
        EXPECT_EQ(Match(pattern, text(u"zaaz"), type), kFits);
        EXPECT_EQ(Match(pattern, text(u"ZAAZ"), type), kFits);
        EXPECT_EQ(Match(pattern, text(u"zaaZ"), type, kExact), kFits);
        EXPECT_EQ(Match(pattern, text(u"ZaaZ"), type, kExact), kDiffers);
        EXPECT_EQ(Match(pattern, text(u"zaxz"), type), kDiffers);
        EXPECT_EQ(Match(pattern, text(u"zaXz"), type), kDiffers);
        EXPECT_EQ(Match(pattern, text(u"zaXZ"), type, kExact), kFits);
        EXPECT_EQ(Match(pattern, text(u"zqaz"), type), kDiffers);
        EXPECT_EQ(Match(pattern + u"zaaz*", text(u"zaaz"), type), kDiffers);
    }
}

TEST(PatternMatchLong, NegationEndsAtTheNextStarOfALongText)
{
    // Twenty times a letter other than c; the last bracket is in a call of its own.
    const Text pattern = Repeat(u"*[^c]B", 20) + u"*[c-e]";
    for (const WildcardType type : {kRanges, kSubsets}) {
        EXPECT_EQ(Match(pattern, Repeat(u"ab", 2000) + u"D", type), kFits);
        EXPECT_EQ(Match(pattern, Repeat(u"ab", 2000) + u"f", type), kDiffers);
        EXPECT_EQ(Match(pattern, Repeat(u"cb", 2000) + u"D", type), kDiffers);
        EXPECT_EQ(Match(pattern, Repeat(u"cb", 2000) + Repeat(u"ab", 20) + u"D", type), kFits);
        EXPECT_EQ(Match(pattern, Repeat(u"cb", 2000) + Repeat(u"ab", 19) + u"D", type), kDiffers);
    }
}

TEST(PatternMatchLong, RestEqualToTheEndOfALongTextFits)
{
    const Text many(3000, u'a');
    const Text pattern = Repeat(u"*a", 50) + u"*[b][^c]";
    for (const WildcardType type : {kRanges, kSubsets}) {
        EXPECT_EQ(Match(pattern, many + u"[B][^C]", type), kFits);
        EXPECT_EQ(Match(pattern, many + u"[B][^C]", type, kExact), kDiffers);
        EXPECT_EQ(Match(pattern, many + u"[b][^d]", type), kDiffers);
        EXPECT_EQ(Match(pattern, many + u"bd", type), kFits);
    }
}

// At each position of the text the rest nearly matches, so the walk gives up.
TEST(PatternMatchLong, RestThatNearlyFitsEverywhere)
{
    const Text pattern = u"*" + Text(200, u'a') + u"b*";
    const Text text(5000, u'a');
    for (const WildcardType type : {kDos, kRanges, kSubsets}) {
        EXPECT_EQ(Match(pattern, text, type), kDiffers);
        EXPECT_EQ(Match(pattern, text + u"B" + text, type), kFits);
        EXPECT_EQ(Match(pattern, text + u"B" + text, type, kExact), kDiffers);
        EXPECT_EQ(Match(pattern, text + u"c" + Text(199, u'a') + u"b", type), kDiffers);
    }
    // With type DOS a bracket is an ordinary character.
    const Text brackets = u"*" + Repeat(u"[", 200) + u"b*";
    EXPECT_EQ(Match(brackets, Repeat(u"[", 5000), kDos), kDiffers);
    EXPECT_EQ(Match(brackets, Repeat(u"[", 5000) + u"b", kDos), kFits);
}

TEST(PatternMatchLong, ThousandsOfAlternativesWithStars)
{
    Text list = u"[";
    for (std::size_t i = 0; list.size() < kLong; ++i) {
        list += u"*x";
        for (std::size_t rest = i, letters = 0; letters < 4; ++letters, rest /= 24)
            list.push_back(static_cast<char16_t>(u'b' + rest % 24));
        list += u",";
    }
    const Text text(1000, u'a');
    EXPECT_EQ(Match(list + u"q]", text, kSubsets), kDiffers);
    EXPECT_EQ(Match(list + u"*a]", text, kSubsets), kFits);
    EXPECT_EQ(Match(list + u"*a]b", text + u"b", kSubsets), kFits);
    EXPECT_EQ(Match(list + u"*a]b", text + u"bb", kSubsets), kDiffers);
}

// More different alternatives than the cache holds, each used twice.
TEST(PatternMatchLong, ManyDifferentAlternativesWithStars)
{
    Text list = u"[";
    for (char16_t first = u'b'; first <= u'z'; ++first) {
        for (char16_t second = u'b'; second <= u'm'; ++second)
            list.append(1, first).append(1, second).append(u"*,");
    }
    list += u"aa*]";
    const Text text(250, u'a');
    EXPECT_EQ(Match(list + u"*", text, kSubsets), kFits);
    EXPECT_EQ(Match(list + u"?", text, kSubsets), kDiffers);
    EXPECT_EQ(Match(list + list, text, kSubsets), kDiffers);
    EXPECT_EQ(Match(list, u"ab", kSubsets), kDiffers);
}

} // namespace
} // namespace ov

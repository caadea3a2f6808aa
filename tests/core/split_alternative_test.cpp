#include "match/core/tokens.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace ov
{
namespace
{

constexpr std::size_t kUsualLimit = 255;

struct Piece {
    Text text;
    std::size_t next;

    bool operator==(const Piece&) const = default;
};

void PrintTo(const Piece& piece, std::ostream* out)
{
    *out << '<' << Utf8FromText(piece.text) << "> " << piece.next;
}

struct Sets {
    const char16_t* leadingSkip = nullptr;
    const char16_t* trailingTrim = nullptr;
    const char16_t* remove = nullptr;
    const char16_t* consumedStops = u",";
    const char16_t* keptStops = nullptr;
};

Piece Split(const Text& source, const Sets& sets = {}, std::size_t limit = kUsualLimit)
{
    std::vector<char16_t> buffer(limit + 2, u'!');
    const std::size_t next =
        SplitAlternative(buffer.data(), source.c_str(), sets.leadingSkip, sets.trailingTrim, sets.remove,
                         sets.consumedStops, sets.keptStops, limit);
    EXPECT_EQ(buffer[limit + 1], u'!') << "written past the terminator";
    return {buffer.data(), next};
}

TEST(SplitAlternative, PieceEndsAtTheStopAndConsumesIt)
{
    EXPECT_EQ(Split(u"ABC,DEF"), (Piece{u"ABC", 4}));
}

TEST(SplitAlternative, WithoutAStopTheLengthReadIsGiven)
{
    EXPECT_EQ(Split(u"DEF"), (Piece{u"DEF", 3}));
}

TEST(SplitAlternative, EmptyOrNullSourceGivesNothing)
{
    EXPECT_EQ(Split(u""), (Piece{u"", 0}));
    std::array<char16_t, 4> buffer{u'x', u'y', u'z', u'\0'};
    EXPECT_EQ(SplitAlternative(buffer.data(), nullptr, nullptr, nullptr, nullptr, u",", nullptr, 3), 0u);
    EXPECT_EQ(Text(buffer.data()), u"");
}

TEST(SplitAlternative, WithoutADestinationNothingIsRead)
{
    EXPECT_EQ(SplitAlternative(nullptr, u"a,b", nullptr, nullptr, nullptr, u",", nullptr, 255), 0U);
}

TEST(SplitAlternative, LimitAlsoEndsTheSkippingOfLeadingCharacters)
{
    std::array<char16_t, 3> piece{u'!', u'!', u'!'};
    EXPECT_EQ(SplitAlternative(piece.data(), u"   ab", u" ", nullptr, nullptr, u",", nullptr, 2), 2U);
    EXPECT_EQ(piece[0], u'\0');
}

TEST(SplitAlternative, PiecesFollowOneAnotherToTheEnd)
{
    const Text source = u"A,,BC,D";
    std::vector<Text> pieces;
    std::size_t at = 0;
    while (at < source.size()) {
        const Piece piece = Split(source.substr(at));
        ASSERT_GT(piece.next, 0u);
        pieces.push_back(piece.text);
        at += piece.next;
    }
    EXPECT_EQ(at, source.size());
    EXPECT_EQ(pieces, (std::vector<Text>{u"A", u"", u"BC", u"D"}));
}

TEST(SplitAlternative, StopInFirstPlaceGivesAnEmptyPiece)
{
    EXPECT_EQ(Split(u",A"), (Piece{u"", 1}));
    EXPECT_EQ(Split(u","), (Piece{u"", 1}));
}

TEST(SplitAlternative, NoMoreThanTheLimitIsLookedAt)
{
    EXPECT_EQ(Split(u"ABCDEF", {}, 3), (Piece{u"ABC", 3}));
    EXPECT_EQ(Split(u"ABC,D", {}, 3), (Piece{u"ABC", 3}));
    EXPECT_EQ(Split(u"ABC,D", {}, 4), (Piece{u"ABC", 4}));
    EXPECT_EQ(Split(Text(600, u'a') + u",b"), (Piece{Text(255, u'a'), 255}));
}

TEST(SplitAlternative, LongPiecesAreReadWhole)
{
    EXPECT_EQ(Split(Text(2000, u'a') + u",b", {}, 5000), (Piece{Text(2000, u'a'), 2001}));
    EXPECT_EQ(Split(Text(511, u'a') + u",b", {}, 512), (Piece{Text(511, u'a'), 512}));
    EXPECT_EQ(Split(Text(512, u'a') + u",b", {}, 513), (Piece{Text(512, u'a'), 513}));
}

TEST(SplitAlternative, QuotesAreText)
{
    EXPECT_EQ(Split(u"\"A,B\",C"), (Piece{u"\"A", 3}));
}

TEST(SplitAlternative, BracketsAreText)
{
    EXPECT_EQ(Split(u"[A,B]C,D"), (Piece{u"[A", 3}));
}

TEST(SplitAlternative, AllSetsMayBeNull)
{
    Sets none;
    none.consumedStops = nullptr;
    EXPECT_EQ(Split(u" A,B ", none), (Piece{u" A,B ", 5}));
}

TEST(SplitAlternative, NothingIsTrimmedUnlessAsked)
{
    EXPECT_EQ(Split(u" A ,B"), (Piece{u" A ", 4}));
}

TEST(SplitAlternative, LeadingCharactersOfTheSetAreSkippedAndCounted)
{
    Sets sets;
    sets.leadingSkip = u" .";
    EXPECT_EQ(Split(u" . A.B,C", sets), (Piece{u"A.B", 7}));
    EXPECT_EQ(Split(u" .", sets), (Piece{u"", 2}));
}

TEST(SplitAlternative, TrailingCharactersOfTheSetAreTrimmed)
{
    Sets sets;
    sets.trailingTrim = u" .";
    EXPECT_EQ(Split(u"A.B. ,C", sets), (Piece{u"A.B", 6}));
    EXPECT_EQ(Split(u"A. ", sets), (Piece{u"A", 3}));
    EXPECT_EQ(Split(u" . ,C", sets), (Piece{u"", 4}));
}

TEST(SplitAlternative, CharactersOfTheRemoveSetAreDropped)
{
    Sets sets;
    sets.remove = u"-+";
    EXPECT_EQ(Split(u"-A+-B,C", sets), (Piece{u"AB", 6}));
}

TEST(SplitAlternative, KeptStopIsNotConsumed)
{
    Sets sets;
    sets.keptStops = u";";
    EXPECT_EQ(Split(u"AB;C,D", sets), (Piece{u"AB", 2}));
    EXPECT_EQ(Split(u"AB,C;D", sets), (Piece{u"AB", 3}));
    EXPECT_EQ(Split(u";A", sets), (Piece{u"", 0}));
}

TEST(SplitAlternative, EveryCharacterOfAStopSetStops)
{
    Sets sets;
    sets.consumedStops = u";,";
    EXPECT_EQ(Split(u"A;B,C", sets), (Piece{u"A", 2}));
    EXPECT_EQ(Split(u"B,C", sets), (Piece{u"B", 2}));
}

} // namespace
} // namespace ov

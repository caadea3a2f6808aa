// Converts the text of a variable with several values to rows, to fields and back.
#include "controls/core/list_text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace
{

using Rows = std::vector<std::vector<std::string>>;

constexpr ov::ListFormat oneField{};
constexpr ov::ListFormat commas{.separator = u','};
constexpr ov::ListFormat pairs{.fieldSeparator = u':', .fieldCount = 2};
constexpr ov::ListFormat commaPairs{.fieldSeparator = u',', .fieldCount = 2};
constexpr ov::ListFormat quadruples{.fieldSeparator = u',', .fieldCount = 4};

Rows RowsOf(const ov::ListRows& list)
{
    Rows rows(list.Count());
    for (std::size_t row = 0; row < list.Count(); ++row) {
        for (const ov::Text& field : list[row])
            rows[row].push_back(ov::Utf8FromText(field));
    }
    return rows;
}

ov::ListRows Filled(const std::string& text, const ov::ListFormat& format = oneField)
{
    ov::ListRows list(format);
    list.Fill(ov::TextFromUtf8(text));
    return list;
}

Rows Opened(const std::string& text, const ov::ListFormat& format = oneField)
{
    return RowsOf(Filled(text, format));
}

std::string Written(const std::string& text, const ov::ListFormat& format = oneField)
{
    return ov::Utf8FromText(Filled(text, format).ListText());
}

std::string Entry(const ov::ListRows& list, std::size_t row)
{
    return ov::Utf8FromText(list.EntryText(row));
}

// The result that Fill must have, computed by single insertions.
ov::ListRows InsertedOneByOne(const ov::Text& text, const ov::ListFormat& format)
{
    ov::ListRows list(format);
    for (const ov::TextView entry : ov::SplitEntries(text, format))
        list.Insert(list.Count(), entry);
    return list;
}

TEST(ListText, EmptyEntriesVanish)
{
    EXPECT_EQ(Opened("a;b;;c"), (Rows{{"a"}, {"b"}, {"c"}}));
    EXPECT_EQ(Written("a;b;;c"), "a;b;c");
    EXPECT_EQ(Written(";;a;;"), "a");
    EXPECT_EQ(Opened(";;;"), Rows{});
    EXPECT_EQ(Written(";;;"), "");
    EXPECT_EQ(Opened(""), Rows{});
}

TEST(ListText, SingleFieldEntriesAreWrittenBare)
{
    EXPECT_EQ(Opened("\"x;y\";z"), (Rows{{"x;y"}, {"z"}}));
    EXPECT_EQ(Written("\"x;y\";z"), "x;y;z");
    EXPECT_EQ(Opened("x;y;z"), (Rows{{"x"}, {"y"}, {"z"}}));
}

TEST(ListText, FieldsHoldingTheFieldSeparatorAreQualified)
{
    const std::string text = "A:1;\"B:C\":2";
    EXPECT_EQ(Opened(text, pairs), (Rows{{"A", "1"}, {"B:C", "2"}}));
    EXPECT_EQ(Written(text, pairs), text);
}

TEST(ListText, DuplicatesInAnotherCaseCollapseIntoTheLater)
{
    EXPECT_EQ(Opened("A;a"), (Rows{{"a"}}));
    EXPECT_EQ(Written("A;a"), "a");
}

TEST(ListText, ADuplicateTakesTheOldRowsPlace)
{
    EXPECT_EQ(Opened("one;two;three;TWO"), (Rows{{"one"}, {"TWO"}, {"three"}}));
    EXPECT_EQ(Opened("a:1;b:2;A:1;c:3", pairs), (Rows{{"A", "1"}, {"b", "2"}, {"c", "3"}}));
    EXPECT_EQ(Opened("a:1;A:2", pairs), (Rows{{"a", "1"}, {"A", "2"}}));
}

TEST(ListText, CaseIsThatOfAToZOnly)
{
    EXPECT_EQ(Opened("\xC3\x84;\xC3\xA4"), (Rows{{"\xC3\x84"}, {"\xC3\xA4"}}));
}

TEST(ListText, DuplicatesAreFoundByWhatARowReadsBackAs)
{
    // The row does not contain the entry's blanks and qualifiers, so it equals none of these entries.
    EXPECT_EQ(Opened("A; A;A "), (Rows{{"A"}, {"A"}, {"A"}}));
    EXPECT_EQ(Opened("A;\"A\""), (Rows{{"A"}, {"A"}}));
    // The first of several equal rows is replaced.
    EXPECT_EQ(Opened("A; A;a"), (Rows{{"a"}, {"A"}}));
}

TEST(ListText, SeparatorsBetweenQualifiersAreOrdinary)
{
    EXPECT_EQ(Opened("a;\"b;c\""), (Rows{{"a"}, {"b;c"}}));
    EXPECT_EQ(Opened("\"a;b\""), (Rows{{"a;b"}}));
    EXPECT_EQ(Opened("x \"a;b\" y;z"), (Rows{{"x a;b y"}, {"z"}}));
    EXPECT_EQ(Opened("\"a;b\"c\";d\";e"), (Rows{{"a;bc;d"}, {"e"}}));
    EXPECT_EQ(Opened("\"a,b\",c", commas), (Rows{{"a,b"}, {"c"}}));
    EXPECT_EQ(Opened("a;b,c", commas), (Rows{{"a;b"}, {"c"}}));
    EXPECT_EQ(Opened("A:1;\"B:C\":\"2;3\"", pairs), (Rows{{"A", "1"}, {"B:C", "2;3"}}));
}

TEST(ListText, DoubledQualifiersStandForOne)
{
    EXPECT_EQ(Opened("\"say \"\"hi\"\" now\";b"), (Rows{{"say \"hi\" now"}, {"b"}}));
    EXPECT_EQ(Opened("\"a\"\"b;c\";d"), (Rows{{"a\"b;c"}, {"d"}}));
    // They are written singly, because qualifiers within a field are never doubled.
    EXPECT_EQ(Written("\"say \"\"hi\"\" now\";b"), "say \"hi\" now;b");
    EXPECT_EQ(Written("\"x\"\":y\":2", pairs), "\"x\":y\":2");
}

TEST(ListText, AnOpenQualifierHidesNoSeparator)
{
    EXPECT_EQ(Opened("a\"b;c"), (Rows{{"ab"}, {"c"}}));
}

TEST(ListText, BlanksAroundEntriesAndFieldsAreDropped)
{
    EXPECT_EQ(Opened("  a ; b  "), (Rows{{"a"}, {"b"}}));
    EXPECT_EQ(Opened(" A : 1 ; B:2 ", pairs), (Rows{{"A", "1"}, {"B", "2"}}));
    EXPECT_EQ(Written("  a ; b  "), "a;b");
    EXPECT_EQ(Opened("\" a \";b"), (Rows{{" a "}, {"b"}}));
    EXPECT_EQ(Written("\" a \";b"), "a;b");
}

TEST(ListText, ABlankEntryIsAnEmptyRowThatIsNotWritten)
{
    EXPECT_EQ(Opened("a; ;b"), (Rows{{"a"}, {""}, {"b"}}));
    EXPECT_EQ(Written("a; ;b"), "a;b");
}

TEST(ListText, MissingFieldsAreEmptyAndSurplusOnesDropped)
{
    EXPECT_EQ(Opened("A;B:", pairs), (Rows{{"A", ""}, {"B", ""}}));
    EXPECT_EQ(Written("A;B:", pairs), "A:;B:");
    EXPECT_EQ(Opened("A:1:2", pairs), (Rows{{"A", "1"}}));
    EXPECT_EQ(Opened(":1", pairs), (Rows{{"", "1"}}));
    EXPECT_EQ(Opened("1,,3;a,b,c,d", quadruples), (Rows{{"1", "", "3", ""}, {"a", "b", "c", "d"}}));
    EXPECT_EQ(Written("1,,3;a,b,c,d", quadruples), "1,,3,;a,b,c,d");
    EXPECT_EQ(Written("\"a,b\",c", commaPairs), "\"a,b\",c");
}

TEST(ListText, FieldsAreReadByTheirNumber)
{
    EXPECT_EQ(ov::ReadField(u"a,\"b,c\", d ", 0, quadruples), u"a");
    EXPECT_EQ(ov::ReadField(u"a,\"b,c\", d ", 1, quadruples), u"b,c");
    EXPECT_EQ(ov::ReadField(u"a,\"b,c\", d ", 2, quadruples), u"d");
    EXPECT_EQ(ov::ReadField(u"a,\"b,c\", d ", 3, quadruples), u"");
    EXPECT_EQ(ov::ReadField(u"", 0, quadruples), u"");
    EXPECT_EQ(ov::ReadField(u"a:b", 0, oneField), u"a:b");
}

TEST(ListText, AFieldHoldsAtMost1024Characters)
{
    const ov::Text entry(2000, u'x');
    EXPECT_EQ(ov::ReadField(entry, 0, oneField).size(), 1024u);
    EXPECT_EQ(ov::ReadField(entry + u":y", 1, pairs), u"y");
}

TEST(ListText, SeparatorsAtTheEndsOfTheWholeTextAreTrimmed)
{
    EXPECT_EQ(Written("\";a\";\"b;\""), "a;b");
    EXPECT_EQ(Written("\"a;\";\";b\""), "a;;;b");
    EXPECT_EQ(Written("\";\""), "");
}

TEST(ListText, WithoutAQualifierQuotesAreOrdinary)
{
    constexpr ov::ListFormat plain{.qualifier = u'\0', .fieldSeparator = u':', .fieldCount = 2};
    EXPECT_EQ(Opened("\"a;b\":c", plain), (Rows{{"\"a", ""}, {"b\"", "c"}}));
}

TEST(ListRows, InsertingAnEmptyEntryIsIgnored)
{
    ov::ListRows list = Filled("a;b");
    EXPECT_EQ(list.Insert(1, u""), std::nullopt);
    EXPECT_EQ(RowsOf(list), (Rows{{"a"}, {"b"}}));
}

TEST(ListRows, AnEntryGoesToTheIndex)
{
    ov::ListRows list = Filled("a;b");
    EXPECT_EQ(list.Insert(1, u"c"), (ov::ListRows::Inserted{1, false}));
    EXPECT_EQ(list.Insert(99, u"d"), (ov::ListRows::Inserted{3, false}));
    EXPECT_EQ(RowsOf(list), (Rows{{"a"}, {"c"}, {"b"}, {"d"}}));
}

TEST(ListRows, AnInsertedDuplicateTakesTheOldRowsPlace)
{
    ov::ListRows list = Filled("a;b;c");
    EXPECT_EQ(list.Insert(3, u"A"), (ov::ListRows::Inserted{0, true}));
    EXPECT_EQ(RowsOf(list), (Rows{{"A"}, {"b"}, {"c"}}));
    // The typed text is compared as a whole: with blanks around it, it equals no row.
    EXPECT_EQ(list.Insert(3, u" b"), (ov::ListRows::Inserted{3, false}));
    EXPECT_EQ(RowsOf(list), (Rows{{"A"}, {"b"}, {"c"}, {"b"}}));
}

TEST(ListRows, MovingSwapsNeighbours)
{
    ov::ListRows list = Filled("a:1;\"b:c\":2;d:3", pairs);
    EXPECT_EQ(list.Move(1, 0), (ov::ListRows::Inserted{0, false}));
    EXPECT_EQ(RowsOf(list), (Rows{{"b:c", "2"}, {"a", "1"}, {"d", "3"}}));
    EXPECT_EQ(list.Move(1, 2), (ov::ListRows::Inserted{2, false}));
    EXPECT_EQ(RowsOf(list), (Rows{{"b:c", "2"}, {"d", "3"}, {"a", "1"}}));
}

TEST(ListRows, DuplicatesAreCheckedOnMovesToo)
{
    ov::ListRows list = Filled("a;b; A");
    ASSERT_EQ(list.Count(), 3u);
    EXPECT_EQ(list.Move(2, 1), (ov::ListRows::Inserted{0, true}));
    EXPECT_EQ(RowsOf(list), (Rows{{"A"}, {"b"}}));
}

TEST(ListRows, AnEmptyRowVanishesWhenMoved)
{
    ov::ListRows list = Filled("a; ;b");
    EXPECT_EQ(list.Move(1, 0), std::nullopt);
    EXPECT_EQ(RowsOf(list), (Rows{{"a"}, {"b"}}));
}

TEST(ListRows, DeletingARowThatIsNotThereDoesNothing)
{
    ov::ListRows list = Filled("a;b");
    list.Delete(2);
    EXPECT_EQ(list.Count(), 2u);
    list.Delete(0);
    EXPECT_EQ(RowsOf(list), (Rows{{"b"}}));
}

TEST(ListRows, RowsReadBackAsEntries)
{
    EXPECT_EQ(Entry(Filled("\"x;y\""), 0), "x;y");
    EXPECT_EQ(Entry(Filled("\"B:C\":2", pairs), 0), "\"B:C\":2");
    EXPECT_EQ(Entry(Filled("\"a;b\":c", pairs), 0), "a;b:c");
    EXPECT_EQ(Entry(Filled("A", pairs), 0), "A:");
}

TEST(ListRows, SortIsOrdinal)
{
    ov::ListRows list = Filled("b;a;C;10;9");
    list.Sort(true);
    EXPECT_EQ(RowsOf(list), (Rows{{"10"}, {"9"}, {"C"}, {"a"}, {"b"}}));
    list.Sort(false);
    EXPECT_EQ(RowsOf(list), (Rows{{"b"}, {"a"}, {"C"}, {"9"}, {"10"}}));
}

TEST(ListRows, SortKeepsTheOrderOfEqualRows)
{
    // Entries that differ in blanks read back as equal: every second row is "A", the others "B".
    std::string text = "A;B";
    for (int i = 0; i < 40; ++i)
        text += "; A; B";
    for (const bool ascending : {true, false}) {
        ov::ListRows list = Filled(text);
        const std::vector<std::size_t> places = list.Sort(ascending);
        ASSERT_EQ(places.size(), 82u);
        for (std::size_t row = 0; row < places.size(); ++row)
            EXPECT_EQ(places[row], row / 2 + ((row % 2 == 0) == ascending ? 0 : 41)) << row;
    }
}

TEST(ListRows, SortComparesFieldAfterField)
{
    ov::ListRows list = Filled("b:1;a:2;a:1", pairs);
    list.Sort(true);
    EXPECT_EQ(RowsOf(list), (Rows{{"a", "1"}, {"a", "2"}, {"b", "1"}}));
    list.Sort(false);
    EXPECT_EQ(RowsOf(list), (Rows{{"b", "1"}, {"a", "2"}, {"a", "1"}}));
}

TEST(ListRows, SortTellsWhereEachRowWent)
{
    ov::ListRows list = Filled("c;a;d;b");
    EXPECT_EQ(list.Sort(true), (std::vector<std::size_t>{2, 0, 3, 1}));
    EXPECT_EQ(list.Sort(false), (std::vector<std::size_t>{3, 2, 1, 0}));
}

TEST(ListRows, FillingEqualsInsertingOneByOne)
{
    constexpr char16_t letters[] = u"aAbB;;;::\"\"  ,";
    std::mt19937 random(20);
    for (const ov::ListFormat& format : {oneField, commas, pairs, commaPairs, quadruples}) {
        for (int round = 0; round < 2000; ++round) {
            ov::Text text(random() % 24, u'\0');
            for (char16_t& c : text)
                c = letters[random() % (std::size(letters) - 1)];
            ov::ListRows filled(format);
            filled.Fill(text);
            ASSERT_EQ(RowsOf(filled), RowsOf(InsertedOneByOne(text, format))) << ov::Utf8FromText(text);
        }
    }
}

TEST(ListRows, ALongListHasEachEntryOnceInItsFirstPlace)
{
    ov::Text text;
    for (int i = 0; i < 20000; ++i)
        text += u"Level " + ov::FormatInteger(i % 15000) + u";";
    for (int i = 0; i < 5000; ++i)
        text += u"LEVEL " + ov::FormatInteger(i) + u";";
    ov::ListRows list(oneField);
    list.Fill(text);
    ASSERT_EQ(list.Count(), 15000u);
    EXPECT_EQ(Entry(list, 0), "LEVEL 0");
    EXPECT_EQ(Entry(list, 4999), "LEVEL 4999");
    EXPECT_EQ(Entry(list, 5000), "Level 5000");
    EXPECT_EQ(Entry(list, 14999), "Level 14999");
}

} // namespace

#include "config/core/setting_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace ov
{
namespace
{

using namespace std::string_literals;

std::vector<Text> NamesInOrder(const SettingTable& table)
{
    std::vector<Text> names;
    table.VisitInOrder([&names](const SettingRecord& record) {
        names.emplace_back(record.name);
        return true;
    });
    return names;
}

TEST(SettingTable, ValueGrowsAtBothEnds)
{
    SettingTable table;
    const SettingTable::Index index = table.Insert(u"A", u"m", SettingKindInteger, u"# c\n");
    Text expected = u"m";
    for (int i = 0; i < 500; ++i) {
        const Text item = FormatInteger(i);
        if (i % 3 == 0) {
            table.ExtendValue(index, item + u";", u"", SettingKindText);
            expected.insert(0, item + u";");
        } else {
            table.ExtendValue(index, u"", u";" + item, SettingKindText);
            expected += u";" + item;
        }
        ASSERT_EQ(table.At(index).value, expected);
    }
    EXPECT_EQ(table.At(index).comment, u"# c\n");
    EXPECT_EQ(table.At(index).kind, SettingKindText);
}

TEST(SettingTable, GrowingValueTurnsWideAndStaysWhole)
{
    for (int turn = 0; turn < 40; ++turn) {
        SettingTable table;
        const SettingTable::Index index = table.Insert(u"A", u"\u00E9", SettingKindText, u"");
        Text expected = u"\u00E9";
        for (int i = 0; i < 80; ++i) {
            const Text before = i % 4 == 0 ? u"b" : u"";
            const Text after = i == turn ? u"\u20AC" : u"xyz";
            table.ExtendValue(index, before, after, SettingKindText);
            expected = before + expected + after;
            ASSERT_EQ(table.At(index).value, expected) << turn << ' ' << i;
            ASSERT_EQ(table.At(index).value.IsNarrow(), i < turn);
        }
    }
}

TEST(SettingTable, ValueIsExtendedByPartsOfItself)
{
    for (const Text& start : {Text(u"abc"), Text(u"ab\u20AC")}) {
        SettingTable table;
        const SettingTable::Index index = table.Insert(u"A", start, SettingKindText, u"");
        Text expected = start;
        // In some turns the value has room after and before it, in others it has none.
        for (int i = 0; i < 12; ++i) {
            const CompactView value = table.At(index).value;
            if (i % 3 == 0)
                table.ExtendValue(index, value, {}, SettingKindText);
            else if (i % 3 == 1)
                table.ExtendValue(index, {}, value, SettingKindText);
            else
                table.ExtendValue(index, value, value, SettingKindText);
            expected = i % 3 == 2 ? expected + expected + expected : expected + expected;
            ASSERT_EQ(table.At(index).value, expected) << i;
        }
    }
}

TEST(SettingTable, ValueIsReplacedByPartsOfItself)
{
    SettingTable table;
    const SettingTable::Index index = table.Insert(u"A", u"0123456789", SettingKindText, u"");
    table.SetValue(index, CompactView::OfBytes(table.At(index).value.Narrow().substr(2, 6)), SettingKindText);
    EXPECT_EQ(table.At(index).value, u"234567");
    table.SetValue(index, u"\u20AC0123456789", SettingKindText);
    table.SetValue(index, table.At(index).value.Wide().substr(3), SettingKindText); // turns narrow
    EXPECT_EQ(table.At(index).value, u"23456789");
    EXPECT_TRUE(table.At(index).value.IsNarrow());
    table.SetValue(index, table.At(index).value, SettingKindText);
    EXPECT_EQ(table.At(index).value, u"23456789");
}

TEST(SettingTable, ValuesSwitchBetweenTheFormsOnUpdate)
{
    SettingTable table;
    const SettingTable::Index index = table.Insert(u"A", u"1", SettingKindInteger, u"# c \u20AC\n");
    for (const Text& value : {Text(u"\u20AC"), Text(u"ab"), Text(), Text(u"\u4E00\u4E01"), Text(u"\u00FF")}) {
        table.SetValue(index, value, SettingKindText);
        EXPECT_EQ(table.At(index).value, value);
        table.ExtendValue(index, u"<", u"\u0100>", SettingKindText);
        EXPECT_EQ(table.At(index).value, u"<" + value + u"\u0100>");
    }
    EXPECT_EQ(table.At(index).name, u"A");
    EXPECT_EQ(table.At(index).comment, u"# c \u20AC\n");
}

TEST(SettingTable, UpdatesReuseTheirRoom)
{
    SettingTable table;
    const SettingTable::Index index = table.Insert(u"A", Text(100, u'a'), SettingKindText, u"");
    for (int i = 0; i < 100000; ++i)
        table.SetValue(index, Text(100, static_cast<char16_t>(i % 2 == 0 ? u'b' : u'\u20AC')),
                       SettingKindText);
    EXPECT_LT(table.TextBytes(), 20000u);
    EXPECT_EQ(table.At(index).value, Text(100, u'\u20AC'));
}

TEST(SettingTable, GrowingUpdatesLeaveLittleBehind)
{
    SettingTable table;
    const SettingTable::Index index = table.Insert(u"A", u"", SettingKindText, u"");
    for (std::size_t length = 1; length <= 2000; ++length)
        table.SetValue(index, TextView(Text(length, u'v')), SettingKindText);
    EXPECT_LT(table.TextBytes(), 20000u);
    EXPECT_EQ(table.At(index).value.size(), 2000u);
}

TEST(SettingTable, NamesAreFoundInWhateverFormAndOrderTheyCame)
{
    const std::vector<Text> names{u"B",      u"C", u"\u00E9",       u"\u00FF\u00FF",
                                  u"\u0100", u"A", u"\u00E9\u20AC", u""};
    SettingTable table;
    for (const Text& name : names) {
        EXPECT_EQ(table.Find(name), SettingTable::kNone);
        table.Insert(name, name + u"!", SettingKindText, u"");
        // Found at every stage: the first five are inserted in order.
        for (SettingTable::Index index = 0; index < table.Count(); ++index)
            EXPECT_EQ(table.Find(names[index]), index);
    }
    EXPECT_EQ(table.Find(CompactView::OfBytes("\xE9")), 2u);
    EXPECT_EQ(table.Find(CompactView::OfBytes("\xFF\xFF")), 3u);
    EXPECT_EQ(table.Find(CompactView::OfBytes("\xE9\xAC")), SettingTable::kNone);
    std::vector<Text> sorted = names;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(NamesInOrder(table), sorted);
}

// Common beginnings, NUL, units around the limit of 8 bits and long equal parts.
TEST(SettingTable, NamesComeOutInOrdinalOrder)
{
    const Text units = u"\0AB\xFE\xFF\x100\xFFFF"s;
    std::mt19937 engine{20261121};
    for (int round = 0; round < 200; ++round) {
        const Text beginning(engine() % 4, u'_');
        SettingTable table;
        std::vector<Text> names;
        for (int i = 0; i < 40; ++i) {
            Text name = beginning + Text(engine() % 2 * 9, u'A');
            for (std::size_t length = engine() % 5; length > 0; --length)
                name += units[engine() % units.size()];
            if (table.Find(name) != SettingTable::kNone)
                continue;
            table.Insert(name, u"", SettingKindText, u"");
            names.push_back(name);
        }
        std::sort(names.begin(), names.end());
        ASSERT_EQ(NamesInOrder(table), names) << "round " << round;
    }
}

TEST(SettingTable, NamesInOrderAreFoundWithAndWithoutNeighbours)
{
    SettingTable table;
    for (char16_t unit = u'b'; unit <= u'z'; unit = static_cast<char16_t>(unit + 2)) {
        table.Insert(Text(1, unit), u"", SettingKindText, u"");
        for (char16_t wanted = u'a'; wanted <= u'{'; ++wanted) {
            const bool there = wanted <= unit && wanted % 2 == u'b' % 2;
            const SettingTable::Index index = table.Find(Text(1, wanted));
            ASSERT_EQ(index != SettingTable::kNone, there);
            if (there) {
                ASSERT_EQ(table.At(index).name, Text(1, wanted));
            }
        }
    }
}

} // namespace
} // namespace ov

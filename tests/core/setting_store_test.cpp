#include "config/core/setting_store.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace ov
{
namespace
{

std::vector<Text> NamesInOrder(const SettingStore& store, TableSelector table)
{
    std::vector<Text> names;
    store.VisitInOrder(table, [&names](const SettingRecord& record) {
        names.emplace_back(record.name);
        return true;
    });
    return names;
}

TEST(SettingStore, AbsentNameGivesAnEmptyValueAndAClearFlag)
{
    const SettingStore store;
    EXPECT_EQ(store.GetSettingValue(u"A", kCurrentTable), u"");
    EXPECT_FALSE(store.GetSettingFlag(u"A", kCurrentTable));
    EXPECT_FALSE(store.HasSetting(u"A", kCurrentTable));
}

TEST(SettingStore, AbsentVariableDiffersFromAnEmptyOne)
{
    SettingStore store;
    store.SetSetting(u"A", u"", SettingKindText, u"", kCurrentTable);
    EXPECT_TRUE(store.HasSetting(u"A", kCurrentTable));
    EXPECT_FALSE(store.HasSetting(u"B", kCurrentTable));
    EXPECT_EQ(store.GetSettingValue(u"A", kCurrentTable), u"");
}

TEST(SettingStore, FlagIsTrueOnlyForTheExactTextOne)
{
    SettingStore store;
    for (const char16_t* value : {u" 1", u"1 ", u"01", u"true", u"Y", u"0", u""}) {
        store.SetSetting(u"A", value, SettingKindFlag, u"", kCurrentTable);
        EXPECT_FALSE(store.GetSettingFlag(u"A", kCurrentTable)) << Utf8FromText(value);
    }
    store.SetSetting(u"A", u"1", SettingKindText, u"", kCurrentTable);
    EXPECT_TRUE(store.GetSettingFlag(u"A", kCurrentTable));
}

TEST(SettingStore, SameValueWithAnotherCommentStoresNothingAndMarksNothing)
{
    SettingStore store;
    store.SetSetting(u"A", u"1", SettingKindText, u"# old\n", kCurrentTable);
    store.SetModified(false);
    store.SetSetting(u"A", u"1", SettingKindText, u"# new\n", kCurrentTable);
    EXPECT_EQ(store.FindSetting(u"A", kCurrentTable)->comment, u"# old\n");
    EXPECT_FALSE(store.IsModified());
}

TEST(SettingStore, ChangedValueKeepsTheComment)
{
    SettingStore store;
    store.SetSetting(u"A", u"1", SettingKindText, u"# old\n", kCurrentTable);
    store.SetSetting(u"A", u"2", SettingKindText, u"# new\n", kCurrentTable);
    EXPECT_EQ(store.FindSetting(u"A", kCurrentTable)->comment, u"# old\n");
    EXPECT_EQ(store.GetSettingValue(u"A", kCurrentTable), u"2");
}

TEST(SettingStore, EmptyCommentIsKeptOnUpdateToo)
{
    SettingStore store;
    store.SetSetting(u"A", u"1", SettingKindText, u"", kCurrentTable);
    store.SetSetting(u"A", u"2", SettingKindText, u"# new\n", kCurrentTable);
    EXPECT_EQ(store.FindSetting(u"A", kCurrentTable)->comment, u"");
}

TEST(SettingStore, ValueDifferingOnlyInCaseSetsTheModifiedMark)
{
    SettingStore store;
    store.SetSetting(u"A", u"abc", SettingKindText, u"", kCurrentTable);
    store.SetModified(false);
    store.SetSetting(u"A", u"aBc", SettingKindText, u"", kCurrentTable);
    EXPECT_TRUE(store.IsModified());
}

TEST(SettingStore, OtherKindAloneIsStoredWithoutTheModifiedMark)
{
    SettingStore store;
    store.SetSetting(u"A", u"1", SettingKindInteger, u"# c\n", kCurrentTable);
    store.SetModified(false);
    store.SetSetting(u"A", u"1", SettingKindFlag, u"# c\n", kCurrentTable);
    EXPECT_FALSE(store.IsModified());
    EXPECT_EQ(store.FindSetting(u"A", kCurrentTable)->kind, SettingKindFlag);
}

TEST(SettingStore, InsertionSetsTheModifiedMark)
{
    SettingStore store;
    EXPECT_FALSE(store.IsModified());
    store.SetSetting(u"A", u"", SettingKindText, u"", kCurrentTable);
    EXPECT_TRUE(store.IsModified());
}

TEST(SettingStore, SetSettingNeverClearsTheModifiedMark)
{
    SettingStore store;
    store.SetSetting(u"A", u"1", SettingKindText, u"", kCurrentTable);
    store.SetSetting(u"A", u"1", SettingKindText, u"", kCurrentTable);
    EXPECT_TRUE(store.IsModified());
}

TEST(SettingStore, DefaultTableNeverSetsTheModifiedMark)
{
    SettingStore store;
    store.SetSetting(u"A", u"1", SettingKindText, u"", kDefaultTable);
    store.SetSetting(u"A", u"2", SettingKindText, u"", kDefaultTable);
    EXPECT_FALSE(store.IsModified());
    EXPECT_EQ(store.GetSettingValue(u"A", kDefaultTable), u"2");
}

TEST(SettingStore, NamesDifferingOnlyInCaseAreTwoRecords)
{
    SettingStore store;
    store.SetSetting(u"Name", u"1", SettingKindText, u"", kCurrentTable);
    store.SetSetting(u"NAME", u"2", SettingKindText, u"", kCurrentTable);
    EXPECT_EQ(store.Count(kCurrentTable), 2u);
    EXPECT_EQ(store.GetSettingValue(u"Name", kCurrentTable), u"1");
    EXPECT_EQ(store.GetSettingValue(u"NAME", kCurrentTable), u"2");
}

TEST(SettingStore, AnySelectorButZeroIsTheDefaultTable)
{
    SettingStore store;
    store.SetSetting(u"A", u"1", SettingKindText, u"", TableSelector{-5});
    EXPECT_TRUE(store.HasSetting(u"A", kDefaultTable));
    EXPECT_TRUE(store.HasSetting(u"A", TableSelector{17}));
    EXPECT_FALSE(store.HasSetting(u"A", kCurrentTable));
}

TEST(SettingStore, OrderIsOrdinal)
{
    SettingStore store;
    for (const char16_t* name : {u"b", u"_A", u"B", u"AB", u"1", u"A", u"\u00E9", u"A_"})
        store.SetSetting(name, u"", SettingKindText, u"", kCurrentTable);
    EXPECT_EQ(NamesInOrder(store, kCurrentTable),
              (std::vector<Text>{u"1", u"A", u"AB", u"A_", u"B", u"_A", u"b", u"\u00E9"}));
}

TEST(SettingStore, VisitStopsWhenTold)
{
    SettingStore store;
    for (const char16_t* name : {u"A", u"B", u"C"})
        store.SetSetting(name, u"", SettingKindText, u"", kCurrentTable);
    int visits = 0;
    store.VisitInOrder(kCurrentTable, [&visits](const SettingRecord&) { return ++visits < 2; });
    EXPECT_EQ(visits, 2);
}

TEST(SettingStore, EmptyTableInItsPlaceClearsTheMarkOnlyForTheCurrentOne)
{
    SettingStore store;
    store.SetSetting(u"A", u"1", SettingKindText, u"", kCurrentTable);
    store.SetSetting(u"B", u"1", SettingKindText, u"", kDefaultTable);
    store.Replace(kDefaultTable, SettingTable());
    EXPECT_TRUE(store.IsModified());
    EXPECT_EQ(store.Count(kDefaultTable), 0u);
    EXPECT_EQ(store.Count(kCurrentTable), 1u);
    store.Replace(kCurrentTable, SettingTable());
    EXPECT_FALSE(store.IsModified());
    EXPECT_EQ(store.Count(kCurrentTable), 0u);
}

TEST(SettingStore, EmptiedTableTakesANewComment)
{
    SettingStore store;
    store.SetSetting(u"A", u"1", SettingKindText, u"# old\n", kCurrentTable);
    store.Replace(kCurrentTable, SettingTable());
    store.SetSetting(u"A", u"1", SettingKindText, u"# new\n", kCurrentTable);
    EXPECT_EQ(store.FindSetting(u"A", kCurrentTable)->comment, u"# new\n");
}

TEST(SettingStore, ValuesOfAnyLengthReplaceOneAnother)
{
    SettingStore store;
    for (const std::size_t length : {3u, 100000u, 0u, 5u, 20000u, 100001u}) {
        const Text value(length, u'v');
        store.SetSetting(u"A", value, SettingKindText, u"", kCurrentTable);
        EXPECT_EQ(store.GetSettingValue(u"A", kCurrentTable), value);
    }
}

TEST(SettingStore, ManyVariablesAreAllFound)
{
    SettingStore store;
    constexpr int count = 20000;
    for (int i = count; i > 0; --i)
        store.SetSetting(u"NAME_" + FormatInteger(i), FormatInteger(i), SettingKindInteger, u"",
                         kCurrentTable);
    ASSERT_EQ(store.Count(kCurrentTable), static_cast<std::size_t>(count));
    for (int i = 1; i <= count; ++i)
        ASSERT_EQ(store.GetSettingValue(u"NAME_" + FormatInteger(i), kCurrentTable), FormatInteger(i));
    const std::vector<Text> names = NamesInOrder(store, kCurrentTable);
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
}

} // namespace
} // namespace ov

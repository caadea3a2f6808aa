// Colour Table: the list for the treatment of existing elements.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"

#include <gtest/gtest.h>

namespace
{
using ov::kCurrentTable;

constexpr char16_t kRemap[] = u"_ORTHOVAL_PROMPT_COLOURTABLE_REMAP";

TEST(ColourTablePage, UserIsPromptedUnlessTheFileSaysOtherwise)
{
    ov::PageValues values(ov::kColourTableRows);
    EXPECT_EQ(values.NumberOf(kRemap), 2);
    ov::SettingStore store;
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.NumberOf(kRemap), 2);
    store.SetSetting(kRemap, u"1 of them", ov::SettingKindText, u"", kCurrentTable);
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.NumberOf(kRemap), 1);
    values.Save(store, true);
    EXPECT_EQ(store.GetSettingValue(kRemap, kCurrentTable), u"1");
    values.Load(store, ov::kDefaultTable);
    EXPECT_EQ(values.NumberOf(kRemap), 1);
}

TEST(ColourTablePage, EntriesOfTheListStandInOrder)
{
    const auto entries = ov::kColourTableRows.entries;
    ASSERT_EQ(entries.size(), 1u);
    ASSERT_EQ(entries[0].stringIds.size(), 3u);
    EXPECT_EQ(entries[0].stringIds[0], 5037u);
    EXPECT_EQ(ov::FindString(5037), u"Leave existing elements as-is");
    EXPECT_EQ(entries[0].stringIds[1], 5038u);
    EXPECT_EQ(ov::FindString(5038), u"Automatically remap existing elements to the closest matching colour");
    EXPECT_EQ(entries[0].stringIds[2], 5039u);
    EXPECT_EQ(ov::FindString(5039), u"Prompt the user before doing anything");
}

TEST(ColourTablePage, AllowedTablesAreAListOfFilesAndARefusalLeavesTheFocus)
{
    const ov::BrowseRow& browse = ov::kColourTableRows.browses[0];
    EXPECT_EQ(browse.buttonId, 9329);
    EXPECT_EQ(browse.kind, ov::BrowseKind::List);
    EXPECT_EQ(browse.browsing, 1u);
    EXPECT_EQ(browse.separator, u';');
    EXPECT_EQ(browse.fieldSeparator, 0);
    EXPECT_EQ(browse.fieldCount, 1u);
    EXPECT_EQ(browse.focusOnRefusal, ov::kFocusStays);
}

} // namespace

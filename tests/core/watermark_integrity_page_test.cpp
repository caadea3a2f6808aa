// Behaviour that only the Watermark Integrity page has.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
using ov::kCurrentTable;
using ov::PageValues;
using ov::SettingStore;
using ov::Text;

constexpr const char16_t* lists[] = {
    u"_ORTHOVAL_WATERMARKS_CHECK_METADATA",
    u"_ORTHOVAL_WATERMARKS_CHECK_RASTER",
    u"_ORTHOVAL_WATERMARKS_OVERWRITE",
};
constexpr char16_t clipped[] = u"_ORTHOVAL_WATERMARKS_CHECK_CLIPPEDREFELMS";

std::string SavedAfterLoading(const char16_t* variable, const char16_t* stored, bool hasWindow = true)
{
    SettingStore store;
    if (stored != nullptr)
        store.SetSetting(variable, stored, ov::SettingKindText, u"", kCurrentTable);
    PageValues values(ov::kWatermarkIntegrityRows);
    if (hasWindow)
        values.Load(store, kCurrentTable);
    values.Save(store, hasWindow);
    return store.HasSetting(variable, kCurrentTable)
               ? ov::Utf8FromText(store.GetSettingValue(variable, kCurrentTable))
               : "absent";
}

TEST(WatermarkIntegrityPage, AbsentListsAreTheUsersAndSavedAsMinusOne)
{
    for (const char16_t* list : lists) {
        EXPECT_EQ(SavedAfterLoading(list, nullptr), "-1");
        EXPECT_EQ(SavedAfterLoading(list, u""), "-1");
    }
}

TEST(WatermarkIntegrityPage, OverwriteOfTwoIsTheUsersAndSavedAsMinusOne)
{
    EXPECT_EQ(SavedAfterLoading(u"_ORTHOVAL_WATERMARKS_OVERWRITE", u"2"), "-1");
}

TEST(WatermarkIntegrityPage, AlwaysIsTheFirstEntryAndNeverTheSecond)
{
    SettingStore store;
    PageValues values(ov::kWatermarkIntegrityRows);
    for (const char16_t* list : lists) {
        store.SetSetting(list, u"1", ov::SettingKindText, u"", kCurrentTable);
        values.Load(store, kCurrentTable);
        EXPECT_EQ(values.NumberOf(list), 0);
        store.SetSetting(list, u"0", ov::SettingKindText, u"", kCurrentTable);
        values.Load(store, kCurrentTable);
        EXPECT_EQ(values.NumberOf(list), 1);
    }
}

TEST(WatermarkIntegrityPage, ClippedElementsAreOnOrOffOnly)
{
    EXPECT_EQ(SavedAfterLoading(clipped, u"-1"), "0");
    EXPECT_EQ(SavedAfterLoading(clipped, u"1"), "1");
    EXPECT_EQ(SavedAfterLoading(clipped, u"-1", false), "-1");
}

TEST(WatermarkIntegrityPage, NeverShownLeavesTheListsAloneAndAddsTheRest)
{
    for (const char16_t* list : lists) {
        EXPECT_EQ(SavedAfterLoading(list, nullptr, false), "absent");
        EXPECT_EQ(SavedAfterLoading(list, u"2", false), "2");
    }
    EXPECT_EQ(SavedAfterLoading(u"_ORTHOVAL_WATERMARKS_CONFORM", nullptr, false), "0");
    EXPECT_EQ(SavedAfterLoading(u"_ORTHOVAL_WATERMARK_LEVEL_EXCLUSIONS", nullptr, false), "");
}

TEST(WatermarkIntegrityPage, IsSavedFromTheInvalidationToTheLists)
{
    std::vector<std::string> order;
    for (const ov::SettingRow& row : ov::kWatermarkIntegrityRows.settings)
        order.push_back(ov::Utf8FromText(row.variable).substr(std::string("_ORTHOVAL_").size()));
    EXPECT_EQ(order, (std::vector<std::string>{"WATERMARKS_INSTANTINVALIDATE", "REPORT_DOUBLECROSS_ON_FAIL",
                                               "WATERMARKS_CONFORM", "WATERMARKS_CHECK_FONTNUMS",
                                               "WATERMARKS_CHECK_FONTNAMES",
                                               "WATERMARKS_CHECK_CLIPPEDREFELMS", "WATERMARK_CELL_EXCLUSIONS",
                                               "WATERMARK_LEVEL_EXCLUSIONS", "WATERMARKS_CHECK_METADATA",
                                               "WATERMARKS_CHECK_RASTER", "WATERMARKS_OVERWRITE"}));
}

TEST(WatermarkIntegrityPage, ExclusionsAreSeparatedByCommasAndTheirRefusalsDiffer)
{
    ASSERT_GE(ov::kWatermarkIntegrityRows.browses.size(), 2u);
    for (const ov::BrowseRow& row : ov::kWatermarkIntegrityRows.browses) {
        EXPECT_EQ(row.browsing, 0u);
        EXPECT_EQ(row.separator, u',');
        EXPECT_EQ(row.fieldCount, 1u);
        EXPECT_EQ(row.focusOnRefusal, row.buttonId == 3317 ? 3313 : ov::kFocusRemoved);
    }
}

} // namespace

// Behaviour that only the Watermark Placement page has.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

ov::SettingKind KindOf(ov::TextView variable)
{
    const ov::PageValues values(ov::kWatermarkPlacementRows);
    return values.Rows()[values.FindRow(variable)].kind;
}

TEST(WatermarkPlacementPage, FourTextsGoIntoTheFileAsPaths)
{
    for (const char16_t* variable :
         {u"_ORTHOVAL_REPLACETEXT_DATE_STRING", u"_ORTHOVAL_REPLACETEXT_DATE_FORMAT",
          u"_ORTHOVAL_REPLACETEXT_DICTVERSION_STRING", u"_ORTHOVAL_REPLACETEXT_APP_VERSION_STRING"})
        EXPECT_EQ(KindOf(variable), ov::SettingKindPath);
    EXPECT_EQ(KindOf(u"_ORTHOVAL_REPLACETEXT_USERDEFINED_STRING"), ov::SettingKindText);
    EXPECT_EQ(KindOf(u"_ORTHOVAL_WATERMARK_CROSS"), ov::SettingKindText);
    EXPECT_EQ(KindOf(u"_ORTHOVAL_REPLACETEXT_LINESPACING"), ov::SettingKindInteger);
}

TEST(WatermarkPlacementPage, LineSpacingIsKeptAsTyped)
{
    ov::SettingStore store;
    ov::PageValues values(ov::kWatermarkPlacementRows);
    values.Load(store, ov::kCurrentTable);
    values.TextOf(u"_ORTHOVAL_REPLACETEXT_LINESPACING") = u" 0.5 ";
    values.Save(store, true);
    EXPECT_EQ(store.GetSettingValue(u"_ORTHOVAL_REPLACETEXT_LINESPACING", ov::kCurrentTable), u" 0.5 ");
}

TEST(WatermarkPlacementPage, IsSavedFromTheScalingToTheUsersString)
{
    std::vector<std::string> order;
    for (const ov::SettingRow& row : ov::kWatermarkPlacementRows.settings)
        order.push_back(ov::Utf8FromText(row.variable).substr(std::string("_ORTHOVAL_").size()));
    EXPECT_EQ(order,
              (std::vector<std::string>{"REPLACETEXT_LINESPACING_SCALED", "WATERMARK_CROSS",
                                        "REPLACETEXT_DATE_STRING", "REPLACETEXT_DATE_FORMAT",
                                        "REPLACETEXT_APP_VERSION_STRING", "REPLACETEXT_DICTVERSION_STRING",
                                        "REPLACETEXT_LINESPACING", "REPLACETEXT_USERDEFINED_STRING"}));
}

TEST(WatermarkPlacementPage, CrossIsAListWhoseRefusalGoesToItsEdit)
{
    ASSERT_GE(ov::kWatermarkPlacementRows.browses.size(), 1u);
    const ov::BrowseRow& row = ov::kWatermarkPlacementRows.browses[0];
    EXPECT_EQ(row.buttonId, 3321);
    EXPECT_EQ(row.browsing, 0u);
    EXPECT_EQ(row.separator, u';');
    EXPECT_EQ(row.fieldCount, 1u);
    EXPECT_EQ(row.focusOnRefusal, 3302);
}

} // namespace

// The Score Weighting page: texts that bars move.
#include "pages/core/weighting_rows.h"

#include "controls/core/tooltip_markup.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"
#include "resources/page_ids.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

TEST(WeightingPage, WritesTheTextStyleBeforeTheTextHeight)
{
    std::vector<std::string> variables;
    for (const ov::SettingRow& row : ov::WeightingRows().settings)
        variables.push_back(ov::Utf8FromText(row.variable));
    EXPECT_EQ(variables, (std::vector<std::string>{
                             "_ORTHOVAL_WEIGHTING_COLOUR", "_ORTHOVAL_WEIGHTING_WEIGHT",
                             "_ORTHOVAL_WEIGHTING_STYLE", "_ORTHOVAL_WEIGHTING_LEVEL_NAME",
                             "_ORTHOVAL_WEIGHTING_CELL_NAME", "_ORTHOVAL_WEIGHTING_TEXTSTYLE",
                             "_ORTHOVAL_WEIGHTING_TEXTHEIGHT", "_ORTHOVAL_WEIGHTING_DIMENSIONSTYLE"}));
}

TEST(WeightingPage, TakesTheCommentsFromTheBars)
{
    ov::SettingStore store;
    ov::PageValues values(ov::WeightingRows());
    std::vector<int> asked;
    values.Save(store, true, [&](int control) {
        asked.push_back(control);
        return ov::Text();
    });
    EXPECT_EQ(asked, (std::vector<int>{11025, 11033, 11038, 11029, 11027, 11042, 11045, 11048}));
}

TEST(WeightingPage, AbsentWeightIsSavedAsZero)
{
    ov::SettingStore store;
    ov::PageValues values(ov::WeightingRows());
    values.Load(store, ov::kCurrentTable);
    values.Save(store, true, [](int) { return ov::Text(); });
    EXPECT_EQ(store.Count(ov::kCurrentTable), 8u);
    for (const ov::SettingRow& row : ov::WeightingRows().settings)
        EXPECT_EQ(store.GetSettingValue(row.variable, ov::kCurrentTable), u"0");
}

TEST(WeightingPage, WeightBeyondTheBarIsSavedAsItStands)
{
    ov::SettingStore store;
    store.SetSetting(u"_ORTHOVAL_WEIGHTING_STYLE", u"25", ov::SettingKindInteger, u"", ov::kCurrentTable);
    store.SetSetting(u"_ORTHOVAL_WEIGHTING_COLOUR", u"much", ov::SettingKindInteger, u"", ov::kCurrentTable);
    ov::PageValues values(ov::WeightingRows());
    values.Load(store, ov::kCurrentTable);
    values.Save(store, true, [](int) { return ov::Text(); });
    EXPECT_EQ(store.GetSettingValue(u"_ORTHOVAL_WEIGHTING_STYLE", ov::kCurrentTable), u"25");
    EXPECT_EQ(store.GetSettingValue(u"_ORTHOVAL_WEIGHTING_COLOUR", ov::kCurrentTable), u"much");
}

// Three helps name variables that nothing stores.
TEST(WeightingPage, ThreeHelpsKeepTheirOlderNames)
{
    EXPECT_EQ(ov::VariableName(ov::FindString(9327)), u"_ORTHOVAL_WEIGHTING_LEVEL");
    EXPECT_EQ(ov::VariableName(ov::FindString(9328)), u"_ORTHOVAL_WEIGHTING_CELLNAME");
    EXPECT_EQ(ov::VariableName(ov::FindString(9329)), u"_ORTHOVAL_WEIGHTING_DIMSTYLE");
}

} // namespace

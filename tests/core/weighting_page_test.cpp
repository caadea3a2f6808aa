// The Score Weighting page: texts that are edited by track bars.
#include "controls/core/tooltip_markup.h"
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace
{

TEST(WeightingPage, WritesTheTextStyleBeforeTheTextHeight)
{
    std::vector<std::string> variables;
    for (const ov::SettingRow& row : ov::kWeightingRows.settings)
        variables.push_back(ov::Utf8FromText(row.variable));
    EXPECT_EQ(variables, (std::vector<std::string>{
                             "_ORTHOVAL_WEIGHTING_COLOUR", "_ORTHOVAL_WEIGHTING_WEIGHT",
                             "_ORTHOVAL_WEIGHTING_STYLE", "_ORTHOVAL_WEIGHTING_LEVEL_NAME",
                             "_ORTHOVAL_WEIGHTING_CELL_NAME", "_ORTHOVAL_WEIGHTING_TEXTSTYLE",
                             "_ORTHOVAL_WEIGHTING_TEXTHEIGHT", "_ORTHOVAL_WEIGHTING_DIMENSIONSTYLE"}));
}

TEST(WeightingPage, TakesTheCommentsFromTheBars)
{
    std::vector<unsigned> comments;
    for (const ov::SettingRow& row : ov::kWeightingRows.settings)
        comments.push_back(row.commentHelpId);
    EXPECT_EQ(comments, (std::vector<unsigned>{9317, 9321, 9326, 9327, 9328, 9330, 9332, 9329}));
}

TEST(WeightingPage, HasABarForEachSetting)
{
    const std::map<std::string, int> expected = {
        {"_ORTHOVAL_WEIGHTING_COLOUR", 11025},    {"_ORTHOVAL_WEIGHTING_WEIGHT", 11033},
        {"_ORTHOVAL_WEIGHTING_STYLE", 11038},     {"_ORTHOVAL_WEIGHTING_LEVEL_NAME", 11029},
        {"_ORTHOVAL_WEIGHTING_CELL_NAME", 11027}, {"_ORTHOVAL_WEIGHTING_TEXTHEIGHT", 11045},
        {"_ORTHOVAL_WEIGHTING_TEXTSTYLE", 11042}, {"_ORTHOVAL_WEIGHTING_DIMENSIONSTYLE", 11048},
    };
    std::map<std::string, int> found;
    for (const ov::BarRow& bar : ov::kWeightingRows.bars) {
        found[ov::Utf8FromText(bar.variable)] = bar.controlId;
        EXPECT_EQ(bar.highest, 20);
    }
    EXPECT_EQ(found, expected);
}

TEST(WeightingPage, AbsentWeightIsSavedAsZero)
{
    ov::SettingStore store;
    ov::PageValues values(ov::kWeightingRows);
    values.Load(store, ov::kCurrentTable);
    values.Save(store, true);
    EXPECT_EQ(store.Count(ov::kCurrentTable), 8u);
    for (const ov::SettingRow& row : ov::kWeightingRows.settings)
        EXPECT_EQ(store.GetSettingValue(row.variable, ov::kCurrentTable), u"0");
}

TEST(WeightingPage, WeightBeyondTheBarIsSavedAsItStands)
{
    ov::SettingStore store;
    store.SetSetting(u"_ORTHOVAL_WEIGHTING_STYLE", u"25", ov::SettingKindInteger, u"", ov::kCurrentTable);
    store.SetSetting(u"_ORTHOVAL_WEIGHTING_COLOUR", u"much", ov::SettingKindInteger, u"", ov::kCurrentTable);
    ov::PageValues values(ov::kWeightingRows);
    values.Load(store, ov::kCurrentTable);
    values.Save(store, true);
    EXPECT_EQ(store.GetSettingValue(u"_ORTHOVAL_WEIGHTING_STYLE", ov::kCurrentTable), u"25");
    EXPECT_EQ(store.GetSettingValue(u"_ORTHOVAL_WEIGHTING_COLOUR", ov::kCurrentTable), u"much");
}

// Three help texts name variables that are not stored.
TEST(WeightingPage, ThreeHelpsKeepTheirOlderNames)
{
    EXPECT_EQ(ov::VariableName(ov::FindString(9327)), u"_ORTHOVAL_WEIGHTING_LEVEL");
    EXPECT_EQ(ov::VariableName(ov::FindString(9328)), u"_ORTHOVAL_WEIGHTING_CELLNAME");
    EXPECT_EQ(ov::VariableName(ov::FindString(9329)), u"_ORTHOVAL_WEIGHTING_DIMSTYLE");
}

} // namespace

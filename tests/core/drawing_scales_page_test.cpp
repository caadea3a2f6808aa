// Drawing Scales: brackets around the list and the code of the built-in scales.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/drawing_scales/ids.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>

namespace
{
using ov::kCurrentTable;
using ov::kDefaultTable;
using ov::Text;

constexpr char16_t kList[] = u"_ORTHOVAL_DRAWINGSCALE_VALUES";
constexpr char16_t kSource[] = u"_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT";

class DrawingScalesPage : public testing::Test
{
  protected:
    void Put(ov::TextView variable, ov::TextView value, ov::TableSelector table = kCurrentTable)
    {
        m_store.SetSetting(variable, value, ov::SettingKindText, u"", table);
    }
    void Load(ov::TableSelector table = kCurrentTable) { m_values.Load(m_store, table); }
    void Save(bool hasWindow = true) { m_values.Save(m_store, hasWindow); }
    Text Saved(ov::TextView variable) { return m_store.GetSettingValue(variable, kCurrentTable); }
    bool BuiltIn() { return m_values.CompanionNumberOf(IDC_DRAWING_SCALES_USE_BUILT_IN) != 0; }
    bool Others() { return m_values.CompanionNumberOf(IDC_DRAWING_SCALES_ALLOW_OTHERS) != 0; }

    ov::SettingStore m_store;
    ov::PageValues m_values{ov::kDrawingScalesRows};
};

TEST_F(DrawingScalesPage, ListInBracketsAllowsOtherScalesAndIsSavedInBrackets)
{
    Put(kList, u"[1:50,1:100]");
    Load();
    EXPECT_EQ(m_values.TextOf(kList), u"1:50,1:100");
    EXPECT_TRUE(Others());
    EXPECT_FALSE(BuiltIn());
    Save();
    EXPECT_EQ(Saved(kList), u"[1:50,1:100]");
    EXPECT_EQ(Saved(kSource), u"0");
}

TEST_F(DrawingScalesPage, OneBracketIsEnough)
{
    for (const char16_t* list : {u"[1:50", u"1:50]", u" [[1:50]] "}) {
        Put(kList, list);
        Load();
        EXPECT_EQ(m_values.TextOf(kList), u"1:50");
        EXPECT_TRUE(Others());
    }
}

TEST_F(DrawingScalesPage, CodeTwoAndAnyOtherTextAreBothBoxes)
{
    for (const char16_t* code : {u"2", u"yes", u" 2 ", u"-1"}) {
        Put(kSource, code);
        Load();
        EXPECT_TRUE(BuiltIn());
        EXPECT_TRUE(Others());
        Save();
        EXPECT_EQ(Saved(kSource), u"2");
    }
}

TEST_F(DrawingScalesPage, CodesZeroAndOneAreTheBoxOfTheBuiltInScales)
{
    Put(kSource, u" 1 ");
    Load();
    EXPECT_TRUE(BuiltIn());
    EXPECT_FALSE(Others());
    Save();
    EXPECT_EQ(Saved(kSource), u"1");
    Put(kSource, u" 0 ");
    Load();
    EXPECT_FALSE(BuiltIn());
    EXPECT_FALSE(Others());
    Save();
    EXPECT_EQ(Saved(kSource), u"0");
}

TEST_F(DrawingScalesPage, MissingCodeLeavesTheBoxOfTheBuiltInScalesAsItWas)
{
    Put(kSource, u"2");
    Load();
    Load(kDefaultTable);
    EXPECT_TRUE(BuiltIn());
    EXPECT_FALSE(Others());
    Put(kSource, u"  ", kDefaultTable);
    Load(kDefaultTable);
    EXPECT_TRUE(BuiltIn());
}

TEST_F(DrawingScalesPage, OtherScalesAreForgottenByEachLoad)
{
    Put(kList, u"[1:50]");
    Load();
    ASSERT_TRUE(Others());
    Load(kDefaultTable);
    EXPECT_FALSE(Others());
}

TEST_F(DrawingScalesPage, ListOfACodeThatAllowsOthersGetsBrackets)
{
    Put(kSource, u"2");
    Put(kList, u"1:50");
    Load();
    Save();
    EXPECT_EQ(Saved(kList), u"[1:50]");
    Put(kList, u"");
    Load();
    Save();
    EXPECT_EQ(Saved(kList), u"[]");
}

// The next time the edit is read, they are removed; until then they remain.
TEST_F(DrawingScalesPage, SavedListKeepsItsBracketsInThePage)
{
    Put(kList, u"[1:50]");
    Load();
    Save();
    EXPECT_EQ(m_values.TextOf(kList), u"[1:50]");
}

TEST_F(DrawingScalesPage, PageThatWasNeverSeenAddsTheOfficesOwnScales)
{
    Save(false);
    EXPECT_EQ(Saved(kSource), u"0");
    EXPECT_EQ(Saved(kList), u"");
}

TEST_F(DrawingScalesPage, DefaultScaleIsKeptAsTyped)
{
    Put(u"_ORTHOVAL_DRAWINGSCALE_DEFAULT_VALUE", u" about 100");
    Load();
    Save();
    EXPECT_EQ(Saved(u"_ORTHOVAL_DRAWINGSCALE_DEFAULT_VALUE"), u" about 100");
}

TEST_F(DrawingScalesPage, ListItsLabelAndItsButtonDependOnTheBuiltInScales)
{
    const auto dependencies = ov::kDrawingScalesRows.dependencies;
    EXPECT_EQ(dependencies.size(), 3u);
    for (const int control : {2200, 2201, 2207}) {
        const auto row = std::ranges::find(dependencies, control, &ov::DependencyRow::controlId);
        ASSERT_NE(row, dependencies.end()) << control;
        m_values.CompanionNumberOf(2205) = 0;
        EXPECT_TRUE(m_values.Holds(*row));
        m_values.CompanionNumberOf(2205) = 1;
        EXPECT_FALSE(m_values.Holds(*row));
    }
}

} // namespace

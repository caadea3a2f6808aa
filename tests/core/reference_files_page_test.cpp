// Reference Files: the scale factor's limits, and the check boxes and lists that
// accept more values than a flag.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"

#include <gtest/gtest.h>

namespace
{
using ov::kCurrentTable;
using ov::Text;

constexpr char16_t kFactor[] = u"_ORTHOVAL_BORDERSHEETS_ERROR_SCALE";
constexpr char16_t kUnscale[] = u"_ORTHOVAL_REPORT_REF_UNSCALE_DIMS";
constexpr char16_t kClipping[] = u"_ORTHOVAL_REPORT_USEREFCLIPPING";

class ReferenceFilesPage : public testing::Test
{
  protected:
    Text SavedAfterLoading(ov::TextView variable, const char16_t* stored)
    {
        ov::SettingStore store;
        if (stored != nullptr)
            store.SetSetting(variable, stored, ov::SettingKindText, u"", kCurrentTable);
        m_values.Load(store, kCurrentTable);
        m_rows.refresh(m_values);
        m_values.Save(store, true);
        return store.GetSettingValue(variable, kCurrentTable);
    }

    const ov::PageRows& m_rows = ov::kReferenceFilesRows;
    ov::PageValues m_values{m_rows};
};

TEST_F(ReferenceFilesPage, ScaleFactorIsHeldWithinItsLimits)
{
    EXPECT_EQ(SavedAfterLoading(kFactor, u"2"), u"1.25000");
    EXPECT_EQ(SavedAfterLoading(kFactor, u"0.5"), u"0.75000");
    EXPECT_EQ(SavedAfterLoading(kFactor, u"a bit"), u"0.75000");
    EXPECT_EQ(SavedAfterLoading(kFactor, u""), u"1.00000");
    EXPECT_EQ(SavedAfterLoading(kFactor, nullptr), u"1.00000");
}

TEST_F(ReferenceFilesPage, ScaleFactorWithinItsLimitsStaysAsTyped)
{
    for (const char16_t* typed : {u"1.1", u"0.75", u"1.25", u" 1", u"1.1 or so"})
        EXPECT_EQ(SavedAfterLoading(kFactor, typed), typed);
}

TEST_F(ReferenceFilesPage, RefreshSaysWhetherItChangedTheScaleFactor)
{
    m_values.TextOf(kFactor) = u"2";
    EXPECT_TRUE(m_rows.refresh(m_values));
    EXPECT_FALSE(m_rows.refresh(m_values));
}

TEST_F(ReferenceFilesPage, DimensionsAreUnscaledUnlessTheFileSaysZero)
{
    EXPECT_EQ(SavedAfterLoading(kUnscale, nullptr), u"1");
    EXPECT_EQ(SavedAfterLoading(kUnscale, u""), u"1");
    EXPECT_EQ(SavedAfterLoading(kUnscale, u"no"), u"1");
    EXPECT_EQ(SavedAfterLoading(kUnscale, u"0"), u"0");
}

TEST_F(ReferenceFilesPage, ClippingIsTheUsersDecisionUnlessTheFileSaysOneOrZero)
{
    EXPECT_EQ(SavedAfterLoading(kClipping, nullptr), u"-1");
    EXPECT_EQ(m_values.NumberOf(kClipping), 2);
    EXPECT_EQ(SavedAfterLoading(kClipping, u"-1"), u"-1");
    EXPECT_EQ(SavedAfterLoading(kClipping, u"2"), u"-1");
    EXPECT_EQ(SavedAfterLoading(kClipping, u"1"), u"1");
    EXPECT_EQ(m_values.NumberOf(kClipping), 0);
    EXPECT_EQ(SavedAfterLoading(kClipping, u"0"), u"0");
    EXPECT_EQ(m_values.NumberOf(kClipping), 1);
}

TEST_F(ReferenceFilesPage, BorderSheetsAreFilesWithAModelEach)
{
    const ov::BrowseRow& border = m_rows.browses[0];
    EXPECT_EQ(border.buttonId, 3005);
    EXPECT_EQ(border.browsing, 1u);
    EXPECT_EQ(border.separator, u';');
    EXPECT_EQ(border.fieldSeparator, u',');
    EXPECT_EQ(border.fieldCount, 2u);
    EXPECT_EQ(border.focusOnRefusal, 3002);
}

TEST_F(ReferenceFilesPage, LoadingMarksTheDialogModified)
{
    EXPECT_TRUE(m_rows.loadMarksModified);
}

} // namespace

// The Signature Cells page: what depends on its first check box, and what it never changes.
#include "controls/core/tooltip_markup.h"
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"
#include "pages/signature_cell/ids.h"

#include <gtest/gtest.h>

#include <set>

namespace
{
using ov::kCurrentTable;
using ov::PageValues;
using ov::SettingStore;
using ov::Text;

constexpr const char16_t* countFields = u"_ORTHOVAL_SIGNATURECELL_COUNT_EDF";

TEST(SignatureCellPage, EverythingElseIsEnabledWithItsFirstBox)
{
    PageValues values(ov::kSignatureCellRows);
    std::set<int> dependent;
    for (const ov::DependencyRow& row : ov::kSignatureCellRows.dependencies) {
        EXPECT_EQ(row.effect, ov::Effect::Enable);
        dependent.insert(row.controlId);
        values.NumberOf(u"_ORTHOVAL_CHECK_SIGNATURECELL") = 0;
        EXPECT_FALSE(values.Holds(row)) << row.controlId;
        values.NumberOf(u"_ORTHOVAL_CHECK_SIGNATURECELL") = 1;
        EXPECT_TRUE(values.Holds(row)) << row.controlId;
    }
    EXPECT_EQ(dependent, (std::set<int>{9495, 9509, 9501, 9499, 9500, 9502, 9497, 9498}));
}

TEST(SignatureCellPage, LoadingMarksTheDialogModified)
{
    EXPECT_TRUE(ov::kSignatureCellRows.loadMarksModified);
}

TEST(SignatureCellPage, CountOfEnterDataFieldsStaysAsRead)
{
    for (const char16_t* stored : {u"1", u"0", u"yes"}) {
        SettingStore store;
        store.SetSetting(countFields, stored, ov::SettingKindText, u"", kCurrentTable);
        PageValues values(ov::kSignatureCellRows);
        values.Load(store, kCurrentTable);
        values.NumberOf(countFields) = 1 - values.NumberOf(countFields);
        values.Save(store, true);
        EXPECT_EQ(store.GetSettingValue(countFields, kCurrentTable), stored);
    }
}

TEST(SignatureCellPage, CountOfEnterDataFieldsIsNotAddedWhereItIsAbsent)
{
    SettingStore store;
    PageValues(ov::kSignatureCellRows).Save(store, true);
    EXPECT_FALSE(store.HasSetting(countFields, kCurrentTable));
}

TEST(SignatureCellPage, HelpKeepsItsWording)
{
    EXPECT_EQ(ov::Utf8FromText(ov::Description(ov::FindString(IDS_HELP_SIGNATURE_CELL_COUNT_FIELDS))),
              "If enabled, this option means that the user is not allowed to changed the number of Enter "
              "Data Fields when editing the Signature Cell information.");
}

} // namespace

// Behaviour that only the Certifying page has.
#include "controls/core/tooltip_markup.h"
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
using ov::kCurrentTable;
using ov::PageValues;
using ov::SettingStore;
using ov::Text;

constexpr char16_t markerCell[] = u"_ORTHOVAL_MARKERCELL";
constexpr char16_t referenceMarkerCells[] = u"_ORTHOVAL_CERTIFY_CHECK_REFERENCE_MARKERCELLS";
constexpr char16_t noDiffering[] = u"_ORTHOVAL_CERTIFY_NO_DIFFERING_STGS";
constexpr char16_t references[] = u"_ORTHOVAL_CERTIFY_CHECK_REFERENCE_WATERMARKS";

const ov::SettingRow& RowOf(ov::TextView variable)
{
    const PageValues values(ov::kCertifyingRows);
    return ov::kCertifyingRows.settings[values.FindRow(variable)];
}

Text HelpOf(int controlId)
{
    for (const ov::SettingRow& row : ov::kCertifyingRows.settings) {
        if (row.helpId != 0 && row.controlId == controlId)
            return Text(ov::FindString(row.helpId));
    }
    for (const ov::HelpRow& row : ov::kCertifyingRows.extraHelp) {
        if (row.controlId == controlId)
            return Text(ov::FindString(row.helpId));
    }
    return {};
}

/// The variable's value after loading and saving.
std::string SavedAfterLoading(const char16_t* variable, const char16_t* stored)
{
    SettingStore store;
    if (stored != nullptr)
        store.SetSetting(variable, stored, ov::SettingKindText, u"", kCurrentTable);
    PageValues values(ov::kCertifyingRows);
    values.Load(store, kCurrentTable);
    values.Save(store, true);
    return ov::Utf8FromText(store.GetSettingValue(variable, kCurrentTable));
}

TEST(CertifyingPage, BoxesAreShiftedAgainstTheirFlags)
{
    EXPECT_EQ(RowOf(markerCell).controlId, 3302);
    EXPECT_EQ(RowOf(referenceMarkerCells).controlId, 3303);
    EXPECT_EQ(RowOf(noDiffering).controlId, 0);
}

TEST(CertifyingPage, CommentsComeFromTheBoxesWhoseCaptionsFit)
{
    EXPECT_EQ(RowOf(markerCell).commentHelpId, 9301u);
    EXPECT_EQ(RowOf(referenceMarkerCells).commentHelpId, 9333u);
    EXPECT_EQ(RowOf(noDiffering).commentHelpId, 2038u);
    EXPECT_EQ(ov::VariableName(HelpOf(3301)), markerCell);
    EXPECT_EQ(ov::VariableName(HelpOf(3302)), referenceMarkerCells);
    EXPECT_EQ(ov::VariableName(HelpOf(3303)), noDiffering);
}

TEST(CertifyingPage, FlagWithoutABoxIsWrittenBackAsLoaded)
{
    EXPECT_EQ(SavedAfterLoading(noDiffering, u"1"), "1");
    EXPECT_EQ(SavedAfterLoading(noDiffering, u"0"), "0");
    EXPECT_EQ(SavedAfterLoading(noDiffering, nullptr), "0");
}

TEST(CertifyingPage, ReferencesWithoutAValueAreTheFirstButton)
{
    EXPECT_EQ(SavedAfterLoading(references, nullptr), "0");
    EXPECT_EQ(SavedAfterLoading(references, u""), "0");
}

TEST(CertifyingPage, ReferencesOfAnyOtherNumberAreTheThirdButton)
{
    EXPECT_EQ(SavedAfterLoading(references, u"-1"), "-1");
    EXPECT_EQ(SavedAfterLoading(references, u"7"), "-1");
    EXPECT_EQ(SavedAfterLoading(references, u"1"), "1");
}

TEST(CertifyingPage, NeverShownAddsWhatThePageHoldsBeforeItLoads)
{
    SettingStore store;
    PageValues values(ov::kCertifyingRows);
    values.Save(store, false);
    EXPECT_EQ(store.GetSettingValue(markerCell, kCurrentTable), u"0");
    EXPECT_EQ(store.GetSettingValue(referenceMarkerCells, kCurrentTable), u"1");
    EXPECT_EQ(store.GetSettingValue(references, kCurrentTable), u"-1");
}

TEST(CertifyingPage, IsSavedFromTheMarkerCellToTheReferences)
{
    std::vector<std::string> order;
    for (const ov::SettingRow& row : ov::kCertifyingRows.settings)
        order.push_back(ov::Utf8FromText(row.variable));
    EXPECT_EQ(order,
              (std::vector<std::string>{
                  "_ORTHOVAL_MARKERCELL", "_ORTHOVAL_CERTIFY_CHECK_REFERENCE_MARKERCELLS",
                  "_ORTHOVAL_CERTIFY_NO_DIFFERING_STGS", "_ORTHOVAL_CERTIFY_PREWATERMARK_KEYIN",
                  "_ORTHOVAL_CERTIFY_POSTWATERMARK_KEYIN", "_ORTHOVAL_CERTIFY_CHECK_REFERENCE_WATERMARKS"}));
}

TEST(CertifyingPage, RefusalMovesTheFocusForTheSecondKeyinOnly)
{
    ASSERT_GE(ov::kCertifyingRows.browses.size(), 2u);
    EXPECT_EQ(ov::kCertifyingRows.browses[0].focusOnRefusal, ov::kFocusStays);
    EXPECT_EQ(ov::kCertifyingRows.browses[1].focusOnRefusal, 3330);
    for (const ov::BrowseRow& row : ov::kCertifyingRows.browses) {
        EXPECT_EQ(row.browsing, 0u);
        EXPECT_EQ(row.separator, u';');
        EXPECT_EQ(row.fieldCount, 1u);
    }
}

} // namespace

#include "pages/core/page_catalogue.h"

#include "base/text.h"
#include "pages/core/string_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace
{

struct ExpectedPage {
    const char* className;
    int pageId;
    const char* title;
    unsigned titleId;
    int paneRow;
    unsigned templateId;
    int scrollWidth;
    int scrollHeight;
};

// In order of construction.
constexpr ExpectedPage expectedPages[] = {
    {"CPageBranding", 2, "Branding", 2058, 1, 9364, 290, 220},
    {"CPageCellHandling", 3, "Cell Handling", 9345, 2, 9350, 290, 210},
    {"CPageColourTable", 5, "Colour Table", 7011, 4, 116, 290, 220},
    {"CPageCertifying", 4, "Certifying", 2006, 3, 9352, 400, 360},
    {"CPageConforming", 6, "Conforming", 5001, 5, 101, 440, 370},
    {"CPageCustomReports", 7, "Custom Reports", 8313, 6, 9369, 290, 170},
    {"CPageDrafting", 8, "Drafting", 5002, 7, 102, 290, 70},
    {"CPageDrawingScales", 9, "Drawing Scales", 5003, 8, 103, 290, 320},
    {"CPageFeatureTables", 10, "Feature Tables", 5004, 9, 104, 290, 420},
    {"CPageFiles", 11, "File Paths", 10016, 11, 105, 290, 450},
    {"CPageLanguages", 12, "Languages", 5006, 12, 106, 290, 290},
    {"CPageLogging", 14, "Logging", 9347, 13, 9358, 400, 190},
    {"CPageFileNamingConvention", 15, "File Naming", 5008, 10, 109, 290, 260},
    {"CPageMisc", 16, "Miscellaneous", 8910, 15, 9368, 290, 390},
    {"CPageModelNamingConvention", 17, "Model Naming", 9342, 14, 117, 290, 270},
    {"CPageReferenceFiles", 18, "Reference Files", 5009, 16, 110, 400, 750},
    {"CPageReporting", 19, "Reporting", 5010, 17, 111, 290, 630},
    {"CPageScanPeriod", 20, "Scan Period", 10007, 18, 9367, 290, 320},
    {"CPageSignatureCell", 21, "Signature Cells", 2046, 20, 9361, 290, 220},
    {"CPageTitleBlock", 22, "Title Blocks", 2047, 21, 9362, 290, 480},
    {"CPageThirdParty", 23, "Third Party Apps", 5040, 22, 118, 290, 70},
    {"CPageURLs", 24, "URLs", 2007, 23, 9354, 290, 70},
    {"CPageUsers", 25, "Users", 2037, 24, 9360, 290, 70},
    {"CPageVersion", 26, "Version", 5011, 25, 112, 290, 70},
    {"CPageWatermarkIntegrity", 27, "Watermark Integrity", 5012, 26, 513, 290, 410},
    {"CPageWatermarkPlacement", 28, "Watermark Placement", 5041, 27, 9363, 290, 370},
    {"CPageWeighting", 29, "Score Weighting", 2065, 19, 9366, 290, 460},
};

// From the top of the list to its bottom.
constexpr const char* expectedPane[] = {
    "Branding",
    "Cell Handling",
    "Certifying",
    "Colour Table",
    "Conforming",
    "Custom Reports",
    "Drafting",
    "Drawing Scales",
    "Feature Tables",
    "File Naming",
    "File Paths",
    "Languages",
    "Logging",
    "Model Naming",
    "Miscellaneous",
    "Reference Files",
    "Reporting",
    "Scan Period",
    "Score Weighting",
    "Signature Cells",
    "Title Blocks",
    "Third Party Apps",
    "URLs",
    "Users",
    "Version",
    "Watermark Integrity",
    "Watermark Placement",
};

std::string Title(const ov::PageInfo& page)
{
    return ov::Utf8FromText(ov::FindString(page.titleId));
}

TEST(PageCatalogue, EqualsTheTable)
{
    const auto pages = ov::PageCatalogue();
    ASSERT_EQ(pages.size(), std::size(expectedPages));
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const ov::PageInfo& page = pages[i];
        const ExpectedPage& expected = expectedPages[i];
        SCOPED_TRACE(expected.className);
        EXPECT_EQ(page.order, static_cast<int>(i) + 1);
        EXPECT_EQ(ov::Utf8FromText(page.className), expected.className);
        EXPECT_EQ(page.pageId, expected.pageId);
        EXPECT_EQ(page.titleId, expected.titleId);
        EXPECT_EQ(Title(page), expected.title);
        EXPECT_EQ(page.paneRow, expected.paneRow);
        EXPECT_EQ(page.templateId, expected.templateId);
        EXPECT_EQ(page.scrollWidth, expected.scrollWidth);
        EXPECT_EQ(page.scrollHeight, expected.scrollHeight);
    }
}

TEST(PageCatalogue, PaneRowsStandInTheirFixedOrder)
{
    const auto rows = ov::PaneRows();
    ASSERT_EQ(rows.size(), std::size(expectedPane));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        ASSERT_NE(rows[i], nullptr) << "row " << i + 1;
        EXPECT_EQ(rows[i]->paneRow, static_cast<int>(i) + 1);
        EXPECT_EQ(Title(*rows[i]), expectedPane[i]);
    }
}

TEST(PageCatalogue, FirstPaneRowIsTheFirstPageShown)
{
    EXPECT_EQ(ov::PaneRows().front()->pageId, 2);
    EXPECT_EQ(Title(*ov::PaneRows().front()), "Branding");
    EXPECT_EQ(ov::PageCatalogue().front().pageId, 2);
}

TEST(PageCatalogue, ModelNamingStandsAboveMiscellaneousAndTitleBlocksAboveThirdPartyApps)
{
    EXPECT_LT(ov::FindPage(17)->paneRow, ov::FindPage(16)->paneRow);
    EXPECT_LT(ov::FindPage(22)->paneRow, ov::FindPage(23)->paneRow);
}

TEST(PageCatalogue, ColourTableIsMadeBeforeCertifyingAndFileNamingAfterLogging)
{
    EXPECT_LT(ov::FindPage(5)->order, ov::FindPage(4)->order);
    EXPECT_GT(ov::FindPage(15)->order, ov::FindPage(14)->order);
}

TEST(PageCatalogue, EveryPageIdFrom2To29ExceptThirteenIsOnePage)
{
    std::set<int> ids;
    for (const ov::PageInfo& page : ov::PageCatalogue())
        EXPECT_TRUE(ids.insert(page.pageId).second) << page.pageId << " twice";
    for (int id = 2; id <= 29; ++id) {
        EXPECT_EQ(ids.contains(id), id != 13) << id;
        EXPECT_EQ(ov::FindPage(id) != nullptr, id != 13) << id;
    }
}

TEST(PageCatalogue, NoPageHasTheUnusedIdsOrThePanesOwn)
{
    for (int id : {-1, 0, 1, 13, 30})
        EXPECT_EQ(ov::FindPage(id), nullptr) << id;
}

TEST(PageCatalogue, TemplatesAndTitlesBelongToOnePageEach)
{
    std::set<unsigned> templates;
    std::set<unsigned> titles;
    for (const ov::PageInfo& page : ov::PageCatalogue()) {
        EXPECT_TRUE(templates.insert(page.templateId).second) << page.templateId;
        EXPECT_TRUE(titles.insert(page.titleId).second) << page.titleId;
    }
}

} // namespace

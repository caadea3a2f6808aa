#include "pages/core/page_catalogue.h"

#include "resources/ids.h"

namespace ov
{
namespace
{
// Neither order is sorted: in that of construction Colour Table comes before
// Certifying and File Naming after Logging, in the list Model Naming before
// Miscellaneous and Title Blocks before Third Party Apps. Administrators know
// the list as it is. No page has the ids 1 and 13.
// clang-format off
constexpr PageInfo catalogue[kPageCount] = {
    { 1,  2, u"CPageBranding",             IDS_TITLE_BRANDING,             1, IDD_PAGE_BRANDING,            290, 220},
    { 2,  3, u"CPageCellHandling",         IDS_TITLE_CELL_HANDLING,        2, IDD_PAGE_CELL_HANDLING,       290, 210},
    { 3,  5, u"CPageColourTable",          IDS_TITLE_COLOUR_TABLE,         4, IDD_PAGE_COLOUR_TABLE,        290, 220},
    { 4,  4, u"CPageCertifying",           IDS_TITLE_CERTIFYING,           3, IDD_PAGE_CERTIFYING,          400, 360},
    { 5,  6, u"CPageConforming",           IDS_TITLE_CONFORMING,           5, IDD_PAGE_CONFORMING,          440, 370},
    { 6,  7, u"CPageCustomReports",        IDS_TITLE_CUSTOM_REPORTS,       6, IDD_PAGE_CUSTOM_REPORTS,      290, 170},
    { 7,  8, u"CPageDrafting",             IDS_TITLE_DRAFTING,             7, IDD_PAGE_DRAFTING,            290,  70},
    { 8,  9, u"CPageDrawingScales",        IDS_TITLE_DRAWING_SCALES,       8, IDD_PAGE_DRAWING_SCALES,      290, 320},
    { 9, 10, u"CPageFeatureTables",        IDS_TITLE_FEATURE_TABLES,       9, IDD_PAGE_FEATURE_TABLES,      290, 420},
    {10, 11, u"CPageFiles",                IDS_TITLE_FILES,               11, IDD_PAGE_FILES,               290, 450},
    {11, 12, u"CPageLanguages",            IDS_TITLE_LANGUAGES,           12, IDD_PAGE_LANGUAGES,           290, 290},
    {12, 14, u"CPageLogging",              IDS_TITLE_LOGGING,             13, IDD_PAGE_LOGGING,             400, 190},
    {13, 15, u"CPageFileNamingConvention", IDS_TITLE_FILE_NAMING,         10, IDD_PAGE_FILE_NAMING,         290, 260},
    {14, 16, u"CPageMisc",                 IDS_TITLE_MISC,                15, IDD_PAGE_MISC,                290, 390},
    {15, 17, u"CPageModelNamingConvention", IDS_TITLE_MODEL_NAMING,       14, IDD_PAGE_MODEL_NAMING,        290, 270},
    {16, 18, u"CPageReferenceFiles",       IDS_TITLE_REFERENCE_FILES,     16, IDD_PAGE_REFERENCE_FILES,     400, 750},
    {17, 19, u"CPageReporting",            IDS_TITLE_REPORTING,           17, IDD_PAGE_REPORTING,           290, 630},
    {18, 20, u"CPageScanPeriod",           IDS_TITLE_SCAN_PERIOD,         18, IDD_PAGE_SCAN_PERIOD,         290, 320},
    {19, 21, u"CPageSignatureCell",        IDS_TITLE_SIGNATURE_CELL,      20, IDD_PAGE_SIGNATURE_CELL,      290, 220},
    {20, 22, u"CPageTitleBlock",           IDS_TITLE_TITLE_BLOCK,         21, IDD_PAGE_TITLE_BLOCK,         290, 480},
    {21, 23, u"CPageThirdParty",           IDS_TITLE_THIRD_PARTY,         22, IDD_PAGE_THIRD_PARTY,         290,  70},
    {22, 24, u"CPageURLs",                 IDS_TITLE_URLS,                23, IDD_PAGE_URLS,                290,  70},
    {23, 25, u"CPageUsers",                IDS_TITLE_USERS,               24, IDD_PAGE_USERS,               290,  70},
    {24, 26, u"CPageVersion",              IDS_TITLE_VERSION,             25, IDD_PAGE_VERSION,             290,  70},
    {25, 27, u"CPageWatermarkIntegrity",   IDS_TITLE_WATERMARK_INTEGRITY, 26, IDD_PAGE_WATERMARK_INTEGRITY, 290, 410},
    {26, 28, u"CPageWatermarkPlacement",   IDS_TITLE_WATERMARK_PLACEMENT, 27, IDD_PAGE_WATERMARK_PLACEMENT, 290, 370},
    {27, 29, u"CPageWeighting",            IDS_TITLE_WEIGHTING,           19, IDD_PAGE_WEIGHTING,           290, 460},
};
// clang-format on
} // namespace

std::span<const PageInfo, kPageCount> PageCatalogue()
{
    return catalogue;
}

std::array<const PageInfo*, kPageCount> PaneRows()
{
    std::array<const PageInfo*, kPageCount> rows{};
    for (const PageInfo& page : catalogue)
        rows[static_cast<std::size_t>(page.paneRow - 1)] = &page;
    return rows;
}

const PageInfo* FindPage(int pageId)
{
    for (const PageInfo& page : catalogue) {
        if (page.pageId == pageId)
            return &page;
    }
    return nullptr;
}

} // namespace ov

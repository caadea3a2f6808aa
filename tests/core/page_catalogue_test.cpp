#include "pages/core/page_catalogue.h"
#include "pages/core/page_rows.h"
#include "pages/core/string_table.h"
#include "tests/pages/expected_pages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

namespace
{
std::vector<int> Ids(std::span<const ov::PageInfo* const> pages)
{
    std::vector<int> ids;
    for (const ov::PageInfo* page : pages)
        ids.push_back(page->pageId);
    return ids;
}

TEST(PageCatalogue, HasThePagesThatAreExpectedInTheOrderOfTheList)
{
    std::vector<int> wanted;
    for (const expected::Page& page : expected::Pages())
        wanted.push_back(page.pageId);
    EXPECT_EQ(Ids(ov::PaneRows()), wanted);
}

TEST(PageCatalogue, IsInTheOrderOfConstruction)
{
    const std::span<const int> wanted = expected::ConstructionOrder();
    EXPECT_EQ(Ids(ov::PageCatalogue()), std::vector<int>(wanted.begin(), wanted.end()));
    std::vector<int> rows;
    for (const ov::PageRows* page : ov::AllPageRows())
        rows.push_back(page->info.pageId);
    EXPECT_EQ(rows, Ids(ov::PageCatalogue()));
}

TEST(PageCatalogue, GivesWindowsInTheOrderOfTheIds)
{
    std::vector<int> wanted = Ids(ov::PageCatalogue());
    std::ranges::sort(wanted);
    EXPECT_EQ(Ids(ov::PagesById()), wanted);
}

TEST(PageCatalogue, SaysOfEachPageWhatIsExpected)
{
    for (const expected::Page& wanted : expected::Pages()) {
        SCOPED_TRACE(wanted.title);
        const ov::PageInfo* page = ov::FindPage(wanted.pageId);
        ASSERT_NE(page, nullptr);
        EXPECT_EQ(page->titleId, wanted.titleId);
        EXPECT_EQ(ov::Utf8FromText(ov::FindString(page->titleId)), wanted.title);
        EXPECT_EQ(page->templateId, wanted.templateId);
        EXPECT_EQ(page->scrollWidth, wanted.scrollWidth);
        EXPECT_EQ(page->scrollHeight, wanted.scrollHeight);
    }
}

TEST(PageCatalogue, BeginsWithBrandingWhichIsShownFirst)
{
    EXPECT_EQ(ov::PaneRows().front()->pageId, 2);
    EXPECT_EQ(ov::PageCatalogue().front()->pageId, 2);
}

TEST(PageCatalogue, HasNoPageWithAnUnusedIdOrThePanesOwn)
{
    for (int id : {-1, 0, 1, 13, 30})
        EXPECT_EQ(ov::FindPage(id), nullptr) << id;
}

struct NamedPage {
    const char* rows; ///< defined in pages/<the name in lower case>/rows.cpp
    const ov::PageInfo& info;
};

std::vector<NamedPage> NamedPages()
{
    return {
#define OV_PAGE(name) {"k" #name "Rows", ov::k##name##Rows.info},
#include "pages/page_list.inc"
#undef OV_PAGE
    };
}

/// Returns the pages that share a number which must be unique.
template <class Number>
void ExpectOnePageEach(const char* what, Number ov::PageInfo::*number)
{
    std::map<Number, const char*> pages;
    for (const NamedPage& page : NamedPages()) {
        const auto [other, isFirst] = pages.emplace(page.info.*number, page.rows);
        EXPECT_TRUE(isFirst) << other->second << " and " << page.rows << " have the same " << what << ", "
                             << other->first;
    }
}

TEST(PageCatalogue, GivesEachNumberToOnePage)
{
    ExpectOnePageEach("pageId", &ov::PageInfo::pageId);
    ExpectOnePageEach("titleId", &ov::PageInfo::titleId);
    ExpectOnePageEach("templateId", &ov::PageInfo::templateId);
    ExpectOnePageEach("constructionRank", &ov::PageInfo::constructionRank);
    ExpectOnePageEach("listRank", &ov::PageInfo::listRank);
}

} // namespace

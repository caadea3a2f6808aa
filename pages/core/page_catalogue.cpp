#include "pages/core/page_catalogue.h"

#include "pages/core/page_rows.h"

#include <algorithm>
#include <vector>

namespace ov
{
namespace
{
std::vector<const PageRows*> CollectPages()
{
#define OV_PAGE(name) &k##name##Rows,
    std::vector<const PageRows*> pages = {
#include "pages/page_list.inc"
    };
#undef OV_PAGE
    std::ranges::sort(pages, {}, [](const PageRows* page) { return page->info.constructionRank; });
    return pages;
}

/// All pages, sorted by a member of PageInfo.
std::vector<const PageInfo*> PagesBy(int PageInfo::*member)
{
    std::vector<const PageInfo*> pages;
    for (const PageRows* rows : AllPageRows())
        pages.push_back(&rows->info);
    std::ranges::stable_sort(pages, {}, [member](const PageInfo* page) { return page->*member; });
    return pages;
}
} // namespace

std::span<const PageRows* const> AllPageRows()
{
    static const std::vector<const PageRows*> pages = CollectPages();
    return pages;
}

std::span<const PageInfo* const> PageCatalogue()
{
    static const std::vector<const PageInfo*> pages = PagesBy(&PageInfo::constructionRank);
    return pages;
}

std::span<const PageInfo* const> PaneRows()
{
    static const std::vector<const PageInfo*> pages = PagesBy(&PageInfo::listRank);
    return pages;
}

std::span<const PageInfo* const> PagesById()
{
    static const std::vector<const PageInfo*> pages = PagesBy(&PageInfo::pageId);
    return pages;
}

const PageInfo* FindPage(int pageId)
{
    const auto found = std::ranges::find(PagesById(), pageId, &PageInfo::pageId);
    return found != PagesById().end() ? *found : nullptr;
}

} // namespace ov

#include "pages/core/all_page_rows.h"

#include "pages/core/page_catalogue.h"
#include "pages/core/page_list.inc"

#include <algorithm>
#include <vector>

namespace ov
{
namespace
{
#define OV_ROWS(function) &function(),

std::vector<const PageRows*> CollectPageRows()
{
    std::vector<const PageRows*> pages = {OV_PAGE_LIST};
    std::ranges::sort(pages, {}, [](const PageRows* page) { return FindPage(page->pageId)->order; });
    return pages;
}

#undef OV_ROWS
} // namespace

std::span<const PageRows* const> AllPageRows()
{
    static const std::vector<const PageRows*> pages = CollectPageRows();
    return pages;
}

} // namespace ov

#pragma once

#include "pages/core/setting_row.h"

#include <span>

namespace ov
{

/// The rows of all pages in order of construction, which is that of saving.
std::span<const PageRows* const> AllPageRows();

/// All pages in order of construction.
std::span<const PageInfo* const> PageCatalogue();

/// All pages from the top of the category list to its bottom.
std::span<const PageInfo* const> PaneRows();

/// All pages in the order of their ids, which is that of their windows.
std::span<const PageInfo* const> PagesById();

/// The page of that id, or null: not every number is one.
const PageInfo* FindPage(int pageId);

} // namespace ov

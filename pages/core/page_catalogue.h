#pragma once

#include "pages/core/setting_row.h"

#include <span>

namespace ov
{

/// The rows of all pages in order of construction, which is also the order of saving.
std::span<const PageRows* const> AllPageRows();

/// All pages in order of construction.
std::span<const PageInfo* const> PageCatalogue();

/// All pages in the order of the category pane, from top to bottom.
std::span<const PageInfo* const> PaneRows();

/// All pages by id, which is the order in which their windows are created.
std::span<const PageInfo* const> PagesById();

/// The page with that id, or null; ids are not contiguous.
const PageInfo* FindPage(int pageId);

} // namespace ov

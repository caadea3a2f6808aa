#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace ov
{

/// One category page of the Preferences dialog.
struct PageInfo {
    int order; ///< of construction, and of saving; from 1
    int pageId;
    const char16_t* className;
    unsigned titleId; ///< string id of the title in the category list
    int paneRow;      ///< row in the category list, from 1
    unsigned templateId;
    int scrollWidth; ///< size of the page's content in pixels
    int scrollHeight;
};

inline constexpr std::size_t kPageCount = 27;

/// All pages in order of construction.
std::span<const PageInfo, kPageCount> PageCatalogue();

/// All pages from the top of the category list to its bottom.
std::array<const PageInfo*, kPageCount> PaneRows();

/// The page of that id, or null: not every number is one.
const PageInfo* FindPage(int pageId);

} // namespace ov

#pragma once

namespace ov
{

/// The facts about a category page, apart from its settings.
struct PageInfo {
    int pageId;          ///< page windows are created in the order of their ids
    unsigned titleId;    ///< string id of the title in the category list
    unsigned templateId; ///< of the page's dialog template
    int scrollWidth;     ///< size of the page's content in pixels at 96 pixels per inch
    int scrollHeight;
    int constructionRank; ///< pages are constructed, and saved, from the lowest rank to the highest
    int listRank;         ///< pages are listed in the category pane from the lowest rank to the highest
};

} // namespace ov

#pragma once

namespace ov
{

/// What a category page of the Preferences dialog is, apart from its settings.
struct PageInfo {
    int pageId;          ///< pages get their windows in the order of their ids
    unsigned titleId;    ///< string id of the title in the category list
    unsigned templateId; ///< of the dialog template
    int scrollWidth;     ///< size of the page's content in pixels at 96 dpi
    int scrollHeight;
    int constructionRank; ///< pages are constructed, and saved, from the lowest rank to the highest
    int listRank;         ///< and are listed from the lowest rank at the top to the highest
};

} // namespace ov

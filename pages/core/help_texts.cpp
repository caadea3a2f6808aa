#include "pages/core/help_texts.h"

#include "config/core/setting_comment.h"
#include "controls/core/tooltip_markup.h"
#include "pages/core/string_table.h"

#include <algorithm>
#include <unordered_map>

namespace ov
{

unsigned HelpOfControl(const PageRows& page, int controlId)
{
    if (controlId == 0)
        return 0;
    const auto extra = std::ranges::find(page.extraHelp, controlId, &HelpRow::controlId);
    if (extra != page.extraHelp.end())
        return extra->helpId;
    const auto setting = std::ranges::find(page.settings, controlId, &SettingRow::controlId);
    return setting != page.settings.end() ? setting->helpId : 0;
}

const Text& CommentOf(const SettingRow& row)
{
    static std::unordered_map<unsigned, Text> s_comments;
    const auto [comment, isNew] = s_comments.try_emplace(row.commentHelpId);
    if (isNew)
        comment->second = MakeCommentBlock(Description(FindString(row.commentHelpId)));
    return comment->second;
}

} // namespace ov

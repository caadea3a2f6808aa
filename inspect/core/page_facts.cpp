#include "inspect/core/page_facts.h"

#include "inspect/core/setting_index.h"
#include "pages/core/help_texts.h"

namespace ov
{

VariableFacts FactsOfPages(TextView name)
{
    const SettingPlace* place = FindSetting(name);
    if (place == nullptr)
        return {};
    VariableFacts facts;
    facts.kind = place->row->kind;
    facts.comment = CommentOf(*place->row);
    if (const auto format = ListFormatOf(*place)) {
        facts.isList = true;
        facts.list = *format;
    }
    return facts;
}

} // namespace ov

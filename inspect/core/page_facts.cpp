#include "inspect/core/page_facts.h"

#include "pages/core/help_texts.h"
#include "pages/core/page_catalogue.h"

#include <algorithm>
#include <unordered_map>

namespace ov
{
namespace
{

struct Place {
    const PageRows* page;
    const SettingRow* row;
};

// Every variable of the pages. If two pages have the same one, the page that writes it counts.
std::unordered_map<TextView, Place> MakePlaces()
{
    std::unordered_map<TextView, Place> places;
    for (const PageRows* page : AllPageRows()) {
        for (const SettingRow& row : page->settings) {
            const auto [place, added] = places.try_emplace(row.variable, Place{page, &row});
            if (!added && place->second.row->saveRule == SaveRule::Never)
                place->second = {page, &row};
        }
    }
    return places;
}

// Takes the list format from the row of the list editor, if the variable has one.
void AddList(VariableFacts& facts, const PageRows& page, TextView variable)
{
    const auto browse = std::ranges::find_if(page.browses, [variable](const BrowseRow& row) {
        return row.kind == BrowseKind::List && variable == row.variable;
    });
    if (browse == page.browses.end())
        return;
    facts.isList = true;
    facts.list.separator = browse->separator;
    facts.list.fieldSeparator = browse->fieldSeparator;
    facts.list.fieldCount = browse->fieldCount;
}

} // namespace

VariableFacts FactsOfPages(TextView name)
{
    static const std::unordered_map<TextView, Place> s_places = MakePlaces();
    const auto found = s_places.find(name);
    if (found == s_places.end())
        return {};
    const auto& [page, row] = found->second;
    VariableFacts facts;
    facts.kind = row->kind;
    facts.comment = CommentOf(*row);
    AddList(facts, *page, name);
    return facts;
}

} // namespace ov

#include "inspect/core/list_merge.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace ov
{
namespace
{

// What distinguishes an entry: its text, and its number among equal entries.
using Identity = std::pair<Text, int>;

struct Entry {
    Identity identity;
    Text text;
};

// A list and the identities of its entries.
class IdentifiedList
{
  public:
    IdentifiedList(const ListEntries& entries, const ListFormat& format)
    {
        std::map<Text, int> uses;
        for (const Text& text : entries) {
            const Text key = EntryKey(text, format);
            m_entries.push_back({{key, uses[key]++}, text});
            m_identities.insert(m_entries.back().identity);
        }
    }

    const std::vector<Entry>& Entries() const { return m_entries; }
    bool Has(const Entry& entry) const { return m_identities.contains(entry.identity); }

    // The identities that both other lists contain too, in the order of this list.
    std::vector<Identity> Common(const IdentifiedList& first, const IdentifiedList& second) const
    {
        std::vector<Identity> common;
        for (const Entry& entry : m_entries) {
            if (first.Has(entry) && second.Has(entry))
                common.push_back(entry.identity);
        }
        return common;
    }

  private:
    std::vector<Entry> m_entries;
    std::set<Identity> m_identities;
};

// The list `kept`, with the changes of `other` relative to the base applied.
ListEntries Combine(const IdentifiedList& base, const IdentifiedList& kept, const IdentifiedList& other)
{
    std::vector<Entry> result;
    for (const Entry& entry : kept.Entries()) {
        if (other.Has(entry) || !base.Has(entry))
            result.push_back(entry);
    }
    std::size_t place = 0; // After the last entry of the other list that the result contains.
    for (const Entry& entry : other.Entries()) {
        const auto found = std::find_if(result.begin(), result.end(),
                                        [&](const Entry& each) { return each.identity == entry.identity; });
        if (found != result.end())
            place = static_cast<std::size_t>(found - result.begin()) + 1;
        else if (!base.Has(entry) && !kept.Has(entry))
            result.insert(result.begin() + static_cast<std::ptrdiff_t>(place++), entry);
    }
    ListEntries texts;
    std::transform(result.begin(), result.end(), std::back_inserter(texts),
                   [](const Entry& entry) { return entry.text; });
    return texts;
}

} // namespace

std::optional<ListEntries> MergeEntries(const ListEntries& base, const ListEntries& ours,
                                        const ListEntries& theirs, const ListFormat& format)
{
    const IdentifiedList baseList(base, format);
    const IdentifiedList ourList(ours, format);
    const IdentifiedList theirList(theirs, format);
    const auto baseOrder = baseList.Common(ourList, theirList);
    const auto ourOrder = ourList.Common(baseList, theirList);
    const auto theirOrder = theirList.Common(baseList, ourList);
    if (theirOrder == ourOrder || theirOrder == baseOrder)
        return Combine(baseList, ourList, theirList);
    if (ourOrder == baseOrder)
        return Combine(baseList, theirList, ourList);
    return std::nullopt;
}

} // namespace ov

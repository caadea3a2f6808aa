#include "inspect/core/list_merge.h"

#include <algorithm>
#include <iterator>
#include <list>
#include <unordered_map>
#include <utility>
#include <vector>

namespace ov
{
namespace
{

// Numbers the entries of lists. Equal entries of different lists get the same number; the entries of one
// list get different numbers, equal ones too.
class EntryNumbers
{
  public:
    explicit EntryNumbers(const ListFormat& format) : m_format(format) {}

    std::vector<std::size_t> Of(const ListEntries& entries)
    {
        std::unordered_map<Text, std::size_t> uses;
        std::vector<std::size_t> numbers;
        for (const Text& entry : entries) {
            const Text key = EntryKey(entry, m_format);
            const std::size_t use = uses[key]++;
            std::vector<std::size_t>& known = m_numbers[key];
            if (use == known.size())
                known.push_back(m_count++);
            numbers.push_back(known[use]);
        }
        return numbers;
    }

  private:
    const ListFormat& m_format;
    std::unordered_map<Text, std::vector<std::size_t>> m_numbers; // By text; one for each use.
    std::size_t m_count = 0;
};

// A list and the numbers of its entries.
class NumberedList
{
  public:
    NumberedList(const ListEntries& entries, EntryNumbers& numbers)
        : m_entries(entries), m_numbers(numbers.Of(entries))
    {
        for (const std::size_t number : m_numbers) {
            m_has.resize(std::max(m_has.size(), number + 1));
            m_has[number] = true;
        }
    }

    std::size_t Size() const { return m_numbers.size(); }
    std::size_t Number(std::size_t index) const { return m_numbers[index]; }
    const Text& Entry(std::size_t index) const { return m_entries[index]; }
    bool Has(std::size_t number) const { return number < m_has.size() && m_has[number]; }

    // The numbers that both other lists contain too, in the order of this list.
    std::vector<std::size_t> Common(const NumberedList& first, const NumberedList& second) const
    {
        std::vector<std::size_t> common;
        for (const std::size_t number : m_numbers) {
            if (first.Has(number) && second.Has(number))
                common.push_back(number);
        }
        return common;
    }

  private:
    const ListEntries& m_entries;
    std::vector<std::size_t> m_numbers;
    std::vector<bool> m_has; // By number.
};

// The list `kept`, with the changes of `other` relative to the base applied.
ListEntries Combine(const NumberedList& base, const NumberedList& kept, const NumberedList& other)
{
    std::list<Text> result;
    std::unordered_map<std::size_t, std::list<Text>::iterator> places; // By number.
    for (std::size_t i = 0; i < kept.Size(); ++i) {
        const std::size_t number = kept.Number(i);
        if (other.Has(number) || !base.Has(number))
            places[number] = result.insert(result.end(), kept.Entry(i));
    }
    auto place = result.begin(); // After the last entry of `other` that the result contains.
    for (std::size_t i = 0; i < other.Size(); ++i) {
        const std::size_t number = other.Number(i);
        if (const auto found = places.find(number); found != places.end())
            place = std::next(found->second);
        else if (!base.Has(number) && !kept.Has(number))
            result.insert(place, other.Entry(i));
    }
    return {std::make_move_iterator(result.begin()), std::make_move_iterator(result.end())};
}

} // namespace

std::optional<ListEntries> MergeEntries(const ListEntries& base, const ListEntries& ours,
                                        const ListEntries& theirs, const ListFormat& format)
{
    EntryNumbers numbers(format);
    const NumberedList baseList(base, numbers);
    const NumberedList ourList(ours, numbers);
    const NumberedList theirList(theirs, numbers);
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

#include "controls/core/list_text.h"

#include "match/core/tokens.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <unordered_map>
#include <utility>

namespace ov
{
namespace
{

Text Folded(TextView text)
{
    Text folded(text);
    std::ranges::transform(folded, folded.begin(), ToUpperAscii);
    return folded;
}

// Finds a character at or after positions that never decrease; examines each character of the text
// once in total.
class ForwardFinder
{
  public:
    ForwardFinder(TextView text, char16_t wanted) : m_text(text), m_wanted(wanted) {}

    // Returns the text's length if there is none.
    std::size_t At(std::size_t from)
    {
        if (!m_searched || m_found < from) {
            m_found = std::min(m_text.find(m_wanted, from), m_text.size());
            m_searched = true;
        }
        return m_found;
    }

  private:
    TextView m_text;
    char16_t m_wanted;
    std::size_t m_found = 0;
    bool m_searched = false;
};

// Reads the fields of an entry from front to back.
class FieldReader
{
  public:
    FieldReader(TextView entry, const ListFormat& format, std::size_t longest = kLongestField)
        : m_rest(entry), m_stops{format.fieldSeparator, u'\0'}, m_qualifier(format.qualifier),
          m_longest(longest)
    {
    }

    Text Next()
    {
        Text field;
        const std::size_t consumed =
            ExtractTokenString(field, m_rest, u" ", u" ", nullptr, m_stops, nullptr,
                               m_qualifier != u'\0' ? &m_qualifier : nullptr, m_longest);
        m_rest.remove_prefix(std::min(consumed, m_rest.size()));
        return field;
    }

  private:
    TextView m_rest;
    char16_t m_stops[2];
    char16_t m_qualifier;
    std::size_t m_longest;
};

ListRows::Row ReadFields(TextView entry, const ListFormat& format)
{
    FieldReader reader(entry, format);
    ListRows::Row row(std::max<std::size_t>(format.fieldCount, 1));
    for (Text& field : row)
        field = reader.Next();
    return row;
}

// Finds rows by the text that they read back as; the first of several equal rows counts.
class RowIndex
{
  public:
    std::optional<std::size_t> Take(const Text& folded)
    {
        const auto found = m_rows.find(folded);
        if (found == m_rows.end() || found->second.empty())
            return std::nullopt;
        return found->second.extract(found->second.begin()).value();
    }
    void Add(Text folded, std::size_t row) { m_rows[std::move(folded)].insert(row); }

  private:
    std::unordered_map<Text, std::set<std::size_t>> m_rows;
};

} // namespace

std::vector<TextView> SplitEntries(TextView listText, const ListFormat& format)
{
    std::vector<TextView> entries;
    if (listText.empty())
        return entries;
    const std::size_t length = listText.size();
    ForwardFinder separators(listText, format.separator);
    ForwardFinder qualifiers(listText, format.qualifier);
    std::size_t start = 0;
    std::size_t position = 0;
    do {
        const std::size_t end = separators.At(position);
        const std::size_t opening = format.qualifier != u'\0' ? qualifiers.At(position) : length;
        if (opening < end && end < length) {
            // The separator may be between qualifiers: look for one after the closing qualifier.
            const std::size_t closing = qualifiers.At(opening + 1);
            if (closing + 1 == length) {
                entries.push_back(listText.substr(start));
                return entries;
            }
            if (closing < length) {
                position = closing + 1;
                continue;
            }
        }
        entries.push_back(listText.substr(start, end - start));
        start = position = end + 1;
    } while (position < length);
    return entries;
}

Text ReadField(TextView entry, std::size_t field, const ListFormat& format, std::size_t longest)
{
    FieldReader reader(entry, format, longest);
    for (; field > 0; --field)
        reader.Next();
    return reader.Next();
}

void ListRows::Fill(TextView listText)
{
    m_rows.clear();
    RowIndex index;
    for (const TextView entry : SplitEntries(listText, m_format)) {
        if (entry.empty())
            continue;
        std::size_t row = m_rows.size();
        if (const auto equal = index.Take(Folded(entry))) {
            row = *equal;
            m_rows[row] = ReadFields(entry, m_format);
        } else {
            m_rows.push_back(ReadFields(entry, m_format));
        }
        index.Add(Folded(EntryText(row)), row);
    }
}

std::optional<std::size_t> ListRows::FindEqual(TextView entry) const
{
    const auto equal = [](char16_t a, char16_t b) { return ToUpperAscii(a) == ToUpperAscii(b); };
    const auto found = std::ranges::find_if(
        m_rows, [&](const Row& row) { return std::ranges::equal(JoinFields(row), entry, equal); });
    if (found == m_rows.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_rows.begin());
}

std::optional<ListRows::Inserted> ListRows::Insert(std::size_t index, TextView entry)
{
    if (entry.empty())
        return std::nullopt;
    Row fields = ReadFields(entry, m_format);
    if (const auto equal = FindEqual(entry)) {
        m_rows[*equal] = std::move(fields);
        return Inserted{*equal, true};
    }
    index = std::min(index, m_rows.size());
    m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(index), std::move(fields));
    return Inserted{index, false};
}

std::optional<ListRows::Inserted> ListRows::Move(std::size_t from, std::size_t to)
{
    const Text entry = EntryText(from);
    Delete(from);
    return Insert(to, entry);
}

void ListRows::Delete(std::size_t row)
{
    if (row < m_rows.size())
        m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(row));
}

std::vector<std::size_t> ListRows::Sort(bool ascending)
{
    std::vector<std::size_t> former(m_rows.size());
    std::iota(former.begin(), former.end(), std::size_t{0});
    std::ranges::stable_sort(former, [&](std::size_t a, std::size_t b) {
        return ascending ? m_rows[a] < m_rows[b] : m_rows[b] < m_rows[a];
    });
    std::vector<Row> sorted;
    sorted.reserve(m_rows.size());
    std::vector<std::size_t> places(m_rows.size());
    for (const std::size_t row : former) {
        places[row] = sorted.size();
        sorted.push_back(std::move(m_rows[row]));
    }
    m_rows = std::move(sorted);
    return places;
}

Text ListRows::JoinFields(const Row& row) const
{
    const bool hasSeparator = m_format.fieldSeparator != u'\0';
    Text entry;
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (i > 0 && hasSeparator)
            entry.push_back(m_format.fieldSeparator);
        const bool qualified =
            hasSeparator && m_format.qualifier != u'\0' && row[i].find(m_format.fieldSeparator) != Text::npos;
        if (qualified)
            entry.push_back(m_format.qualifier);
        entry += row[i];
        if (qualified)
            entry.push_back(m_format.qualifier);
    }
    return entry;
}

Text ListRows::EntryText(std::size_t row) const
{
    return JoinFields(m_rows[row]);
}

Text ListRows::ListText() const
{
    Text text;
    for (const Row& row : m_rows) {
        const Text joined = JoinFields(row);
        const TextView entry = Trim(joined);
        if (entry.empty())
            continue;
        text += entry;
        text.push_back(m_format.separator);
    }
    // Entries may begin or end with separators of their own.
    const std::size_t first = text.find_first_not_of(m_format.separator);
    if (first == Text::npos)
        return {};
    const std::size_t last = text.find_last_not_of(m_format.separator);
    return text.substr(first, last - first + 1);
}

} // namespace ov

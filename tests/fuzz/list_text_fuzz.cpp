// Converts list texts to rows and back, and compares them with rows of a simple implementation. The first
// line of an input contains the format (kFormats), then pairs of numbers: an operation (0 insert the
// text's own first entry, 1 delete, 2 move, 3 sort) and its row. The rest is the list text.

#include "controls/core/list_text.h"
#include "match/core/tokens.h"
#include "tests/fuzz/fuzz_input.h"

#include <set>

namespace ov::fuzz
{
namespace
{

constexpr ListFormat kFormats[] = {
    {.separator = u';'},
    {.separator = u','},
    {.separator = u';', .fieldSeparator = u':', .fieldCount = 2},
    {.separator = u';', .fieldSeparator = u',', .fieldCount = 2},
    {.separator = u';', .fieldSeparator = u',', .fieldCount = 4},
};

Text Upper(Text text)
{
    std::ranges::transform(text, text.begin(), ToUpperAscii);
    return text;
}

// The rows, implemented without any optimisation.
class LiteralRows
{
  public:
    explicit LiteralRows(const ListFormat& format) : m_format(format) {}

    const std::vector<ListRows::Row>& Rows() const { return m_rows; }

    void Fill(const Text& text)
    {
        m_rows.clear();
        std::size_t start = 0;
        std::size_t position = 0;
        if (text.empty())
            return;
        do {
            const std::size_t end = std::min(text.find(m_format.separator, position), text.size());
            const std::size_t opening = text.find(m_format.qualifier, position);
            if (end < text.size() && opening != Text::npos && opening < end) {
                const std::size_t closing = text.find(m_format.qualifier, opening + 1);
                if (closing == text.size() - 1) {
                    Insert(m_rows.size(), text.substr(start));
                    return;
                }
                if (closing != Text::npos) {
                    position = closing + 1;
                    continue;
                }
            }
            Insert(m_rows.size(), text.substr(start, end - start));
            start = position = end + 1;
        } while (position < text.size());
    }

    void Insert(std::size_t index, const Text& entry)
    {
        if (entry.empty())
            return;
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            if (Upper(EntryText(row)) == Upper(entry)) {
                Delete(row);
                index = row;
                break;
            }
        }
        ListRows::Row fields;
        for (std::size_t field = 0; field < m_format.fieldCount; ++field)
            fields.push_back(Field(entry, field));
        m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(std::min(index, m_rows.size())), fields);
    }

    void Delete(std::size_t row)
    {
        if (row < m_rows.size())
            m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(row));
    }

    void Move(std::size_t from, std::size_t to)
    {
        const Text entry = EntryText(from);
        Delete(from);
        Insert(to, entry);
    }

    void Sort(bool ascending)
    {
        std::ranges::stable_sort(m_rows,
                                 [&](const auto& a, const auto& b) { return ascending ? a < b : b < a; });
    }

    Text EntryText(std::size_t row) const
    {
        Text entry;
        for (std::size_t i = 0; i < m_rows[row].size(); ++i) {
            const Text& field = m_rows[row][i];
            if (i > 0)
                entry += m_format.fieldSeparator;
            const bool qualified =
                m_format.fieldSeparator != u'\0' && field.find(m_format.fieldSeparator) != Text::npos;
            entry += qualified ? m_format.qualifier + field + m_format.qualifier : field;
        }
        return entry;
    }

    Text ListText() const
    {
        Text text;
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            const Text joined = EntryText(row);
            if (const TextView entry = Trim(joined); !entry.empty())
                text.append(entry).push_back(m_format.separator);
        }
        while (!text.empty() && text.front() == m_format.separator)
            text.erase(0, 1);
        while (!text.empty() && text.back() == m_format.separator)
            text.pop_back();
        return text;
    }

    // Whether the list text certainly gives these rows again: no field contains a qualifier or the entry
    // separator, or begins or ends with white space; no row is empty or occurs twice.
    bool ComesBack() const
    {
        std::set<Text> entries;
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            for (const Text& field : m_rows[row]) {
                if (field.find(m_format.qualifier) != Text::npos ||
                    field.find(m_format.separator) != Text::npos || Trim(field) != field)
                    return false;
            }
            const Text entry = EntryText(row);
            if (entry.empty() || !entries.insert(Upper(entry)).second)
                return false;
        }
        return true;
    }

  private:
    Text Field(const Text& entry, std::size_t field) const
    {
        const char16_t stops[] = {m_format.fieldSeparator, u'\0'};
        Text token;
        std::size_t position = 0;
        for (std::size_t i = 0; i <= field; ++i) {
            const std::size_t consumed =
                ExtractTokenString(token, TextView(entry).substr(position), u" ", u" ", nullptr, stops,
                                   nullptr, &m_format.qualifier, 1024);
            if (consumed == 0)
                return {};
            position += consumed;
        }
        return token;
    }

    ListFormat m_format;
    std::vector<ListRows::Row> m_rows;
};

void RequireSame(const ListRows& rows, const LiteralRows& literal, const ListFormat& format)
{
    OV_REQUIRE(rows.Count() == literal.Rows().size());
    for (std::size_t row = 0; row < rows.Count(); ++row) {
        OV_REQUIRE(rows[row] == literal.Rows()[row]);
        OV_REQUIRE(rows[row].size() == format.fieldCount);
        OV_REQUIRE(rows.EntryText(row) == literal.EntryText(row));
        for (std::size_t field = 0; field < format.fieldCount; ++field)
            OV_REQUIRE(rows[row][field].size() <= 1024);
    }
    OV_REQUIRE(rows.ListText() == literal.ListText());
}

void Operate(ListRows& rows, LiteralRows& literal, unsigned operation, std::size_t where, TextView entry)
{
    const std::size_t count = rows.Count();
    if (operation == 0) {
        const auto inserted = rows.Insert(where, entry);
        literal.Insert(where, Text(entry));
        OV_REQUIRE(inserted.has_value() == !entry.empty());
        if (inserted)
            OV_REQUIRE(rows.Count() == count + (inserted->replaced ? 0 : 1) &&
                       inserted->index < rows.Count());
    } else if (operation == 1) {
        rows.Delete(where);
        literal.Delete(where);
    } else if (operation == 2 && count > 0) {
        const std::size_t to = where / count % count;
        const auto moved = rows.Move(where % count, to);
        literal.Move(where % count, to);
        if (moved && !moved->replaced)
            OV_REQUIRE(moved->index == to);
    } else if (operation == 3) {
        const std::vector<ListRows::Row> former = literal.Rows();
        const std::vector<std::size_t> places = rows.Sort(where % 2 == 0);
        literal.Sort(where % 2 == 0);
        OV_REQUIRE(places.size() == former.size());
        for (std::size_t i = 0; i < former.size(); ++i)
            OV_REQUIRE(rows[places[i]] == former[i]);
    }
}

void Run(FuzzInput input)
{
    Options options(input.Line());
    const ListFormat& format = kFormats[options.Number(std::size(kFormats) - 1)];
    const Text text = Characters(input.Rest());

    const std::vector<TextView> entries = SplitEntries(text, format);
    for (const TextView entry : entries) {
        for (std::size_t field = 0; field <= format.fieldCount; ++field)
            OV_REQUIRE(ReadField(entry, field, format).size() <= 1024);
    }
    ListRows rows(format);
    LiteralRows literal(format);
    rows.Fill(text);
    literal.Fill(text);
    OV_REQUIRE(rows.Count() <= entries.size());
    RequireSame(rows, literal, format);
    while (!options.Empty()) {
        const unsigned operation = options.Number(3);
        Operate(rows, literal, operation, options.Number(99), entries.empty() ? TextView() : entries.front());
        RequireSame(rows, literal, format);
    }

    const Text written = rows.ListText();
    OV_REQUIRE(written.empty() ||
               (written.front() != format.separator && written.back() != format.separator));
    ListRows again(format);
    LiteralRows literalAgain(format);
    again.Fill(written);
    literalAgain.Fill(written);
    RequireSame(again, literalAgain, format);
    if (literal.ComesBack()) {
        OV_REQUIRE(literalAgain.Rows() == literal.Rows());
        OV_REQUIRE(again.ListText() == written);
    }
}

} // namespace
} // namespace ov::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ov::fuzz::Run(ov::fuzz::FuzzInput(data, size));
    return 0;
}

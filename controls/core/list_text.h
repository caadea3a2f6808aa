#pragma once

#include "base/text.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace ov
{

/// How a variable writes several values into its one text.
struct ListFormat {
    char16_t separator = u';';       ///< between entries
    char16_t qualifier = u'"';       ///< encloses what holds a separator; NUL: there is none
    char16_t fieldSeparator = u'\0'; ///< between the fields of an entry; NUL for one field
    std::size_t fieldCount = 1;      ///< at least 1
};

/// The entries of a list text in order, qualifiers and blanks included; empty ones too. The parts
/// point into the given text.
std::vector<TextView> SplitEntries(TextView listText, const ListFormat& format);

/// The most characters of a field that the list editor keeps.
inline constexpr std::size_t kLongestField = 1024;

/// Field `field`, counted from 0, of an entry: trimmed, without its qualifiers, of at most so many
/// characters; empty when the entry has fewer fields.
Text ReadField(TextView entry, std::size_t field, const ListFormat& format,
               std::size_t longest = kLongestField);

/// The rows that a list text is edited in: each holds one entry, split into as many fields as the
/// format has.
class ListRows
{
  public:
    using Row = std::vector<Text>;

    /// Where an entry went, and whether it took the place of a row that held the same.
    struct Inserted {
        std::size_t index;
        bool replaced;
        bool operator==(const Inserted&) const = default;
    };

    explicit ListRows(const ListFormat& format) : m_format(format) {}

    std::size_t Count() const { return m_rows.size(); }
    /// The fields of a row; `row` must be below Count().
    const Row& operator[](std::size_t row) const { return m_rows[row]; }

    /// Replaces all rows by the entries of a list text, as inserting one after the other at the
    /// end would.
    void Fill(TextView listText);

    /// Inserts an entry as a row at the index, the end for one beyond it. A row that already reads
    /// back as this entry, case aside, gives up its place to it. None when the entry is empty.
    std::optional<Inserted> Insert(std::size_t index, TextView entry);

    /// Takes a row out and inserts what it reads back as at another index, as Insert does.
    /// None when the row vanished because it was empty. `from` must be below Count().
    std::optional<Inserted> Move(std::size_t from, std::size_t to);

    /// Nothing for a row that is not there.
    void Delete(std::size_t row);

    /// Orders the rows by the units of their fields, the first field first; equal rows keep their
    /// order. The result holds for each former index the new one.
    std::vector<std::size_t> Sort(bool ascending);

    /// A row as the text of an entry. Only a field that holds the field separator is put between
    /// qualifiers: with one field an entry is written bare, whatever it holds, and qualifiers
    /// within a field are not doubled. What reads the variables expects them so.
    Text EntryText(std::size_t row) const;

    /// All rows as a list text, without empty entries.
    Text ListText() const;

  private:
    std::optional<std::size_t> FindEqual(TextView entry) const;
    Text JoinFields(const Row& row) const;

    ListFormat m_format;
    std::vector<Row> m_rows;
};

} // namespace ov

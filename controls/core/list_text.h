#pragma once

#include "base/text.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace ov
{

/// How a variable stores several values in one text.
struct ListFormat {
    char16_t separator = u';';       ///< between entries
    char16_t qualifier = u'"';       ///< encloses fields that contain a separator; NUL for none
    char16_t fieldSeparator = u'\0'; ///< between the fields of an entry; NUL if entries have one field
    std::size_t fieldCount = 1;      ///< at least 1
};

/// The entries of a list text in order, including qualifiers, blanks and empty entries. The parts
/// point into the given text.
std::vector<TextView> SplitEntries(TextView listText, const ListFormat& format);

/// The most characters of a field that the list editor keeps.
inline constexpr std::size_t kLongestField = 1024;

/// Field `field` (counted from 0) of an entry: trimmed, without its qualifiers, with at most
/// `longest` characters; empty if the entry has fewer fields.
Text ReadField(TextView entry, std::size_t field, const ListFormat& format,
               std::size_t longest = kLongestField);

/// The rows in which a list text is edited. Each row holds one entry, split into as many fields as
/// the format has.
class ListRows
{
  public:
    using Row = std::vector<Text>;

    /// The index of an inserted entry, and whether it replaced a row with the same entry.
    struct Inserted {
        std::size_t index;
        bool replaced;
        bool operator==(const Inserted&) const = default;
    };

    explicit ListRows(const ListFormat& format) : m_format(format) {}

    std::size_t Count() const { return m_rows.size(); }
    /// The fields of a row; `row` must be less than Count().
    const Row& operator[](std::size_t row) const { return m_rows[row]; }

    /// Replaces all rows by the entries of a list text, with the result of inserting them one by one
    /// at the end.
    void Fill(TextView listText);

    /// Inserts an entry as a row at the index; beyond the end it is appended. A row that reads back as
    /// the same entry, ignoring case, is replaced by it. Returns nothing if the entry is empty.
    std::optional<Inserted> Insert(std::size_t index, TextView entry);

    /// Removes a row and inserts the entry that it reads back as at another index, as Insert does.
    /// Returns nothing if the row was empty and was only removed. `from` must be less than Count().
    std::optional<Inserted> Move(std::size_t from, std::size_t to);

    /// Does nothing if the row does not exist.
    void Delete(std::size_t row);

    /// Sorts the rows by the units of their fields, first field first. The sort is stable.
    /// Returns the new index for each former index.
    std::vector<std::size_t> Sort(bool ascending);

    /// The text of a row's entry. A field is put between qualifiers only if it contains the field
    /// separator. With one field an entry is written without qualifiers, and qualifiers
    /// within a field are not doubled. The programs that read the variables expect this.
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

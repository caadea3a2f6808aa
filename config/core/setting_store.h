#pragma once

#include "base/text.h"
#include "config/core/setting_table.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

namespace ov
{

/// Selects a table of the store. Every operation treats 0 as the current table and any other value
/// as the default table.
enum class TableSelector { Current = 0, Default = 1 };
inline constexpr TableSelector kCurrentTable = TableSelector::Current;
inline constexpr TableSelector kDefaultTable = TableSelector::Default;

/// All configuration variables between reading and writing a file: the current table (the file
/// being edited) and the default table (the defaults file, never written). Names and values are
/// compared case-sensitively. Only changes of the current table set the modified mark.
class SettingStore
{
  public:
    /// The variable's value; empty if the variable is absent.
    Text GetSettingValue(TextView name, TableSelector table) const;

    /// True if and only if the variable's value is "1".
    bool GetSettingFlag(TextView name, TableSelector table) const;

    /// True if the variable is present, even with an empty value.
    bool HasSetting(TextView name, TableSelector table) const;

    /// Inserts or updates a variable. An update keeps the variable's existing comment, so that
    /// comments in the file survive edits. In the current table, an insertion or a changed
    /// value sets the modified mark; a changed kind alone does not.
    void SetSetting(TextView name, TextView value, std::int32_t kind, TextView comment, TableSelector table);

    /// The variable's record, or nothing if it is absent. Its texts are valid until the next change.
    std::optional<SettingRecord> FindSetting(CompactView name, TableSelector table) const;

    /// Replaces a whole table. It is equivalent to clearing the table, which also clears the current
    /// table's modified mark, and inserting every variable, which sets the mark.
    void Replace(TableSelector table, SettingTable&& records);

    /// The number of variables in the table.
    std::size_t Count(TableSelector table) const { return Table(table).Count(); }

    /// An upper bound, close to the actual number, of the bytes that the table's texts occupy.
    std::size_t TextBytes(TableSelector table) const { return Table(table).TextBytes(); }

    /// Calls the function with every record of the table in ordinal order of the names, until it
    /// returns false.
    void VisitInOrder(TableSelector table, const std::function<bool(const SettingRecord&)>& visit) const;

    /// True if the current table was changed since the mark was last cleared.
    bool IsModified() const { return m_modified; }
    void SetModified(bool modified) { m_modified = modified; }

  private:
    const SettingTable& Table(TableSelector table) const
    {
        return table == kCurrentTable ? m_current : m_default;
    }
    SettingTable& Table(TableSelector table) { return table == kCurrentTable ? m_current : m_default; }

    SettingTable m_current;
    SettingTable m_default;
    bool m_modified = false;
};

} // namespace ov

#pragma once

#include "base/text.h"
#include "config/core/setting_table.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

namespace ov
{

/// Table selectors. Every operation takes 0 for the current table and any other value for
/// the default table.
inline constexpr int kCurrentTable = 0;
inline constexpr int kDefaultTable = 1;

/// All configuration variables between reading and writing a file: the current table (the file
/// being edited) and the default table (the defaults file, never written). Names and values are
/// compared case-sensitively. Only changes of the current table set the modified mark.
class SettingStore
{
  public:
    /// The variable's value; empty when it is absent.
    Text GetSettingValue(TextView name, int table) const;

    /// True exactly when the variable's value is "1".
    bool GetSettingFlag(TextView name, int table) const;

    /// True when the variable is present, even with an empty value.
    bool HasSetting(TextView name, int table) const;

    /// Inserts or updates a variable. An update keeps the comment that the variable has, so that
    /// what a file says above it survives edits. In the current table an insertion and a changed
    /// value set the modified mark; a changed kind alone does not.
    void SetSetting(TextView name, TextView value, std::int32_t kind, TextView comment, int table);

    /// The variable's record, nothing when it is absent. Its texts are valid until the next change.
    std::optional<SettingRecord> FindSetting(CompactView name, int table) const;

    /// Puts a whole new table in the place of the selected one. As emptying the table, which
    /// clears the current table's modified mark, and inserting every variable, which sets it.
    void Replace(int table, SettingTable&& records);

    /// The number of variables in the table.
    std::size_t Count(int table) const { return Table(table).Count(); }

    /// At least the number of bytes that the texts of the table take, and not much more.
    std::size_t TextBytes(int table) const { return Table(table).TextBytes(); }

    /// Calls the function with every record of the table in ordinal order of the names, until it
    /// returns false.
    void VisitInOrder(int table, const std::function<bool(const SettingRecord&)>& visit) const;

    /// True when the current table was changed since the mark was last cleared.
    bool IsModified() const { return m_modified; }
    void SetModified(bool modified) { m_modified = modified; }

  private:
    const SettingTable& Table(int table) const { return table == kCurrentTable ? m_current : m_default; }
    SettingTable& Table(int table) { return table == kCurrentTable ? m_current : m_default; }

    SettingTable m_current;
    SettingTable m_default;
    bool m_modified = false;
};

} // namespace ov

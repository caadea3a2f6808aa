#pragma once

#include "pages/core/setting_row.h"

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

namespace ov
{

/// The values that a page holds, one per row: what its controls show and what
/// it writes into the store. Rows are addressed by their index.
class PageValues
{
  public:
    /// The comment that the setting shown by a control is given in the file.
    using CommentOfControl = std::function<Text(int controlId)>;

    /// Starts with the rows' built-in values. The rows are kept by reference.
    explicit PageValues(std::span<const SettingRow> rows);

    std::span<const SettingRow> Rows() const { return m_rows; }

    /// The value of a row that holds a number (flags and indexes included).
    int& Number(std::size_t row) { return m_values[row].number; }
    /// The value of a row that holds a text.
    Text& String(std::size_t row) { return m_values[row].text; }

    /// The row of that variable; one past the last when the page has none.
    std::size_t FindRow(TextView variable) const;

    /// Takes every value from one of the store's tables. Nothing falls back to
    /// the built-in values: an absent flag is off, an absent text is empty.
    /// Only a number keeps what it was when there is nothing to read.
    void Load(const SettingStore& store, int table);

    /// Writes the values into the current table, new settings with their
    /// comment. A page without a window leaves settings alone that are there.
    void Save(SettingStore& store, bool hasWindow, const CommentOfControl& commentOf) const;

  private:
    struct Value {
        int number;
        Text text;
    };

    static bool IsSaved(const SettingRow& row, const SettingStore& store, bool hasWindow);

    std::span<const SettingRow> m_rows;
    std::vector<Value> m_values;
};

} // namespace ov

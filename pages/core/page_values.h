#pragma once

#include "base/text.h"
#include "pages/core/setting_row.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace ov
{

/// The text that a page stores for a number in that encoding, which must be one
/// that holds a number.
Text NumberToStore(Encoding encoding, int number);

/// The values of a page, one per row and companion: what its controls show and
/// what it writes into the store. Settings are addressed by the index of
/// their row or by their variable, companions by index or control.
class PageValues
{
  public:
    /// Starts with the rows' initial values. `rows` must outlive this object.
    explicit PageValues(const PageRows& rows);

    std::span<const SettingRow> Rows() const { return m_rows.settings; }

    /// The value of a row that holds a number, which includes flags and indexes.
    int& Number(std::size_t row) { return m_values[row].number; }
    /// The value of a row that holds a text.
    Text& String(std::size_t row) { return m_values[row].text; }

    /// The same, by variable, which must be one of the page's.
    int& NumberOf(TextView variable) { return m_values[RowOf(variable)].number; }
    Text& TextOf(TextView variable) { return m_values[RowOf(variable)].text; }

    /// The row of that variable; one past the last if the page has none.
    std::size_t FindRow(TextView variable) const;

    /// The value of a companion, by its index or by its control.
    int& CompanionNumber(std::size_t companion) { return m_companions[companion].number; }
    Text& CompanionString(std::size_t companion) { return m_companions[companion].text; }
    int& CompanionNumberOf(int controlId) { return m_companions[CompanionOf(controlId)].number; }
    Text& CompanionTextOf(int controlId) { return m_companions[CompanionOf(controlId)].text; }

    /// The value as the control shows it, which is also what reading the control
    /// back returns. In a list or group without an entry of that number nothing is
    /// selected (-1), and the text of an edit ends before a NUL.
    int ShownNumber(std::size_t row) const;
    Text ShownString(std::size_t row) const;
    int ShownCompanionNumber(std::size_t companion) const;
    Text ShownCompanionString(std::size_t companion) const;

    /// Replaces every value by what its control shows for it.
    void TakeShown();

    /// Sets the day that loading uses as today; without it, the clock's.
    void SetToday(std::chrono::year_month_day today) { m_today = today; }
    std::optional<std::chrono::year_month_day> Today() const { return m_today; }

    /// Prevents saving the setting, because the page cannot show its value. The store
    /// then keeps the setting unchanged, or remains without it.
    void HoldBack(TextView variable, bool heldBack) { m_values[RowOf(variable)].heldBack = heldBack; }

    /// True if all conditions of the dependency hold.
    bool Holds(const DependencyRow& dependency) const;

    /// Loads every value from one of the store's tables, then calls the page's
    /// afterLoad hook for the companions. Initial values are not restored: an absent
    /// flag is off, an absent text is empty. Only a number keeps its value
    /// if the stored text is empty.
    void Load(const SettingStore& store, TableSelector table);

    /// Calls the page's beforeSave hook, which computes settings from companions,
    /// and writes the settings into the current table, new ones with their comment.
    /// A page without a window does not change existing settings, and settings that
    /// it adds get no comment.
    void Save(SettingStore& store, bool hasWindow);

  private:
    struct Value {
        int number;
        Text text;
        int choices = kAnyNumber; ///< number of entries of a list, or of buttons of a group
        bool heldBack = false;
    };
    static constexpr int kAnyNumber = -1;

    static bool IsSaved(const SettingRow& row, const SettingStore& store, bool hasWindow);
    std::size_t RowOf(TextView variable) const;
    std::size_t CompanionOf(int controlId) const;
    int ChoicesOf(ControlKind control, int controlId) const;
    bool Holds(const Condition& condition) const;
    static int Shown(const Value& value);
    static Text Shown(ControlKind control, const Value& value);

    PageRows m_rows;
    std::vector<Value> m_values;
    std::vector<Value> m_companions;
    std::optional<std::chrono::year_month_day> m_today;
};

} // namespace ov

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

/// What the store gets for a number of a page in that encoding, which is one of
/// those that hold a number.
Text NumberToStore(Encoding encoding, int number);

/// The values that a page holds, one per row and companion: what its controls
/// show and what it writes into the store. Settings are addressed by the index
/// of their row or by their variable, companions by their control.
class PageValues
{
  public:
    /// Starts with the rows' built-in values. What the rows refer to stays theirs.
    explicit PageValues(const PageRows& rows);

    std::span<const SettingRow> Rows() const { return m_rows.settings; }

    /// The value of a row that holds a number (flags and indexes included).
    int& Number(std::size_t row) { return m_values[row].number; }
    /// The value of a row that holds a text.
    Text& String(std::size_t row) { return m_values[row].text; }

    /// The same by the variable, which must be one of the page's.
    int& NumberOf(TextView variable) { return m_values[RowOf(variable)].number; }
    Text& TextOf(TextView variable) { return m_values[RowOf(variable)].text; }

    /// The row of that variable; one past the last when the page has none.
    std::size_t FindRow(TextView variable) const;

    /// The value of a companion, by its index or by its control.
    int& CompanionNumber(std::size_t companion) { return m_companions[companion].number; }
    Text& CompanionString(std::size_t companion) { return m_companions[companion].text; }
    int& CompanionNumberOf(int controlId) { return m_companions[CompanionOf(controlId)].number; }
    Text& CompanionTextOf(int controlId) { return m_companions[CompanionOf(controlId)].text; }

    /// What a control makes of its value when it shows it; reading the control
    /// back gives this. A list or group without an entry of that number has none
    /// selected (-1), and an edit's text ends before a NUL.
    int ShownNumber(std::size_t row) const;
    Text ShownString(std::size_t row) const;
    int ShownCompanionNumber(std::size_t companion) const;
    Text ShownCompanionString(std::size_t companion) const;

    /// The day that loading takes for today; without one, the clock's.
    void SetToday(std::chrono::year_month_day today) { m_today = today; }
    std::optional<std::chrono::year_month_day> Today() const { return m_today; }

    /// Whether the setting stays in the store as it is, or stays out of it,
    /// because the page cannot show what it says.
    void HoldBack(TextView variable, bool heldBack) { m_values[RowOf(variable)].heldBack = heldBack; }

    /// Whether all conditions of the dependency hold.
    bool Holds(const DependencyRow& dependency) const;

    /// Takes every value from one of the store's tables, then lets the page's
    /// hook work out the companions. Nothing falls back to the built-in values:
    /// an absent flag is off, an absent text is empty. Only a number keeps what
    /// it was when there is nothing to read.
    void Load(const SettingStore& store, int table);

    /// Lets the page's hook work out the settings from the companions and
    /// writes them into the current table, new ones with their comment. A page
    /// without a window leaves existing settings alone, and those that it adds
    /// get no comment.
    void Save(SettingStore& store, bool hasWindow);

  private:
    struct Value {
        int number;
        Text text;
        int choices = kAnyNumber; ///< entries of a list, buttons of a group
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

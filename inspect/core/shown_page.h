#pragma once

#include "pages/core/page_values.h"

#include <chrono>

namespace ov
{

/// A page of the dialog as it is once its window exists: its values, and what its
/// controls show of them, without a window. Loading and saving do step by step
/// what the dialog's page does, so that the same bytes come out.
class ShownPage
{
  public:
    /// A page that has just been created, with nothing in the store yet.
    ShownPage(const PageRows& rows, std::chrono::year_month_day today);

    const PageRows& Rows() const { return *m_rows; }

    /// The values after the last load, as the page's dependencies see them.
    const PageValues& Values() const { return m_values; }

    /// Takes the settings from one of the store's tables. A date that does not
    /// exist, which the dialog reports, leaves the values that it then shows.
    void Load(const SettingStore& store, int table);

    /// Writes the settings into the current table, as Save does for a page whose
    /// window exists.
    void Save(SettingStore& store);

    /// Whether the dependency's control is enabled, or shown.
    bool Holds(const DependencyRow& dependency) const { return m_values.Holds(dependency); }

  private:
    void ShowValues();
    void ReadControls();
    void Refresh();

    const PageRows* m_rows;
    PageValues m_values;
    PageValues m_controls; ///< what the controls show
};

} // namespace ov

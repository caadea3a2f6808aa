#pragma once

#include "pages/core/page_values.h"

#include <chrono>

namespace ov
{

/// A page of the dialog after its window was created: its values and the contents
/// of its controls, without a window. Loading and saving follow the dialog's page
/// step by step, so that they produce the same bytes.
class ShownPage
{
  public:
    /// A page that has just been created, with an empty store.
    ShownPage(const PageRows& rows, std::chrono::year_month_day today);

    const PageRows& Rows() const { return *m_rows; }

    /// The values after the last load, for evaluating the page's dependencies.
    const PageValues& Values() const { return m_values; }

    /// Loads the settings from one of the store's tables. For an impossible date,
    /// which the dialog reports, the values are those that the dialog then shows.
    void Load(const SettingStore& store, TableSelector table);

    /// Writes the settings into the current table, as Save does for a page that has
    /// a window.
    void Save(SettingStore& store);

    /// True if the dependency's control is enabled, or shown.
    bool Holds(const DependencyRow& dependency) const { return m_values.Holds(dependency); }

  private:
    void ShowValues();
    void ReadControls();
    void Refresh();

    const PageRows* m_rows;
    PageValues m_values;
    PageValues m_controls; ///< the contents of the controls
};

} // namespace ov

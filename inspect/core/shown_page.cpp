#include "inspect/core/shown_page.h"

#include "pages/scan_period/rows.h"

namespace ov
{

ShownPage::ShownPage(const PageRows& rows, std::chrono::year_month_day today)
    : m_rows(&rows), m_values(rows), m_controls(rows)
{
    m_values.SetToday(today);
    ShowValues();
    Load(SettingStore(), kCurrentTable);
    ReadControls();
    Refresh();
}

// The contents of the controls are separate from the values: a hook may change a value
// without showing it, and when the page is saved the control's content counts.
void ShownPage::ShowValues()
{
    for (std::size_t row = 0; row < m_rows->settings.size(); ++row) {
        m_controls.Number(row) = m_values.ShownNumber(row);
        m_controls.String(row) = m_values.ShownString(row);
    }
    for (std::size_t row = 0; row < m_rows->companions.size(); ++row) {
        m_controls.CompanionNumber(row) = m_values.ShownCompanionNumber(row);
        m_controls.CompanionString(row) = m_values.ShownCompanionString(row);
    }
}

void ShownPage::ReadControls()
{
    for (std::size_t row = 0; row < m_rows->settings.size(); ++row) {
        const ControlKind control = m_rows->settings[row].control;
        if (control == ControlKind::None)
            continue;
        if (ShowsText(control))
            m_values.String(row) = m_controls.String(row);
        else
            m_values.Number(row) = m_controls.Number(row);
    }
    for (std::size_t row = 0; row < m_rows->companions.size(); ++row) {
        if (ShowsText(m_rows->companions[row].control))
            m_values.CompanionString(row) = m_controls.CompanionString(row);
        else
            m_values.CompanionNumber(row) = m_controls.CompanionNumber(row);
    }
}

void ShownPage::Refresh()
{
    if (m_rows->refresh != nullptr && m_rows->refresh(m_values))
        ShowValues();
}

void ShownPage::Load(const SettingStore& store, TableSelector table)
{
    // The Scan Period page begins with this, because its controls provide what the stored text
    // does not contain. For all other pages it has no effect.
    ReadControls();
    Refresh();
    try {
        m_values.Load(store, table);
    } catch (const ImpossibleDate&) {
        ShowValues();
        Refresh();
        return;
    }
    ShowValues();
    Refresh();
    if (m_rows->loadMarksModified)
        ReadControls();
}

void ShownPage::Save(SettingStore& store)
{
    ReadControls();
    m_values.Save(store, true);
}

} // namespace ov

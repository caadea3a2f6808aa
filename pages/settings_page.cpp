#include "pages/settings_page.h"

#include <stdexcept>

#include "controls/application.h"
#include "controls/tool_tip_control.h"
#include "wizard/preferences_wizard.h"

namespace
{
/// The button that begins the group a radio button belongs to.
int FirstOfGroup(HWND button)
{
    while (button != nullptr && (::GetWindowLongPtrW(button, GWL_STYLE) & WS_GROUP) == 0)
        button = ::GetWindow(button, GW_HWNDPREV);
    return button != nullptr ? ::GetDlgCtrlID(button) : 0;
}
} // namespace

IMPLEMENT_DYNAMIC(CSettingsPage, CWizardPage)

CSettingsPage::CSettingsPage(CPreferencesWizard* owner, const ov::PageInfo& info, const ov::PageRows& rows)
    : CWizardPage(owner, static_cast<UINT>(info.pageId), CSize(info.scrollWidth, info.scrollHeight),
                  info.templateId),
      m_rows(rows), m_values(rows.settings)
{
    CSettingsPage::InitControlLayout();
}

void CSettingsPage::InitControlLayout()
{
    for (const ov::LayoutRow& row : m_rows.layout)
        AddLayout(static_cast<UINT>(row.controlId), row.layoutFlags);
}

BOOL CSettingsPage::OnInitDialog()
{
    CWizardPage::OnInitDialog();
    LoadSettings(TakePendingSelector());
    RegisterTooltips();
    return TRUE;
}

void CSettingsPage::RegisterTooltips()
{
    CToolTipControl* tips = GetToolTipControl();
    if (tips == nullptr)
        return;
    for (const ov::SettingRow& row : m_rows.settings) {
        if (row.helpId != 0)
            tips->AddTool(GetDlgItem(row.controlId), row.helpId);
    }
    for (const ov::HelpRow& row : m_rows.extraHelp)
        tips->AddTool(GetDlgItem(row.controlId), row.helpId);
}

void CSettingsPage::DoDataExchange(CDataExchange* exchange)
{
    CWizardPage::DoDataExchange(exchange);
    for (size_t row = 0; row < m_rows.settings.size(); ++row) {
        const int id = m_rows.settings[row].controlId;
        switch (m_rows.settings[row].control) {
        case ov::ControlKind::None:
            break;
        case ov::ControlKind::CheckBox:
            DDX_Check(exchange, id, m_values.Number(row));
            break;
        case ov::ControlKind::Edit:
            DDX_Text(exchange, id, m_values.String(row));
            break;
        case ov::ControlKind::DropDownList:
            DDX_CBIndex(exchange, id, m_values.Number(row));
            break;
        case ov::ControlKind::RadioGroup:
            DDX_Radio(exchange, id, m_values.Number(row));
            break;
        }
    }
}

bool CSettingsPage::LoadSettings(int selector)
{
    CPreferencesWizard* wizard = GetParentWizard();
    if (wizard == nullptr)
        return true;
    m_values.Load(wizard->Store(), selector);
    UpdateData(FALSE);
    return true;
}

bool CSettingsPage::SaveSettings(CPreferencesWizard* wizard)
{
    if (wizard == nullptr)
        wizard = GetParentWizard();
    if (wizard == nullptr)
        return true;
    const bool hasWindow = GetSafeHwnd() != nullptr;
    if (hasWindow)
        UpdateData(TRUE);
    m_values.Save(wizard->Store(), hasWindow, [&](int controlId) {
        return wizard->MakeSettingComment(hasWindow ? GetDlgItem(controlId) : nullptr);
    });
    return true;
}

BOOL CSettingsPage::OnCmdMsg(UINT id, int code, NMHDR* notify, LRESULT* result)
{
    if (CWizardPage::OnCmdMsg(id, code, notify, result))
        return TRUE;
    if (notify != nullptr || !ReportsChange(static_cast<int>(id), code))
        return FALSE;
    OnSettingChanged();
    return TRUE;
}

bool CSettingsPage::ReportsChange(int id, int code) const
{
    for (const ov::SettingRow& row : m_rows.settings) {
        switch (row.control) {
        case ov::ControlKind::None:
            break;
        case ov::ControlKind::CheckBox:
            if (row.controlId == id && code == BN_CLICKED)
                return true;
            break;
        case ov::ControlKind::Edit:
            if (row.controlId == id && code == EN_CHANGE)
                return true;
            break;
        case ov::ControlKind::DropDownList:
            if (row.controlId == id && code == CBN_SELCHANGE)
                return true;
            break;
        case ov::ControlKind::RadioGroup:
            if (code == BN_CLICKED && row.controlId == FirstOfGroup(::GetDlgItem(m_hWnd, id)))
                return true;
            break;
        }
    }
    return false;
}

ov::Text& CSettingsPage::TextOf(ov::TextView variable)
{
    const size_t row = m_values.FindRow(variable);
    if (row == m_rows.settings.size())
        throw std::logic_error("The page has no such setting.");
    return m_values.String(row);
}

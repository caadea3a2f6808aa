#include "pages/scan_period/page.h"

#include "base/placeholders.h"
#include "pages/core/page_rows.h"
#include "pages/scan_period/ids.h"
#include "pages/scan_period/rows.h"
#include "resources/ids.h"
#include "wizard/preferences_wizard.h"

#include <commctrl.h>

namespace
{
constexpr int pickers[] = {IDC_SCAN_PERIOD_DATE_1, IDC_SCAN_PERIOD_DATE_2};

ov::Text MessageOf(const ov::ImpossibleDate& error)
{
    return ov::FillPlaces(AfxLoadString(IDS_SCAN_PERIOD_IMPOSSIBLE_DATE), {error.Variable(), error.Value()});
}

} // namespace

IMPLEMENT_DYNAMIC(CPageScanPeriod, CSettingsPage)

CPageScanPeriod::CPageScanPeriod(CPreferencesWizard* owner) : CSettingsPage(owner, ov::kScanPeriodRows) {}

BOOL CPageScanPeriod::OnInitDialog()
{
    // The user cannot choose a day that could not be read back.
    SYSTEMTIME limits[2] = {};
    limits[0].wYear = 1969;
    limits[0].wMonth = 12;
    limits[0].wDay = 31;
    limits[1].wYear = 9999;
    limits[1].wMonth = 12;
    limits[1].wDay = 31;
    for (const int id : pickers)
        GetDlgItem(id)->SendMessage(DTM_SETRANGE, GDTR_MIN | GDTR_MAX, reinterpret_cast<LPARAM>(limits));
    return CSettingsPage::OnInitDialog();
}

bool CPageScanPeriod::LoadSettings(ov::TableSelector table)
{
    if (GetParentWizard() == nullptr)
        return true;
    // Parts that the stored text does not contain keep the controls' values.
    UpdateData(TRUE);
    UpdateScanPeriodControls();
    try {
        CSettingsPage::LoadSettings(table);
    } catch (const ov::ImpossibleDate& error) {
        UpdateData(FALSE);
        UpdateScanPeriodControls();
        SetModified(true);
        AfxShowMessageBox(m_hWnd, MessageOf(error), AfxLoadString(IDS_APP_CAPTION),
                          MB_OK | MB_ICONEXCLAMATION | MB_SETFOREGROUND | MB_TOPMOST);
    }
    return true;
}

void CPageScanPeriod::UpdateScanPeriodControls()
{
    CSettingsPage::RefreshControls();
}

BOOL CPageScanPeriod::OnCmdMsg(UINT id, int code, NMHDR* notify, LRESULT* result)
{
    const BOOL handled = CSettingsPage::OnCmdMsg(id, code, notify, result);
    // After this change the user's input decides the fixed period.
    if (handled && id != IDC_SCAN_PERIOD_ALLOW_USER)
        Values().HoldBack(ov::kScanPeriodVariable, false);
    return handled;
}

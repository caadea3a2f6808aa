#include "pages/weighting/page.h"

#include "pages/core/page_rows.h"

#include <commctrl.h>

IMPLEMENT_DYNAMIC(CPageWeighting, CSettingsPage)

BEGIN_MESSAGE_MAP(CPageWeighting, CSettingsPage)
    ON_WM_HSCROLL()
END_MESSAGE_MAP()

CPageWeighting::CPageWeighting(CPreferencesWizard* owner) : CSettingsPage(owner, ov::kWeightingRows) {}

BOOL CPageWeighting::OnInitDialog()
{
    for (const ov::BarRow& bar : Rows().bars)
        GetDlgItem(bar.controlId)->SendMessage(TBM_SETRANGE, TRUE, MAKELPARAM(0, bar.highest));
    return CSettingsPage::OnInitDialog();
}

bool CPageWeighting::LoadSettings(ov::TableSelector table)
{
    const bool loaded = CSettingsPage::LoadSettings(table);
    if (GetParentWizard() == nullptr)
        return loaded;
    // A track bar is limited to its range; the edit shows the text even if it is outside.
    for (const ov::BarRow& bar : Rows().bars) {
        const CWnd* const control = GetDlgItem(bar.controlId);
        const LRESULT position = ov::ToInteger(Values().TextOf(bar.variable));
        if (control->SendMessage(TBM_GETPOS) != position)
            control->SendMessage(TBM_SETPOS, TRUE, position);
    }
    return loaded;
}

void CPageWeighting::OnHScroll(UINT code, UINT position, CWnd* sender)
{
    if (sender == nullptr) {
        // Requests from the page's own scroll bar.
        CSettingsPage::OnHScroll(code, position, sender);
        return;
    }
    for (const ov::BarRow& bar : Rows().bars) {
        if (sender->m_hWnd == GetDlgItem(bar.controlId)->m_hWnd)
            Values().TextOf(bar.variable) =
                ov::FormatInteger(static_cast<int>(sender->SendMessage(TBM_GETPOS)));
    }
    UpdateData(FALSE);
    SetModified(true);
}

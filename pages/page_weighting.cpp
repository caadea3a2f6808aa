#include "pages/page_weighting.h"

#include <commctrl.h>

#include "pages/core/weighting_rows.h"

namespace
{
constexpr int highestWeight = 20;
} // namespace

IMPLEMENT_DYNAMIC(CPageWeighting, CSettingsPage)

BEGIN_MESSAGE_MAP(CPageWeighting, CSettingsPage)
    ON_WM_HSCROLL()
END_MESSAGE_MAP()

CPageWeighting::CPageWeighting(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::WeightingRows())
{
}

BOOL CPageWeighting::OnInitDialog()
{
    for (const ov::SettingRow& row : Values().Rows())
        GetDlgItem(row.commentControlId)->SendMessage(TBM_SETRANGE, TRUE, MAKELPARAM(0, highestWeight));
    return CSettingsPage::OnInitDialog();
}

bool CPageWeighting::LoadSettings(int selector)
{
    const bool loaded = CSettingsPage::LoadSettings(selector);
    if (GetParentWizard() == nullptr)
        return loaded;
    // A bar stops at its ends; the edit shows the text whatever it says.
    for (size_t row = 0; row < Values().Rows().size(); ++row) {
        GetDlgItem(Values().Rows()[row].commentControlId)
            ->SendMessage(TBM_SETPOS, TRUE, ov::ToInteger(Values().String(row)));
    }
    return loaded;
}

void CPageWeighting::OnHScroll(UINT code, UINT position, CWnd* sender)
{
    if (sender == nullptr) {
        // The page's own scroll bar.
        CSettingsPage::OnHScroll(code, position, sender);
        return;
    }
    for (size_t row = 0; row < Values().Rows().size(); ++row) {
        if (sender->m_hWnd == GetDlgItem(Values().Rows()[row].commentControlId)->m_hWnd)
            Values().String(row) = ov::FormatInteger(static_cast<int>(sender->SendMessage(TBM_GETPOS)));
    }
    UpdateData(FALSE);
    SetModified(true);
}

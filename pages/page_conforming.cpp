#include "pages/page_conforming.h"

#include "pages/core/conforming_rows.h"
#include "resources/ids.h"

namespace
{
constexpr int maximumErrorLimit = 10000;
} // namespace

IMPLEMENT_DYNAMIC(CPageConforming, CSettingsPage)

BEGIN_MESSAGE_MAP(CPageConforming, CSettingsPage)
    ON_BN_CLICKED(IDC_CONFORMING_IGNORED_LEVELS_BROWSE, &CPageConforming::OnBrowseIgnoredLevels)
END_MESSAGE_MAP()

CPageConforming::CPageConforming(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::ConformingRows())
{
}

BOOL CPageConforming::OnInitDialog()
{
    // Seconds that an arrow is held, and the increment from then on.
    UDACCEL acceleration[] = {{0, 1}, {3, 5}, {6, 10}};
    CSpinButtonCtrl spin;
    spin.Attach(GetDlgItem(IDC_CONFORMING_MAX_ERROR_SPIN)->m_hWnd);
    spin.SetBuddy(GetDlgItem(IDC_CONFORMING_MAX_ERROR));
    spin.SetRange32(0, maximumErrorLimit);
    spin.SetAccel(static_cast<int>(std::size(acceleration)), acceleration);
    spin.Detach();
    return CSettingsPage::OnInitDialog();
}

bool CPageConforming::LoadSettings(int selector)
{
    if (!CSettingsPage::LoadSettings(selector))
        return false;
    if (GetParentWizard() != nullptr) {
        UpdateData(TRUE);
        SetModified(true);
    }
    return true;
}

void CPageConforming::OnBrowseIgnoredLevels()
{
    // A refusal takes the keyboard focus away altogether: this page has always
    // handed it to an edit that stands for no control.
    if (!EditValueList(TextOf(u"_ORTHOVAL_CHECK_IGNORED_LEVELS"), 0, u',', u'"', 0, 1))
        ::SetFocus(nullptr);
}

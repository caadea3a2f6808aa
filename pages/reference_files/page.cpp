#include "pages/reference_files/page.h"

#include "pages/reference_files/rows.h"
#include "resources/page_ids.h"

namespace
{
constexpr int needBorderSheets[] = {
    IDC_REFERENCE_FILES_MUST_BE_ATTACHED,
    IDC_REFERENCE_FILES_DEFAULT_MODEL,
    IDC_REFERENCE_FILES_PLACE_COMMAND,
    IDC_REFERENCE_FILES_PLACE_COMMAND_BROWSE,
};

constexpr int needPlotShape[] = {
    IDC_REFERENCE_FILES_DISALLOW_OUTSIDE,   IDC_REFERENCE_FILES_IGNORE_OUTSIDE,
    IDC_REFERENCE_FILES_SCALE_FACTOR,       IDC_REFERENCE_FILES_SCALE_FACTOR_LABEL,
    IDC_REFERENCE_FILES_SCALE_FACTOR_RANGE,
};
} // namespace

IMPLEMENT_DYNAMIC(CPageReferenceFiles, CSettingsPage)

BEGIN_MESSAGE_MAP(CPageReferenceFiles, CSettingsPage)
    ON_EN_CHANGE(IDC_REFERENCE_FILES_BORDER_SHEETS, &CPageReferenceFiles::Refresh)
    ON_EN_CHANGE(IDC_REFERENCE_FILES_PLOT_SHAPE, &CPageReferenceFiles::Refresh)
    ON_BN_CLICKED(IDC_REFERENCE_FILES_DISALLOW_OUTSIDE, &CPageReferenceFiles::Refresh)
    ON_BN_CLICKED(IDC_REFERENCE_FILES_IGNORE_OUTSIDE, &CPageReferenceFiles::Refresh)
    ON_CONTROL(EN_KILLFOCUS, IDC_REFERENCE_FILES_SCALE_FACTOR, &CPageReferenceFiles::Refresh)
    ON_BN_CLICKED(IDC_REFERENCE_FILES_BORDER_SHEETS_BROWSE, &CPageReferenceFiles::OnBrowseBorderSheets)
    ON_BN_CLICKED(IDC_REFERENCE_FILES_PLOT_SHAPE_BROWSE, &CPageReferenceFiles::OnBrowsePlotShape)
END_MESSAGE_MAP()

CPageReferenceFiles::CPageReferenceFiles(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::ReferenceFilesRows())
{
}

CPageReferenceFiles::Given CPageReferenceFiles::GivenInMembers()
{
    return {!Values().TextOf(u"_ORTHOVAL_BORDERSHEETS").empty(),
            !Values().TextOf(u"_ORTHOVAL_BORDERSHEETS_PLOT_SHAPE").empty()};
}

// Boxes that are disabled keep their check: it comes back with the text.
void CPageReferenceFiles::EnableControls(Given given)
{
    for (const int control : needBorderSheets)
        GetDlgItem(control)->EnableWindow(given.borderSheets);
    for (const int control : needPlotShape)
        GetDlgItem(control)->EnableWindow(given.plotShape);
    GetDlgItem(IDC_REFERENCE_FILES_PLOT_SHAPE_EXISTS)->EnableWindow(given.borderSheets && given.plotShape);
}

void CPageReferenceFiles::RefreshControls()
{
    CSettingsPage::RefreshControls();
    EnableControls(GivenInMembers());
}

void CPageReferenceFiles::Refresh()
{
    const Given before = GivenInMembers();
    UpdateData(TRUE);
    CSettingsPage::RefreshControls();
    EnableControls(before);
    SetModified(true);
}

// The editor gives the text at once, without a key that a refresh would follow.
void CPageReferenceFiles::OnBrowseBorderSheets()
{
    UpdateData(TRUE);
    const ov::Text before = Values().TextOf(u"_ORTHOVAL_BORDERSHEETS");
    Browse(IDC_REFERENCE_FILES_BORDER_SHEETS_BROWSE);
    if (Values().TextOf(u"_ORTHOVAL_BORDERSHEETS") != before)
        Refresh();
}

void CPageReferenceFiles::OnBrowsePlotShape()
{
    Browse(IDC_REFERENCE_FILES_PLOT_SHAPE_BROWSE);
    Refresh();
}

#include "pages/reference_files/page.h"

#include "pages/core/page_rows.h"
#include "pages/reference_files/ids.h"

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

CPageReferenceFiles::CPageReferenceFiles(CPreferencesWizard* owner)
    : CSettingsPage(owner, ov::kReferenceFilesRows)
{
}

void CPageReferenceFiles::Refresh()
{
    const ov::PageValues before = Values();
    UpdateData(TRUE);
    ApplyRefreshHook();
    ApplyDependencies(before);
    SetModified(true);
}

// The list editor changes the text without a key event, so the refresh is called here.
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

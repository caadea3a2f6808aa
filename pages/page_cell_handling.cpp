#include "pages/page_cell_handling.h"

#include "pages/cell_handling/rows.h"

IMPLEMENT_DYNAMIC(CPageCellHandling, CSettingsPage)

CPageCellHandling::CPageCellHandling(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::CellHandlingRows())
{
}

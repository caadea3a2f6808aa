#include "pages/page_cell_handling.h"

#include "pages/core/cell_handling_rows.h"

IMPLEMENT_DYNAMIC(CPageCellHandling, CSettingsPage)

CPageCellHandling::CPageCellHandling(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::CellHandlingRows())
{
}

#include "pages/page_colour_table.h"

#include "pages/colour_table/rows.h"

IMPLEMENT_DYNAMIC(CPageColourTable, CSettingsPage)

CPageColourTable::CPageColourTable(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::ColourTableRows())
{
}

#include "pages/page_drafting.h"

#include "pages/drafting/rows.h"

IMPLEMENT_DYNAMIC(CPageDrafting, CSettingsPage)

CPageDrafting::CPageDrafting(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::DraftingRows())
{
}

#include "pages/page_title_block.h"

#include "pages/title_block/rows.h"

IMPLEMENT_DYNAMIC(CPageTitleBlock, CSettingsPage)

CPageTitleBlock::CPageTitleBlock(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::TitleBlockRows())
{
}

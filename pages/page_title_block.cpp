#include "pages/page_title_block.h"

#include "pages/core/title_block_rows.h"

IMPLEMENT_DYNAMIC(CPageTitleBlock, CSettingsPage)

CPageTitleBlock::CPageTitleBlock(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::TitleBlockRows())
{
}

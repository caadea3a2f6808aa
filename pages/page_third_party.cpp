#include "pages/page_third_party.h"

#include "pages/third_party/rows.h"

IMPLEMENT_DYNAMIC(CPageThirdParty, CSettingsPage)

CPageThirdParty::CPageThirdParty(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::ThirdPartyRows())
{
}

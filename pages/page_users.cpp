#include "pages/page_users.h"

#include "pages/users/rows.h"

IMPLEMENT_DYNAMIC(CPageUsers, CSettingsPage)

CPageUsers::CPageUsers(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::UsersRows())
{
}

#include "pages/page_users.h"

#include "pages/core/users_rows.h"

IMPLEMENT_DYNAMIC(CPageUsers, CSettingsPage)

CPageUsers::CPageUsers(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::UsersRows())
{
}

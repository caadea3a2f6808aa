#include "pages/page_languages.h"

#include "pages/languages/rows.h"

IMPLEMENT_DYNAMIC(CPageLanguages, CSettingsPage)

CPageLanguages::CPageLanguages(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::LanguagesRows())
{
}

#include "pages/page_languages.h"

#include "pages/core/languages_rows.h"

IMPLEMENT_DYNAMIC(CPageLanguages, CSettingsPage)

CPageLanguages::CPageLanguages(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::LanguagesRows())
{
}

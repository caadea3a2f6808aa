#include "pages/page_file_naming_convention.h"

#include "pages/file_naming/rows.h"

IMPLEMENT_DYNAMIC(CPageFileNamingConvention, CSettingsPage)

CPageFileNamingConvention::CPageFileNamingConvention(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::FileNamingRows())
{
}

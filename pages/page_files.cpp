#include "pages/page_files.h"

#include "pages/files/rows.h"

IMPLEMENT_DYNAMIC(CPageFiles, CSettingsPage)

CPageFiles::CPageFiles(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::FilesRows())
{
}

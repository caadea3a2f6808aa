#include "pages/page_model_naming_convention.h"

#include "pages/model_naming/rows.h"

IMPLEMENT_DYNAMIC(CPageModelNamingConvention, CSettingsPage)

CPageModelNamingConvention::CPageModelNamingConvention(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::ModelNamingRows())
{
}

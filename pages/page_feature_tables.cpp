#include "pages/page_feature_tables.h"

#include "pages/feature_tables/rows.h"

IMPLEMENT_DYNAMIC(CPageFeatureTables, CSettingsPage)

CPageFeatureTables::CPageFeatureTables(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::FeatureTablesRows())
{
}

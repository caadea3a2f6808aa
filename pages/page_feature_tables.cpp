#include "pages/page_feature_tables.h"

#include "pages/core/feature_tables_rows.h"

IMPLEMENT_DYNAMIC(CPageFeatureTables, CSettingsPage)

CPageFeatureTables::CPageFeatureTables(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::FeatureTablesRows())
{
}

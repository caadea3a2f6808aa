#include "pages/page_signature_cell.h"

#include "pages/signature_cell/rows.h"

IMPLEMENT_DYNAMIC(CPageSignatureCell, CSettingsPage)

CPageSignatureCell::CPageSignatureCell(CPreferencesWizard* owner, const ov::PageInfo& info)
    : CSettingsPage(owner, info, ov::SignatureCellRows())
{
}

#include "wizard/left_pane.h"

#include "controls/core/layout.h"
#include "controls/dialog_app.h"
#include "controls/tool_tip_control.h"
#include "pages/core/page_catalogue.h"
#include "resources/ids.h"
#include "wizard/preferences_wizard.h"

namespace
{
constexpr UINT leftPaneId = 30;
// The width of the list's borders; without it the one column would need a scroll bar.
constexpr int columnMargin = 5;
} // namespace

IMPLEMENT_DYNAMIC(CLeftPane, CWizardPage)

BEGIN_MESSAGE_MAP(CLeftPane, CWizardPage)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_LEFT_PANE_LIST, &CLeftPane::OnItemChanged)
END_MESSAGE_MAP()

CLeftPane::CLeftPane(CPreferencesWizard* wizard, CSize scrollSize)
    : CWizardPage(wizard, leftPaneId, scrollSize, IDD_LEFT_PANE)
{
    CLeftPane::InitControlLayout();
}

void CLeftPane::DoDataExchange(CDataExchange* exchange)
{
    CWizardPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_LEFT_PANE_LIST, m_list);
}

void CLeftPane::InitControlLayout()
{
    AddLayout(IDC_LEFT_PANE_LIST, ov::LayoutStretchHeight);
}

UINT CLeftPane::AccessibleNameId(int) const
{
    return IDS_PANE_COLUMN; // the list has no visible header
}

void CLeftPane::RegisterTooltips()
{
    if (CToolTipControl* tips = GetTooltipControl())
        tips->AddTool(&m_list, IDS_HELP_LEFT_PANE_LIST);
}

BOOL CLeftPane::OnInitDialog()
{
    CWizardPage::OnInitDialog();
    m_list.ShowNoHorizontalBar();
    if (m_list.GetColumnCount() == 0) {
        m_list.InsertCaptionedColumn(0, IDS_PANE_COLUMN, ColumnWidth());
        m_list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP);
    }
    FillList();
    RegisterTooltips();
    return TRUE;
}

int CLeftPane::ColumnWidth() const
{
    CRect rectangle;
    m_list.GetWindowRect(&rectangle);
    return rectangle.Width() - columnMargin;
}

void CLeftPane::OnTemplateLayout()
{
    CWizardPage::OnTemplateLayout();
    if (m_list.GetColumnCount() > 0)
        ListView_SetColumnWidth(m_list.m_hWnd, 0, ColumnWidth());
}

void CLeftPane::FillList()
{
    // With redrawing enabled, each row would redraw the list and its header.
    m_list.SetRedraw(FALSE);
    for (const ov::PageInfo* page : ov::PaneRows()) {
        const int row = m_list.AppendRow(AfxLoadString(page->titleId));
        m_list.SetItemData(row, static_cast<DWORD_PTR>(page->pageId));
    }
    m_list.SetRedraw(TRUE);
    m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
}

bool CLeftPane::CreateOrShow(CWnd* parent, const CRect& rectangle)
{
    return CWizardPage::CreateOrShow(parent, rectangle);
}

bool CLeftPane::Show(CPreferencesWizard* wizard, const CRect& rectangle)
{
    if (!CreateOrShow(wizard, rectangle))
        return false;
    OnPostShow();
    return true;
}

void CLeftPane::OnItemChanged(NMHDR* header, LRESULT* result)
{
    *result = 0;
    const auto* change = reinterpret_cast<const NMLISTVIEW*>(header);
    if ((change->uChanged & LVIF_STATE) == 0 || (change->uNewState & LVIS_SELECTED) == 0)
        return;
    CPreferencesWizard* const wizard = GetParentWizard();
    const int row = m_list.GetNextItem(-1, LVNI_SELECTED);
    if (row >= 0 && wizard != nullptr)
        wizard->SelectPage(static_cast<UINT>(m_list.GetItemData(row)));
}

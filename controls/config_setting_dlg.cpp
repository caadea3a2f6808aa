#include "controls/config_setting_dlg.h"

#include "base/placeholders.h"
#include "controls/core/dialog_units.h"
#include "controls/core/layout.h"
#include "controls/dialog_app.h"
#include "controls/tool_tip_control.h"
#include "resources/ids.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace
{
// All sizes are in pixels at the usual resolution.
// A dialog for file names, which are long, is wider by this much.
constexpr int browsingExtraWidth = 200;
constexpr int columnMargin = 5;
constexpr int moveIconSize = 16; // at the usual resolution
// The dialog posts this to itself; see OnRowChanged.
constexpr UINT showSelectionMessage = WM_APP + 1;
} // namespace

IMPLEMENT_DYNAMIC(CConfigSettingDlg, CResizableDlg)

BEGIN_MESSAGE_MAP(CConfigSettingDlg, CResizableDlg)
    ON_WM_DESTROY()
    ON_WM_GETMINMAXINFO()
    ON_MESSAGE(showSelectionMessage, &CConfigSettingDlg::OnShowSelection)
    ON_EN_CHANGE(IDC_CONFIG_SETTING_VALUE, &CConfigSettingDlg::OnValueChanged)
    ON_BN_CLICKED(IDC_CONFIG_SETTING_INSERT, &CConfigSettingDlg::OnInsert)
    ON_BN_CLICKED(IDC_CONFIG_SETTING_DELETE, &CConfigSettingDlg::OnDelete)
    ON_BN_CLICKED(IDC_CONFIG_SETTING_MOVE_UP, &CConfigSettingDlg::OnMoveUp)
    ON_BN_CLICKED(IDC_CONFIG_SETTING_MOVE_DOWN, &CConfigSettingDlg::OnMoveDown)
    ON_BN_CLICKED(IDC_CONFIG_SETTING_BROWSE, &CConfigSettingDlg::OnBrowse)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_CONFIG_SETTING_LIST, &CConfigSettingDlg::OnRowChanged)
    ON_NOTIFY(LVN_COLUMNCLICK, IDC_CONFIG_SETTING_LIST, &CConfigSettingDlg::OnColumnClick)
END_MESSAGE_MAP()

CConfigSettingDlg::CConfigSettingDlg(CWnd* parent, ov::Text listText, UINT browsing, char16_t separator,
                                     char16_t qualifier, char16_t fieldSeparator, size_t fieldCount)
    : CResizableDlg(IDD_CONFIG_SETTING, parent, true, ov::kDesignWidth, ov::kDesignHeight),
      m_listText(std::move(listText)), m_fieldCount(std::max<size_t>(fieldCount, 1)),
      m_browsing(browsing != 0), m_rows({separator, qualifier, fieldSeparator, m_fieldCount})
{
    CConfigSettingDlg::InitControlLayout();
}

void CConfigSettingDlg::DoDataExchange(CDataExchange* exchange)
{
    CResizableDlg::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_CONFIG_SETTING_LIST, m_list);
    DDX_Control(exchange, IDC_CONFIG_SETTING_VALUE, m_valueEdit);
    DDX_Control(exchange, IDC_CONFIG_SETTING_MOVE_UP, m_moveUpButton);
    DDX_Control(exchange, IDC_CONFIG_SETTING_MOVE_DOWN, m_moveDownButton);
    DDX_Control(exchange, IDC_CONFIG_SETTING_DELETE, m_deleteButton);
    DDX_Control(exchange, IDC_CONFIG_SETTING_INSERT, m_insertButton);
    DDX_Control(exchange, IDC_CONFIG_SETTING_BROWSE, m_browseButton);
    DDX_Text(exchange, IDC_CONFIG_SETTING_VALUE, m_valueText);
}

void CConfigSettingDlg::InitControlLayout()
{
    using namespace ov;
    AddLayout(IDC_CONFIG_SETTING_LIST, LayoutKeepTop | LayoutStretchWidth | LayoutStretchHeight);
    AddLayout(IDC_CONFIG_SETTING_VALUE, LayoutAnchorBottom | LayoutStretchWidth);
    AddLayout(IDC_CONFIG_SETTING_BROWSE, LayoutAnchorRight | LayoutAnchorBottom);
    for (const UINT button : std::initializer_list<UINT>{IDC_CONFIG_SETTING_INSERT, IDC_CONFIG_SETTING_DELETE,
                                                         IDC_CONFIG_SETTING_MOVE_UP,
                                                         IDC_CONFIG_SETTING_MOVE_DOWN, IDOK, IDCANCEL})
        AddLayout(button, LayoutKeepTop | LayoutAnchorRight);
}

UINT CConfigSettingDlg::AccessibleNameId(int controlId) const
{
    switch (controlId) {
    case IDC_CONFIG_SETTING_LIST:
        return IDS_CONFIG_SETTING_COLUMN;
    case IDC_CONFIG_SETTING_VALUE:
        return IDS_NAME_VALUE;
    case IDC_CONFIG_SETTING_MOVE_UP:
        return IDS_NAME_MOVE_UP;
    case IDC_CONFIG_SETTING_MOVE_DOWN:
        return IDS_NAME_MOVE_DOWN;
    case IDC_CONFIG_SETTING_BROWSE:
        return IDS_NAME_BROWSE_FILE;
    default:
        return 0;
    }
}

BOOL CConfigSettingDlg::OnInitDialog()
{
    CResizableDlg::OnInitDialog();
    RegisterTooltips();
    m_valueEdit.SetLimitText();
    if (m_list.GetColumnCount() == 0)
        CreateColumns();
    // A message posted by an earlier window of this dialog was lost with that window.
    m_selectionChanged = false;
    FillList();
    if (m_browsing) {
        CRect rectangle;
        GetWindowRect(&rectangle);
        SetWindowPos(nullptr, 0, 0, rectangle.Width() + browsingExtraWidth, rectangle.Height(),
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    m_browseButton.ShowWindow(m_browsing ? SW_SHOW : SW_HIDE);
    ShowSelection();
    UpdateButtons();
    return TRUE;
}

void CConfigSettingDlg::RegisterTooltips()
{
    CToolTipControl* tips = GetTooltipControl();
    if (tips == nullptr)
        return;
    tips->AddTool(&m_list, IDS_HELP_CONFIG_SETTING_LIST);
    tips->AddTool(&m_valueEdit, IDS_HELP_CONFIG_SETTING_VALUE);
    tips->AddTool(&m_insertButton, IDS_HELP_CONFIG_SETTING_INSERT);
    tips->AddTool(&m_deleteButton, IDS_HELP_CONFIG_SETTING_DELETE);
    tips->AddTool(GetDlgItem(IDOK), IDS_HELP_CONFIG_SETTING_OK);
    tips->AddTool(GetDlgItem(IDCANCEL), IDS_HELP_PREFERENCES_CANCEL);
    tips->AddTool(&m_browseButton, IDS_HELP_CONFIG_SETTING_BROWSE);
}

void CConfigSettingDlg::CreateColumns()
{
    CRect rectangle;
    m_list.GetWindowRect(&rectangle);
    const int columns = static_cast<int>(m_fieldCount);
    for (int column = 0; column < columns; ++column)
        m_list.InsertCaptionedColumn(column, IDS_CONFIG_SETTING_COLUMN,
                                     (rectangle.Width() - columnMargin) / columns);
    m_list.SetExtendedStyle(LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP);
}

void CConfigSettingDlg::FillList()
{
    m_rows.Fill(m_listText);
    m_list.SetRedraw(FALSE);
    m_list.DeleteAllItems();
    for (size_t row = 0; row < m_rows.Count(); ++row)
        m_list.InsertRow(static_cast<int>(row), m_rows[row]);
    m_list.SetRedraw(TRUE);
    m_list.Invalidate();
    if (m_rows.Count() > 0)
        SelectRow(0);
}

void CConfigSettingDlg::OnTemplateLayout()
{
    CResizableDlg::OnTemplateLayout();
    ShowMoveIcon(m_moveUpButton, m_moveUpIcon, IDI_MOVE_UP);
    ShowMoveIcon(m_moveDownButton, m_moveDownIcon, IDI_MOVE_DOWN);
}

void CConfigSettingDlg::ShowMoveIcon(CButton& button, ResourceIcon& shown, UINT iconId) const
{
    ResourceIcon icon = LoadResourceIcon(iconId, ov::PixelsAt(moveIconSize, static_cast<int>(Resolution())));
    button.SetIcon(icon.get());
    shown = std::move(icon);
}

// The tooltip window outlives this dialog, so the dialog removes its controls from it.
void CConfigSettingDlg::OnDestroy()
{
    if (CToolTipControl* tips = GetTooltipControl()) {
        for (const HWND child : AfxChildWindows(m_hWnd))
            tips->DelTool(CWnd::FromHandle(child));
    }
    CResizableDlg::OnDestroy();
}

void CConfigSettingDlg::OnGetMinMaxInfo(MINMAXINFO* info)
{
    ApplyMinimumSize(info);
}

void CConfigSettingDlg::ShowValue(ov::Text text)
{
    m_valueText = std::move(text);
    UpdateData(FALSE);
}

void CConfigSettingDlg::UpdateButtons()
{
    const int rows = m_list.GetItemCount();
    // If several rows are selected, the move buttons move the first one.
    const int first = m_list.GetNextItem(-1, LVNI_SELECTED);
    EnableButton(m_insertButton, !ov::Trim(m_valueText).empty(), m_valueEdit);
    EnableButton(m_deleteButton, first >= 0, m_list);
    EnableButton(m_moveUpButton, rows > 1 && first > 0, m_list);
    EnableButton(m_moveDownButton, rows > 1 && first >= 0 && first < rows - 1, m_list);
}

void CConfigSettingDlg::EnableButton(CButton& button, bool enable, CWnd& next)
{
    if (enable == (button.IsWindowEnabled() != FALSE))
        return;
    // A disabled button that keeps the focus would swallow keyboard input.
    if (!enable && ::GetFocus() == button.m_hWnd)
        SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next.m_hWnd), TRUE);
    button.EnableWindow(enable);
}

void CConfigSettingDlg::SelectRow(int row)
{
    constexpr UINT selected = LVIS_SELECTED | LVIS_FOCUSED;
    m_list.SetItemState(row, selected, selected);
    m_list.EnsureVisible(row, FALSE);
}

void CConfigSettingDlg::RemoveShownRow(int row)
{
    // Some list views report a deleted row as deselected. Its value must not
    // overwrite what the user may have typed into the value field.
    m_removingRow = true;
    m_list.DeleteRow(row);
    m_removingRow = false;
}

bool CConfigSettingDlg::ShowInsertedRow(const std::optional<ov::ListRows::Inserted>& inserted)
{
    if (!inserted)
        return false;
    const int row = static_cast<int>(inserted->index);
    if (inserted->replaced)
        RemoveShownRow(row);
    m_list.InsertRow(row, m_rows[inserted->index]);
    m_list.EnsureVisible(row, FALSE);
    return true;
}

void CConfigSettingDlg::OnValueChanged()
{
    m_selectedValue.reset();
    UpdateData(TRUE);
    UpdateButtons();
}

void CConfigSettingDlg::OnInsert()
{
    ShowSelection();
    UpdateData(TRUE);
    if (ov::Trim(m_valueText).empty())
        return;
    // Inserted as typed: blanks are removed only when fields are read.
    ShowInsertedRow(m_rows.Insert(m_rows.Count(), m_valueText));
    ShowValue({});
    UpdateButtons();
}

bool CConfigSettingDlg::ConfirmDeletion(UINT rowCount)
{
    const ov::Text question = ov::FillNumber(AfxLoadString(IDS_ASK_DELETE_ITEMS), static_cast<int>(rowCount));
    return AfxShowMessageBox(m_hWnd, question, AfxLoadString(IDS_APP_CAPTION),
                             MB_YESNO | MB_ICONQUESTION | MB_SETFOREGROUND | MB_TOPMOST) == IDYES;
}

void CConfigSettingDlg::OnDelete()
{
    const UINT selected = m_list.GetSelectedCount();
    if (selected == 0 || (selected > 1 && !ConfirmDeletion(selected)))
        return;
    m_list.SetRedraw(FALSE);
    // From the end, so that the indices of the remaining rows stay valid.
    for (int row = m_list.GetItemCount() - 1; row >= 0; --row) {
        if (m_list.GetItemState(row, LVIS_SELECTED) == 0)
            continue;
        RemoveShownRow(row);
        m_rows.Delete(static_cast<size_t>(row));
    }
    m_list.SetRedraw(TRUE);
    m_list.Invalidate();
    UpdateButtons();
}

void CConfigSettingDlg::MoveSelectedRow(int step)
{
    const int row = m_list.GetNextItem(-1, LVNI_SELECTED);
    const int target = row + step;
    if (row < 0 || target < 0 || target >= m_list.GetItemCount())
        return;
    RemoveShownRow(row);
    const auto inserted = m_rows.Move(static_cast<size_t>(row), static_cast<size_t>(target));
    if (ShowInsertedRow(inserted))
        SelectRow(static_cast<int>(inserted->index));
    UpdateButtons();
}

void CConfigSettingDlg::OnMoveUp()
{
    MoveSelectedRow(-1);
}

void CConfigSettingDlg::OnMoveDown()
{
    MoveSelectedRow(1);
}

void CConfigSettingDlg::OnBrowse()
{
    CFileDialog chooser(TRUE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_EXPLORER | OFN_ENABLESIZING, nullptr,
                        this);
    const ov::Text title = AfxLoadString(IDS_SELECT_FILE);
    chooser.m_ofn.lpstrTitle = Wide(title);
    if (chooser.DoModal() != IDOK)
        return;
    m_selectedValue.reset();
    ShowValue(chooser.GetPathName());
    UpdateButtons();
}

void CConfigSettingDlg::OnRowChanged(NMHDR* header, LRESULT* result)
{
    *result = 0;
    const auto* const change = reinterpret_cast<const NMLISTVIEW*>(header);
    const bool selection = (change->uChanged & LVIF_STATE) != 0 &&
                           ((change->uNewState ^ change->uOldState) & LVIS_SELECTED) != 0;
    if (!selection || m_removingRow)
        return;
    // Selecting thousands of rows sends a notification for each. The value is shown once, after all
    // of them and before any input, because posted messages are retrieved first.
    if (!m_selectionChanged)
        m_selectionChanged = PostMessage(showSelectionMessage) != FALSE;
    // A change of all rows at once has no row index.
    if (change->iItem >= 0 && static_cast<size_t>(change->iItem) < m_rows.Count())
        m_selectedValue = m_rows.EntryText(static_cast<size_t>(change->iItem));
}

LRESULT CConfigSettingDlg::OnShowSelection(WPARAM, LPARAM)
{
    m_selectionChanged = false;
    ShowSelection();
    UpdateButtons();
    return 0;
}

void CConfigSettingDlg::ShowSelection()
{
    if (!m_selectedValue)
        return;
    const ov::Text value = std::move(*m_selectedValue);
    m_selectedValue.reset();
    ShowValue(value);
}

void CConfigSettingDlg::OnColumnClick(NMHDR*, LRESULT* result)
{
    *result = 0;
    m_list.ArrangeRows(m_rows.Sort(m_list.ToggleSortDirection()));
    UpdateButtons();
}

void CConfigSettingDlg::OnOK()
{
    m_listText = m_rows.ListText();
    CResizableDlg::OnOK();
}

#include "wizard/preferences_wizard.h"

#include "controls/core/layout.h"
#include "controls/dialog_app.h"
#include "controls/tool_tip_control.h"
#include "framework/window_resolution.h"
#include "framework/work_area.h"
#include "pages/core/page_catalogue.h"
#include "resources/ids.h"
#include "wizard/core/wizard_state.h"
#include "wizard/messages.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr CSize leftPaneScrollSize{100, 300};
} // namespace

IMPLEMENT_DYNAMIC(CPreferencesWizard, CResizableDlg)

BEGIN_MESSAGE_MAP(CPreferencesWizard, CResizableDlg)
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_SYSCOMMAND()
    ON_WM_GETMINMAXINFO()
    ON_WM_QUERYDRAGICON()
    ON_BN_CLICKED(IDC_PREFERENCES_BROWSE, &CPreferencesWizard::OnBrowseConfigFile)
    ON_BN_CLICKED(IDC_PREFERENCES_SAVE, &CPreferencesWizard::OnSave)
    ON_BN_CLICKED(IDCANCEL, &CPreferencesWizard::OnCancelCommand)
    ON_BN_CLICKED(IDC_PREFERENCES_LOAD_DEFAULTS, &CPreferencesWizard::OnLoadDefaults)
    ON_MESSAGE(WM_PAGE_MODIFIED, &CPreferencesWizard::OnPageModified)
END_MESSAGE_MAP()

CPreferencesWizard::CPreferencesWizard(CWnd* parent, WizardSetup setup)
    : CResizableDlg(IDD_PREFERENCES, parent, true, ov::kDesignWidth, ov::kDesignHeight),
      m_setup(std::move(setup))
{
    CPreferencesWizard::InitControlLayout();
}

CPreferencesWizard::~CPreferencesWizard()
{
    m_configFile.reset();
    m_pages.clear();
    m_leftPane.reset();
}

void CPreferencesWizard::DoDataExchange(CDataExchange* exchange)
{
    CResizableDlg::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_PREFERENCES_CONFIG_FILE, m_configPathEdit);
    DDX_Control(exchange, IDC_PREFERENCES_SAVE, m_saveButton);
    DDX_Control(exchange, IDC_PREFERENCES_LOAD_DEFAULTS, m_loadDefaultsButton);
    DDX_Control(exchange, IDC_PREFERENCES_DESCRIPTION, m_focusDescriptionEdit);
    DDX_Control(exchange, IDC_PREFERENCES_VARIABLE_NAME, m_focusVariableEdit);
}

void CPreferencesWizard::InitControlLayout()
{
    using namespace ov;
    constexpr auto bottomLeft = LayoutKeepLeft | LayoutAnchorBottom;
    AddLayout(IDC_PREFERENCES_PANE_AREA, LayoutStretchHeight);
    AddLayout(IDC_PREFERENCES_PAGE_AREA, LayoutStretchWidth | LayoutStretchHeight);
    AddLayout(IDC_PREFERENCES_CONFIG_FILE_LABEL, LayoutKeepLeft | LayoutKeepTop);
    AddLayout(IDC_PREFERENCES_CONFIG_FILE, LayoutKeepTop | LayoutStretchWidth);
    AddLayout(IDC_PREFERENCES_BROWSE, LayoutKeepTop | LayoutAnchorRight);
    AddLayout(IDC_PREFERENCES_DESCRIPTION_LABEL, bottomLeft);
    AddLayout(IDC_PREFERENCES_DESCRIPTION, LayoutAnchorBottom | LayoutStretchWidth);
    AddLayout(IDC_PREFERENCES_SAVE, bottomLeft);
    AddLayout(IDC_PREFERENCES_LOAD_DEFAULTS, bottomLeft);
    AddLayout(IDCANCEL, LayoutAnchorRight | LayoutAnchorBottom);
    AddLayout(IDC_PREFERENCES_VARIABLE_NAME_LABEL, bottomLeft);
    AddLayout(IDC_PREFERENCES_VARIABLE_NAME, bottomLeft);
}

void CPreferencesWizard::RegisterTooltips()
{
    CToolTipControl* tips = GetTooltipControl();
    if (tips == nullptr)
        return;
    tips->AddTool(&m_configPathEdit, IDS_HELP_PREFERENCES_CONFIG_FILE);
    tips->AddTool(GetDlgItem(IDC_PREFERENCES_BROWSE), IDS_HELP_PREFERENCES_BROWSE);
    tips->AddTool(&m_saveButton, IDS_HELP_PREFERENCES_SAVE);
    tips->AddTool(GetDlgItem(IDCANCEL), IDS_HELP_PREFERENCES_CANCEL);
}

bool CPreferencesWizard::CreatePages()
{
    for (const ov::PageInfo* info : ov::PageCatalogue())
        m_pages.push_back(m_setup.makePage(*info, this));
    return true;
}

bool CPreferencesWizard::CreateLeftPane()
{
    if (!m_leftPane)
        m_leftPane = std::make_unique<CLeftPane>(this, leftPaneScrollSize);
    if (!m_leftPane->Show(this, PlaceholderRect(IDC_PREFERENCES_PANE_AREA)))
        return false;
    PlaceAfter(*m_leftPane, IDC_PREFERENCES_PANE_AREA);
    return true;
}

BOOL CPreferencesWizard::OnInitDialog()
{
    CResizableDlg::OnInitDialog();
    for (const auto& page : m_pages)
        page->BeginOpening();
    if (!CreateLeftPane())
        return TRUE;
    RegisterTooltips();

    // Every page gets its window now, so that all of them have their values
    // before the user sees any.
    for (const ov::PageInfo* page : ov::PagesById())
        SelectPage(static_cast<UINT>(page->pageId));
    SelectPage(static_cast<UINT>(ov::PaneRows().front()->pageId));
    m_store.SetModified(false);

    m_defaultPath = m_setup.defaultPath;
    const bool haveDefaults = !ov::Trim(m_defaultPath).empty();
    if (haveDefaults) {
        ReadConfigFile(ov::kDefaultTable);
        LoadAllPages(ov::kDefaultTable);
    }
    m_currentPath = m_setup.currentPath;
    const bool haveCurrent = !ov::Trim(m_currentPath).empty();
    if (haveCurrent) {
        m_configPathEdit.SetWindowText(m_currentPath);
        OpenConfigFile(true);
    }
    if (haveDefaults && m_currentPath.empty())
        m_store.SetModified(false);
    ShowFirstPage();
    UpdateButtons();
    FitIntoWorkArea();
    return TRUE;
}

void CPreferencesWizard::ShowFirstPage()
{
    for (const auto& page : m_pages)
        page->EndOpening();
    if (m_currentPage >= 0)
        m_pages[static_cast<size_t>(m_currentPage)]->ShowWindow(SW_SHOW);
}

void CPreferencesWizard::OnTemplateLayout()
{
    CResizableDlg::OnTemplateLayout();
    ResourceIcon icon = LoadResourceIcon(IDI_PREFERENCES, AfxGetMetrics(SM_CXICON, Resolution()));
    if (!icon)
        return;
    SetIcon(icon.get(), TRUE);
    SetIcon(icon.get(), FALSE);
    m_icon = std::move(icon);
}

void CPreferencesWizard::FitIntoWorkArea()
{
    // On a small screen the task bar would cover the buttons at the bottom.
    const CRect work = WorkArea();
    CRect window;
    GetWindowRect(&window);
    const CSize size(std::min(window.Width(), work.Width()), std::min(window.Height(), work.Height()));
    const CRect fitting = AfxMovedInto(CRect(window.TopLeft(), size), work);
    if (fitting != window)
        MoveWindow(fitting);
}

CRect CPreferencesWizard::PlaceholderRect(int id) const
{
    CRect rectangle;
    if (const CWnd* placeholder = GetDlgItem(id)) {
        placeholder->GetWindowRect(&rectangle);
        ScreenToClient(&rectangle);
    }
    return rectangle;
}

void CPreferencesWizard::PlaceAfter(CWnd& child, int placeholderId)
{
    // The tab order is the Z order: the child replaces its placeholder there.
    const UINT drawing = child.IsWindowVisible() ? 0 : SWP_NOREDRAW | SWP_DEFERERASE;
    if (const CWnd* placeholder = GetDlgItem(placeholderId))
        child.SetWindowPos(placeholder, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | drawing);
}

void CPreferencesWizard::SelectPage(UINT pageId)
{
    const auto found =
        std::ranges::find_if(m_pages, [&](const auto& page) { return page->GetPageId() == pageId; });
    if (found == m_pages.end())
        return;
    const int index = static_cast<int>(found - m_pages.begin());
    if (index == m_currentPage)
        return;
    m_currentPage = index;
    CWizardPage& page = **found;
    const bool isNew = page.GetSafeHwnd() == nullptr;
    if (page.CreateOrShow(this, PlaceholderRect(IDC_PREFERENCES_PAGE_AREA))) {
        // The page keeps this Z order position, because all pages in between are hidden.
        if (isNew)
            PlaceAfter(page, IDC_PREFERENCES_PAGE_AREA);
        page.OnPostShow();
    }
    for (const auto& other : m_pages) {
        if (other.get() != &page && other->GetSafeHwnd() != nullptr)
            other->ShowWindow(SW_HIDE);
    }
}

HWND CPreferencesWizard::FocusAfterLosing(HWND lost) const
{
    for (size_t index = 0; m_leftPane != nullptr && index < m_pages.size(); ++index) {
        const HWND page = m_pages[index]->GetSafeHwnd();
        const bool isOn = page != nullptr && (page == lost || ::IsChild(page, lost));
        if (isOn && static_cast<int>(index) != m_currentPage)
            return m_leftPane->FindControl(IDC_LEFT_PANE_LIST);
    }
    return CResizableDlg::FocusAfterLosing(lost);
}

void CPreferencesWizard::RepositionCurrentPage()
{
    if (m_currentPage < 0 || m_currentPage >= static_cast<int>(m_pages.size()))
        return;
    if (GetSafeHwnd() != nullptr && GetDlgItem(IDC_PREFERENCES_PAGE_AREA) != nullptr)
        m_pages[static_cast<size_t>(m_currentPage)]->MoveToRect(PlaceholderRect(IDC_PREFERENCES_PAGE_AREA));
}

void CPreferencesWizard::OnSize(UINT type, int width, int height)
{
    CResizableDlg::OnSize(type, width, height);
    if (type != SIZE_MINIMIZED && m_leftPane)
        m_leftPane->MoveToRect(PlaceholderRect(IDC_PREFERENCES_PANE_AREA));
}

void CPreferencesWizard::OnGetMinMaxInfo(MINMAXINFO* info)
{
    ApplyMinimumSize(info);
}

void CPreferencesWizard::OnSysCommand(UINT id, LPARAM lParam)
{
    CResizableDlg::OnSysCommand(id, lParam);
}

void CPreferencesWizard::OnPaint()
{
    if (!IsIconic()) {
        CResizableDlg::OnPaint();
        return;
    }
    CPaintDC paint(this);
    CRect client;
    GetClientRect(&client);
    const int x = (client.Width() - AfxGetMetrics(SM_CXICON, Resolution()) + 1) / 2;
    const int y = (client.Height() - AfxGetMetrics(SM_CYICON, Resolution()) + 1) / 2;
    paint.DrawIcon(x, y, m_icon.get());
}

HCURSOR CPreferencesWizard::OnQueryDragIcon()
{
    return m_icon.get();
}

BOOL CPreferencesWizard::PreTranslateMessage(MSG* message)
{
    UpdateFocusItems();
    const HWND focus = ::GetFocus();
    const BOOL taken = CResizableDlg::PreTranslateMessage(message);
    // Not after a click, because scrolling would move the clicked button away.
    const bool isKey = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    if (isKey && ::GetFocus() != focus)
        ScrollToFocus();
    return taken;
}

void CPreferencesWizard::ScrollToFocus()
{
    if (m_currentPage < 0)
        return;
    CWizardPage& page = *m_pages[static_cast<size_t>(m_currentPage)];
    const HWND focus = ::GetFocus();
    if (page.GetSafeHwnd() != nullptr && ::IsChild(page, focus))
        page.ScrollTo(focus);
}

void CPreferencesWizard::UpdateFocusItems()
{
    const HWND focus = ::GetFocus();
    if (focus == nullptr || focus == m_focusDescriptionEdit.GetSafeHwnd() || focus == m_lastFocus)
        return;
    m_lastFocus = focus;
    CWnd* control = CWnd::FromHandle(focus);
    if (control == nullptr || !control->IsWindowVisible() || focus == m_focusVariableEdit.GetSafeHwnd())
        return;
    if (const CToolTipControl* tips = GetTooltipControl()) {
        m_focusDescriptionEdit.SetWindowText(tips->GetDescription(control));
        m_focusVariableEdit.SetWindowText(tips->GetVariableName(control));
    }
}

void CPreferencesWizard::UpdateButtons()
{
    const ov::ButtonStates states =
        ov::StatesOfButtons(m_store.IsModified(), m_store.Count(ov::kDefaultTable));
    if (m_saveButton.GetSafeHwnd() != nullptr)
        m_saveButton.EnableWindow(states.save);
    if (m_loadDefaultsButton.GetSafeHwnd() != nullptr)
        m_loadDefaultsButton.EnableWindow(states.loadDefaults);
}

void CPreferencesWizard::LoadAllPages(ov::TableSelector table)
{
    for (const auto& page : m_pages) {
        if (page->GetSafeHwnd() != nullptr)
            page->LoadSettings(table);
        else
            page->SetPendingTable(table);
    }
    m_store.SetModified(table != ov::kCurrentTable);
    UpdateButtons();
}

LRESULT CPreferencesWizard::OnPageModified(WPARAM, LPARAM modified)
{
    m_store.SetModified(modified != 0);
    UpdateButtons();
    return 1;
}

void CPreferencesWizard::OnLoadDefaults()
{
    LoadAllPages(ov::kDefaultTable);
}

void CPreferencesWizard::OnSave()
{
    if (SaveAllPages())
        EndDialog(IDOK);
}

void CPreferencesWizard::OnCancelCommand()
{
    if (m_store.IsModified()) {
        const int answer = ShowMessage(AfxLoadString(IDS_ASK_ABANDON),
                                       MB_YESNOCANCEL | MB_ICONQUESTION | MB_SETFOREGROUND | MB_TOPMOST);
        // Every other answer keeps the edits, also 0 for a box that could not be shown.
        if (answer != IDYES && (answer != IDNO || !SaveAllPages()))
            return;
    }
    EndDialog(IDCANCEL);
}

void CPreferencesWizard::OnOK()
{
    // Enter in one of the read-only fields arrives as IDOK. There is no OK button,
    // and closing the dialog here would discard the edits without a question.
}

int CPreferencesWizard::ShowMessage(const ov::Text& text, UINT type)
{
    return AfxShowMessageBox(m_hWnd, text, AfxLoadString(IDS_APP_CAPTION), type);
}

#include "wizard/wizard_page.h"

#include "controls/config_setting_dlg.h"
#include "controls/core/dialog_units.h"
#include "controls/core/layout.h"
#include "controls/dropped_list.h"
#include "framework/focus.h"
#include "resources/ids.h"
#include "wizard/core/wizard_state.h"
#include "wizard/messages.h"
#include "wizard/preferences_wizard.h"
#include "wizard/prefs_mem_dc.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr int pageColour = COLOR_MENU;

ov::KeyTarget TargetOf(const CWnd* window)
{
    if (window == nullptr)
        return ov::KeyTarget::None;
    if (!AfxIsOfClass(window->m_hWnd, WC_EDITW))
        return ov::KeyTarget::Other;
    return (window->GetStyle() & ES_MULTILINE) != 0 ? ov::KeyTarget::MultiLineEdit
                                                    : ov::KeyTarget::SingleLineEdit;
}
} // namespace

IMPLEMENT_DYNAMIC(CWizardPage, CResizableDlg)

BEGIN_MESSAGE_MAP(CWizardPage, CResizableDlg)
    ON_MESSAGE(WM_SHOWWINDOW, &CWizardPage::OnShowWindow)
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(WM_CTLCOLORSTATIC, &CWizardPage::OnCtlColorStatic)
    ON_MESSAGE(WM_CTLCOLORBTN, &CWizardPage::OnCtlColorStatic)
    ON_MESSAGE(WM_PRINTCLIENT, &CWizardPage::OnPrintClient)
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

CWizardPage::CWizardPage(CPreferencesWizard* owner, UINT pageId, CSize scrollSize, UINT templateId)
    : CResizableDlg(templateId, nullptr, false, ov::kDesignWidth, ov::kDesignHeight),
      m_templateId(templateId), m_pageId(pageId), m_owner(owner), m_contentSize(scrollSize),
      m_scroller(*this, scrollSize)
{
}

CWizardPage::~CWizardPage() = default;

void CWizardPage::OnTemplateLayout()
{
    CResizableDlg::OnTemplateLayout();
    const ov::Size content = ov::SizeInUnits({m_contentSize.cx, m_contentSize.cy}, Units());
    const CSize needed = Units() != ov::kUsualUnits ? NeededSize() : CSize();
    m_scroller.SetDisplaySize(CSize(content.width, content.height), needed);
}

void CWizardPage::OnResolutionChanged()
{
    // The template's positions are those of an unscrolled page.
    m_scroller.ScrollToOrigin();
    CResizableDlg::OnResolutionChanged();
}

BOOL CWizardPage::PreTranslateMessage(MSG* message)
{
    const bool isKey = message->message == WM_KEYDOWN || message->message == WM_KEYUP;
    if (isKey && message->wParam == VK_RETURN) {
        // Enter must never reach the dialog as IDOK: the dialog would close.
        switch (ov::EnterRule(TargetOf(CWnd::FromHandle(message->hwnd)))) {
        case ov::EnterAction::Swallow:
            return TRUE;
        case ov::EnterAction::BecomeSpace:
            message->wParam = VK_SPACE;
            break;
        case ov::EnterAction::Pass:
            break;
        }
    }
    if (isKey && message->wParam == VK_TAB && OnTabKey())
        return TRUE;
    return CResizableDlg::PreTranslateMessage(message);
}

bool CWizardPage::CreateOrShow(CWnd* parent, const CRect& rectangle)
{
    if (GetSafeHwnd() == nullptr && !Create(GetTemplateId(), parent))
        return false;
    if (parent != nullptr) {
        CRect present;
        GetWindowRect(&present);
        parent->ScreenToClient(&present);
        if (present != rectangle)
            MoveToRect(rectangle);
        if (!m_isOpening)
            ShowWindow(SW_SHOW);
    }
    return true;
}

void CWizardPage::MoveToRect(const CRect& rectangle)
{
    if (GetSafeHwnd() == nullptr)
        return;
    // Nothing of a hidden page has to be drawn again.
    const UINT drawing = IsWindowVisible() ? 0 : SWP_NOREDRAW | SWP_DEFERERASE;
    SetWindowPos(nullptr, rectangle.left, rectangle.top, rectangle.Width(), rectangle.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | drawing);
}

void CWizardPage::ScrollTo(HWND control)
{
    CRect rectangle;
    ::GetWindowRect(control, &rectangle);
    ScreenToClient(&rectangle);
    m_scroller.Show(rectangle);
}

void CWizardPage::SetModified(bool modified)
{
    if (CPreferencesWizard* wizard = GetParentWizard())
        wizard->SendMessage(WM_PAGE_MODIFIED, reinterpret_cast<WPARAM>(m_hWnd), modified ? 1 : 0);
}

bool CWizardPage::LoadSettings(ov::TableSelector)
{
    return false;
}

bool CWizardPage::SaveSettings(CPreferencesWizard*)
{
    return false;
}

CPreferencesWizard* CWizardPage::GetParentWizard() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    return DYNAMIC_DOWNCAST(CPreferencesWizard, GetParent());
}

void CWizardPage::LayoutPass()
{
    m_scroller.ScrollToOrigin();
    CResizableDlg::LayoutPass();
}

ov::TableSelector CWizardPage::TakePendingTable()
{
    return std::exchange(m_pendingTable, ov::kCurrentTable);
}

void CWizardPage::OnSettingChanged()
{
    SetModified(true);
}

void CWizardPage::BrowseFolder(ov::Text& text)
{
    CPreferencesWizard* wizard = GetParentWizard();
    if (wizard == nullptr)
        return;
    CFolderBrowser browser(AfxLoadString(IDS_SELECT_FOLDER), wizard);
    if (browser.DoModal() != IDOK)
        return;
    text = browser.GetPathName();
    SetModified(true);
    UpdateData(FALSE);
}

void CWizardPage::BrowseFileOrList(ov::Text& text, bool list)
{
    if (list) {
        // OK in the list editor has already marked the page as modified and updated it.
        EditValueList(text, 1, u';', u'"', 0, 1);
        return;
    }
    CFileDialog chooser(TRUE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_EXPLORER | OFN_ENABLESIZING, nullptr,
                        this);
    const ov::Text title = AfxLoadString(IDS_SELECT_FILE);
    chooser.m_ofn.lpstrTitle = Wide(title);
    if (chooser.DoModal() != IDOK)
        return;
    text = chooser.GetPathName();
    SetModified(true);
    UpdateData(FALSE);
}

bool CWizardPage::EditValueList(ov::Text& text, UINT browsing, char16_t separator, char16_t qualifier,
                                char16_t fieldSeparator, size_t fieldCount)
{
    UpdateData(TRUE);
    if (std::ranges::count(text, qualifier) % 2 != 0) {
        AfxShowMessageBox(m_hWnd, AfxLoadString(IDS_QUALIFIER_MISSING), AfxLoadString(IDS_APP_CAPTION),
                          MB_OK | MB_ICONERROR | MB_SETFOREGROUND | MB_TOPMOST);
        return false;
    }
    CConfigSettingDlg editor(GetParentWizard(), text, browsing, separator, qualifier, fieldSeparator,
                             fieldCount);
    if (editor.DoModal() == IDOK) {
        text = editor.GetListText();
        SetModified(true);
        UpdateData(FALSE);
    }
    return true;
}

LRESULT CWizardPage::OnShowWindow(WPARAM show, LPARAM)
{
    const LRESULT result = Default();
    if (show == 0) {
        // Open lists and calendars are windows of their own and would remain above the next page.
        CloseDropped(FirstChildren());
        // A calendar that had the focus has returned it to its date picker.
        AfxReleaseFocus(m_hWnd);
    }
    return result;
}

void CWizardPage::OnSize(UINT type, int width, int height)
{
    CResizableDlg::OnSize(type, width, height);
    m_scroller.OnSize();
    if (IsWindowVisible())
        Invalidate(TRUE);
}

void CWizardPage::OnPaint()
{
    CPaintDC paint(this);
    CPrefsMemDC memory(&paint, paint.m_ps.rcPaint);
    CRect client;
    GetClientRect(&client);
    memory.FillSolidRect(client, ::GetSysColor(pageColour));
}

BOOL CWizardPage::OnEraseBkgnd(CDC*)
{
    // OnPaint covers every pixel; erasing first would cause flicker.
    return TRUE;
}

LRESULT CWizardPage::OnPrintClient(WPARAM context, LPARAM)
{
    // Themed controls request their background with this message, since erasing
    // paints nothing.
    CRect client;
    GetClientRect(&client);
    ::FillRect(reinterpret_cast<HDC>(context), &client, ::GetSysColorBrush(pageColour));
    return 0;
}

LRESULT CWizardPage::OnCtlColorStatic(WPARAM context, LPARAM control)
{
    // Labels and boxes have the page's background colour, which may differ from a dialog's.
    if (TargetOf(CWnd::FromHandle(reinterpret_cast<HWND>(control))) != ov::KeyTarget::Other)
        return Default();
    ::SetTextColor(reinterpret_cast<HDC>(context), ::GetSysColor(COLOR_MENUTEXT));
    ::SetBkColor(reinterpret_cast<HDC>(context), ::GetSysColor(pageColour));
    return reinterpret_cast<LRESULT>(::GetSysColorBrush(pageColour));
}

void CWizardPage::OnHScroll(UINT code, UINT, CWnd* sender)
{
    m_scroller.OnHScroll(code, sender);
}

void CWizardPage::OnVScroll(UINT code, UINT, CWnd* sender)
{
    m_scroller.OnVScroll(code, sender);
}

BOOL CWizardPage::OnMouseWheel(UINT, short delta, CPoint)
{
    return m_scroller.OnMouseWheel(delta);
}

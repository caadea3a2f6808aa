#include "pages/settings_page.h"

#include "controls/dialog_app.h"
#include "controls/dropped_list.h"
#include "controls/tool_tip_control.h"
#include "pages/core/page_layout.h"
#include "resources/ids.h"
#include "wizard/preferences_wizard.h"

#include <algorithm>
#include <chrono>
#include <commctrl.h>
#include <stdexcept>

namespace
{
constexpr char16_t qualifier = u'"';

/// The first button of the group to which a radio button belongs.
int FirstOfGroup(HWND button)
{
    while (button != nullptr && (::GetWindowLongPtrW(button, GWL_STYLE) & WS_GROUP) == 0)
        button = ::GetWindow(button, GW_HWNDPREV);
    return button != nullptr ? ::GetDlgCtrlID(button) : 0;
}

ov::Rect RectOn(HWND page, HWND control)
{
    RECT rect;
    ::GetWindowRect(control, &rect);
    ::MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&rect), 2);
    return {rect.left, rect.top, rect.right, rect.bottom};
}

ov::WidthKind WidthKindOf(HWND control)
{
    if (AfxIsOfClass(control, WC_STATICW))
        return ov::WidthKind::Caption;
    if (!AfxIsOfClass(control, WC_BUTTONW))
        return ov::WidthKind::Content;
    const bool isFrame = (::GetWindowLongPtrW(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
    return isFrame ? ov::WidthKind::Frame : ov::WidthKind::Caption;
}

/// True if a control of that kind reports a change with that notification.
bool IsChange(ov::ControlKind control, int code)
{
    switch (control) {
    case ov::ControlKind::None:
        return false;
    case ov::ControlKind::CheckBox:
    case ov::ControlKind::RadioGroup:
        return code == BN_CLICKED;
    case ov::ControlKind::Edit:
        return code == EN_CHANGE;
    case ov::ControlKind::DropDownList:
        return code == CBN_SELCHANGE;
    case ov::ControlKind::DatePicker:
        return code == static_cast<int>(DTN_DATETIMECHANGE);
    }
    return false;
}

/// A day as "2016-05-06".
void ExchangeDay(CDataExchange* exchange, int id, ov::Text& day)
{
    const HWND picker = exchange->PrepareCtrl(id);
    SYSTEMTIME time = {};
    wchar_t digits[16];
    if (exchange->m_bSaveAndValidate) {
        ::SendMessageW(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time));
        std::swprintf(digits, std::size(digits), L"%04d-%02d-%02d", time.wYear, time.wMonth, time.wDay);
        day = FromWide(digits);
        return;
    }
    const auto part = [&](size_t from) {
        return static_cast<WORD>(ov::ToInteger(ov::TextView(day).substr(std::min(from, day.size()))));
    };
    time.wYear = part(0);
    time.wMonth = part(5);
    time.wDay = part(8);
    ::SendMessageW(picker, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&time));
}
} // namespace

IMPLEMENT_DYNAMIC(CSettingsPage, CWizardPage)

CSettingsPage::CSettingsPage(CPreferencesWizard* owner, const ov::PageRows& rows)
    : CWizardPage(owner, static_cast<UINT>(rows.info.pageId),
                  CSize(rows.info.scrollWidth, rows.info.scrollHeight), rows.info.templateId),
      m_rows(rows), m_values(rows), m_layout(ov::LayoutOf(rows))
{
    CSettingsPage::InitControlLayout();
}

void CSettingsPage::InitControlLayout()
{
    for (const ov::LayoutRow& row : m_layout)
        AddLayout(static_cast<UINT>(row.controlId), row.layoutFlags);
}

UINT CSettingsPage::AccessibleNameId(int controlId) const
{
    const auto name = std::ranges::find(m_rows.names, controlId, &ov::NameRow::controlId);
    if (name != m_rows.names.end())
        return name->stringId;
    const bool editsList = std::ranges::any_of(m_rows.browses, [&](const ov::BrowseRow& row) {
        return row.buttonId == controlId && row.kind == ov::BrowseKind::List;
    });
    return editsList ? IDS_NAME_EDIT_LIST : 0;
}

BOOL CSettingsPage::OnInitDialog()
{
    FillLists();
    SetUpSpins();
    LiftTextLimits();
    CWizardPage::OnInitDialog();
    LoadSettings(TakePendingTable());
    RegisterTooltips();
    return TRUE;
}

void CSettingsPage::OnTemplateLayout()
{
    for (const ov::EntriesRow& row : m_rows.entries)
        FitDroppedWidth(FindControl(row.controlId));
    // The margin inside a frame, and a width that still shows one word in an edit.
    CRect units(7, 0, 50, 0);
    MapDialogRect(units);
    m_narrowestWidth = ov::NarrowestPageWidth(
        PlacedControls(),
        {.templateWidth = TemplateSize().cx, .frameMargin = units.left, .shortestContent = units.right});
    CWizardPage::OnTemplateLayout();
}

CRect CSettingsPage::GetClientRectangle() const
{
    CRect client = CWizardPage::GetClientRectangle();
    if (client.Width() < m_narrowestWidth)
        client.right = std::min<LONG>(m_narrowestWidth, ReachableSize().cx);
    return client;
}

std::vector<ov::PlacedControl> CSettingsPage::PlacedControls() const
{
    std::vector<ov::PlacedControl> controls;
    for (const ov::LayoutRow& row : m_layout) {
        if (const HWND control = FindControl(row.controlId))
            controls.push_back({RectOn(m_hWnd, control), row.layoutFlags, WidthKindOf(control)});
    }
    return controls;
}

CSize CSettingsPage::NeededSize() const
{
    return {m_narrowestWidth, ov::ContentHeight(PlacedControls())};
}

void CSettingsPage::FillLists()
{
    for (const ov::EntriesRow& row : m_rows.entries) {
        const HWND list = FindControl(row.controlId);
        for (const unsigned id : row.stringIds) {
            const ov::Text entry = AfxLoadString(id);
            ::SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(entry)));
        }
    }
}

void CSettingsPage::SetUpSpins()
{
    for (const ov::SpinRow& row : m_rows.spins) {
        CSpinButtonCtrl spin;
        spin.Attach(GetDlgItem(row.controlId)->m_hWnd);
        spin.SetBuddy(GetDlgItem(row.buddyId));
        if (row.lowest >= UD_MINVAL && row.highest <= UD_MAXVAL)
            spin.SetRange(static_cast<short>(row.lowest), static_cast<short>(row.highest));
        else
            spin.SetRange32(row.lowest, row.highest);
        std::vector<UDACCEL> steps;
        for (const ov::SpinStep& step : row.steps)
            steps.push_back({step.seconds, step.increment});
        if (!steps.empty())
            spin.SetAccel(static_cast<int>(steps.size()), steps.data());
        spin.Detach();
    }
}

// A list in one line may be longer than an edit's default limit.
void CSettingsPage::LiftTextLimits()
{
    for (const ov::SettingRow& row : m_rows.settings) {
        if (row.control == ov::ControlKind::Edit)
            ::SendMessageW(FindControl(row.controlId), EM_SETLIMITTEXT, 0, 0);
    }
}

bool CSettingsPage::CreateOrShow(CWnd* parent, const CRect& rectangle)
{
    if (!CWizardPage::CreateOrShow(parent, rectangle))
        return false;
    UpdateData(TRUE);
    RefreshControls();
    return true;
}

void CSettingsPage::RegisterTooltips()
{
    CToolTipControl* tips = GetTooltipControl();
    if (tips == nullptr)
        return;
    for (const ov::SettingRow& row : m_rows.settings) {
        if (row.helpId != 0)
            tips->AddTool(GetDlgItem(row.controlId), row.helpId);
    }
    for (const ov::HelpRow& row : m_rows.extraHelp)
        tips->AddTool(GetDlgItem(row.controlId), row.helpId);
}

void CSettingsPage::DoDataExchange(CDataExchange* exchange)
{
    CWizardPage::DoDataExchange(exchange);
    if (PostponesExchange()) {
        if (exchange->m_bSaveAndValidate)
            m_values.TakeShown();
    } else if (exchange->m_bSaveAndValidate) {
        ReadControls(exchange);
    } else {
        ShowValues(exchange);
    }
}

void CSettingsPage::EndOpening()
{
    const bool postponed = PostponesExchange();
    CWizardPage::EndOpening();
    if (!postponed || GetSafeHwnd() == nullptr)
        return;
    UpdateData(FALSE);
    ApplyDependencies(m_values);
}

void CSettingsPage::ReadControls(CDataExchange* exchange)
{
    for (size_t row = 0; row < m_rows.settings.size(); ++row) {
        Exchange(exchange, m_rows.settings[row].control, m_rows.settings[row].controlId, m_values.Number(row),
                 m_values.String(row));
    }
    for (size_t row = 0; row < m_rows.companions.size(); ++row) {
        Exchange(exchange, m_rows.companions[row].control, m_rows.companions[row].controlId,
                 m_values.CompanionNumber(row), m_values.CompanionString(row));
    }
}

void CSettingsPage::ShowValues(CDataExchange* exchange)
{
    for (size_t row = 0; row < m_rows.settings.size(); ++row) {
        int number = m_values.ShownNumber(row);
        ov::Text text = m_values.ShownString(row);
        Exchange(exchange, m_rows.settings[row].control, m_rows.settings[row].controlId, number, text);
    }
    for (size_t row = 0; row < m_rows.companions.size(); ++row) {
        int number = m_values.ShownCompanionNumber(row);
        ov::Text text = m_values.ShownCompanionString(row);
        Exchange(exchange, m_rows.companions[row].control, m_rows.companions[row].controlId, number, text);
    }
}

void CSettingsPage::Exchange(CDataExchange* exchange, ov::ControlKind control, int id, int& number,
                             ov::Text& text)
{
    switch (control) {
    case ov::ControlKind::None:
        break;
    case ov::ControlKind::CheckBox:
        DDX_Check(exchange, id, number);
        break;
    case ov::ControlKind::Edit:
        DDX_Text(exchange, id, text);
        break;
    case ov::ControlKind::DropDownList:
        DDX_CBIndex(exchange, id, number);
        break;
    case ov::ControlKind::RadioGroup:
        DDX_Radio(exchange, id, number);
        break;
    case ov::ControlKind::DatePicker:
        ExchangeDay(exchange, id, text);
        break;
    }
}

bool CSettingsPage::LoadSettings(ov::TableSelector table)
{
    CPreferencesWizard* wizard = GetParentWizard();
    if (wizard == nullptr)
        return true;
    // The C library takes the time zone from an environment variable that other programs set
    // in formats it does not understand; the system always knows the day.
    SYSTEMTIME now = {};
    ::GetLocalTime(&now);
    using namespace std::chrono;
    m_values.SetToday({year(now.wYear), month(now.wMonth), day(now.wDay)});
    m_values.Load(wizard->Store(), table);
    UpdateData(FALSE);
    RefreshControls();
    if (m_rows.loadMarksModified) {
        UpdateData(TRUE);
        SetModified(true);
    }
    return true;
}

bool CSettingsPage::SaveSettings(CPreferencesWizard* wizard)
{
    if (wizard == nullptr)
        wizard = GetParentWizard();
    if (wizard == nullptr)
        return true;
    const bool hasWindow = GetSafeHwnd() != nullptr;
    if (hasWindow)
        UpdateData(TRUE);
    m_values.Save(wizard->Store(), hasWindow);
    return true;
}

void CSettingsPage::RefreshControls()
{
    ApplyRefreshHook();
    ApplyDependencies(m_values);
}

void CSettingsPage::ApplyRefreshHook()
{
    if (m_rows.refresh != nullptr && m_rows.refresh(m_values))
        UpdateData(FALSE);
}

void CSettingsPage::ApplyDependencies(const ov::PageValues& values)
{
    if (PostponesExchange())
        return;
    for (const ov::DependencyRow& row : m_rows.dependencies) {
        CWnd* const control = GetDlgItem(row.controlId);
        if (control == nullptr)
            continue;
        const bool holds = values.Holds(row);
        if (row.effect == ov::Effect::Enable)
            control->EnableWindow(holds ? TRUE : FALSE);
        else if (((control->GetStyle() & WS_VISIBLE) != 0) != holds)
            control->ShowWindow(holds ? SW_SHOW : SW_HIDE);
    }
}

void CSettingsPage::Browse(const ov::BrowseRow& row)
{
    ov::Text& text = m_values.TextOf(row.variable);
    switch (row.kind) {
    case ov::BrowseKind::File:
        UpdateData(TRUE);
        BrowseFileOrList(text, false);
        break;
    case ov::BrowseKind::Folder:
        UpdateData(TRUE);
        BrowseFolder(text);
        break;
    case ov::BrowseKind::List:
        if (EditValueList(text, row.browsing, row.separator, qualifier, row.fieldSeparator, row.fieldCount))
            break;
        if (row.focusOnRefusal == ov::kFocusRemoved)
            ::SetFocus(nullptr);
        else if (row.focusOnRefusal != ov::kFocusStays)
            GetDlgItem(row.focusOnRefusal)->SetFocus();
        break;
    }
}

void CSettingsPage::Browse(int buttonId)
{
    const auto found = std::ranges::find(m_rows.browses, buttonId, &ov::BrowseRow::buttonId);
    if (found == m_rows.browses.end())
        throw std::logic_error("The page has no such button.");
    Browse(*found);
}

BOOL CSettingsPage::OnCmdMsg(UINT id, int code, NMHDR* notify, LRESULT* result)
{
    if (CWizardPage::OnCmdMsg(id, code, notify, result))
        return TRUE;
    const int control = static_cast<int>(id);
    const auto browse = std::ranges::find(m_rows.browses, control, &ov::BrowseRow::buttonId);
    if (notify == nullptr && code == BN_CLICKED && browse != m_rows.browses.end()) {
        Browse(*browse);
        return TRUE;
    }
    if (!ReportsChange(control, code))
        return FALSE;
    if (IsDependedOn(control)) {
        UpdateData(TRUE);
        RefreshControls();
    }
    OnSettingChanged();
    if (notify != nullptr)
        *result = 0;
    return TRUE;
}

int CSettingsPage::GroupOf(int id) const
{
    const HWND control = FindControl(id);
    const bool isRadioButton = (::SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
    return isRadioButton ? FirstOfGroup(control) : id;
}

bool CSettingsPage::ReportsChange(int id, int code) const
{
    const int control = GroupOf(id);
    const bool bySetting = std::ranges::any_of(m_rows.settings, [&](const ov::SettingRow& row) {
        return row.controlId == control && !row.changeGoesUnnoticed && IsChange(row.control, code);
    });
    return bySetting || std::ranges::any_of(m_rows.companions, [&](const ov::CompanionRow& row) {
               return row.controlId == control && IsChange(row.control, code);
           });
}

bool CSettingsPage::IsDependedOn(int id) const
{
    const int control = GroupOf(id);
    return std::ranges::any_of(m_rows.dependencies, [&](const ov::DependencyRow& row) {
        return std::ranges::any_of(
            row.conditions, [&](const ov::Condition& condition) { return condition.controlId == control; });
    });
}

#include "controls/resizable_dlg.h"

#include <cwchar>
#include <optional>

#include "controls/core/accessible_names.h"
#include "resources/ids.h"

namespace
{

// Larger than any template at any resolution.
constexpr LONG largestSize = 30000;

// The controls of a dialog, as the layout arithmetic sees them.
class DialogControls : public ov::LayoutControls
{
  public:
    explicit DialogControls(const CWnd& dialog)
        : m_dialog(dialog), m_visible(::IsWindowVisible(dialog.m_hWnd) != FALSE)
    {
    }

    std::optional<ov::Rect> ControlRect(std::uint16_t controlId) override
    {
        const HWND control = m_dialog.FindControl(controlId);
        if (control == nullptr)
            return std::nullopt;
        RECT rect;
        ::GetWindowRect(control, &rect);
        ::MapWindowPoints(HWND_DESKTOP, m_dialog.m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
        return ov::Rect{rect.left, rect.top, rect.right, rect.bottom};
    }

    std::int32_t ListColumns(std::uint16_t controlId) override
    {
        const HWND control = m_dialog.FindControl(controlId);
        if (!AfxIsOfClass(control, WC_LISTVIEWW))
            return 0;
        const HWND header = ListView_GetHeader(control);
        return header != nullptr ? Header_GetItemCount(header) : 0;
    }

    void SetListColumnWidths(std::uint16_t controlId, std::int32_t width) override
    {
        const HWND control = m_dialog.FindControl(controlId);
        for (std::int32_t column = ListColumns(controlId) - 1; column >= 0; --column)
            ListView_SetColumnWidth(control, column, width);
    }

    void MoveControl(std::uint16_t controlId, const ov::Rect& rect) override
    {
        const HWND control = m_dialog.FindControl(controlId);
        if (ControlRect(controlId) != rect)
            ::MoveWindow(control, rect.left, rect.top, rect.Width(), rect.Height(), m_visible);
        if (m_visible)
            ::InvalidateRect(control, nullptr, TRUE);
    }

  private:
    const CWnd& m_dialog;
    // A hidden dialog is drawn as a whole when it is shown.
    bool m_visible;
};

// The longest name that a class can have, with its end; no caption is longer.
using ShortText = wchar_t[257];

ov::ControlRole RoleOfButton(HWND button)
{
    switch (::GetWindowLongPtrW(button, GWL_STYLE) & BS_TYPEMASK) {
    case BS_GROUPBOX:
        return ov::ControlRole::Frame;
    case BS_AUTOCHECKBOX:
        return ov::ControlRole::Box;
    case BS_AUTORADIOBUTTON:
        return ov::ControlRole::Radio;
    default:
        return ov::ControlRole::Button;
    }
}

// None for what is no control: a page, the size grip.
std::optional<ov::ControlRole> RoleOf(HWND window)
{
    ShortText name;
    ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
    const auto is = [&](const wchar_t* windowClass) { return ::_wcsicmp(name, windowClass) == 0; };
    if (is(WC_BUTTONW))
        return RoleOfButton(window);
    if (is(WC_STATICW))
        return ov::ControlRole::Label;
    if (is(UPDOWN_CLASSW))
        return ov::ControlRole::UpDown;
    if (is(WC_EDITW) || is(WC_COMBOBOXW) || is(WC_LISTVIEWW) || is(DATETIMEPICK_CLASSW) ||
        is(TRACKBAR_CLASSW))
        return ov::ControlRole::Input;
    return std::nullopt;
}

ov::Text CaptionOf(HWND window)
{
    ShortText caption;
    const int length = ::GetWindowTextW(window, caption, static_cast<int>(std::size(caption)));
    return FromWide({caption, static_cast<size_t>(length)});
}

} // namespace

IMPLEMENT_DYNAMIC(CResizableDlg, CAbstractFontDlg)

BEGIN_MESSAGE_MAP(CResizableDlg, CAbstractFontDlg)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_WM_GETMINMAXINFO()
END_MESSAGE_MAP()

CResizableDlg::CResizableDlg(UINT templateId, CWnd* parent, bool sizeGrip, UINT designWidth,
                             UINT designHeight)
    : CAbstractFontDlg(templateId, parent), m_sizeGrip(sizeGrip), m_grip(*this), m_designWidth(designWidth),
      m_designHeight(designHeight)
{
}

BOOL CResizableDlg::OnInitDialog()
{
    const BOOL result = CAbstractFontDlg::OnInitDialog();
    const CRect client = GetClientRectangle();
    DialogControls controls(*this);
    ov::CaptureControls(m_controlLayout, controls, client.Width(), client.Height());
    m_isCaptured = true;
    NameControls();
    return result;
}

UINT CResizableDlg::AccessibleNameId(int) const
{
    return 0;
}

void CResizableDlg::NameControls()
{
    std::vector<HWND> windows;
    std::vector<ov::ControlToName> controls;
    for (HWND window = ::GetWindow(m_hWnd, GW_CHILD); window != nullptr;
         window = ::GetWindow(window, GW_HWNDNEXT)) {
        const std::optional<ov::ControlRole> role = RoleOf(window);
        if (!role)
            continue;
        ov::ControlToName control{*role, {}, {}};
        // What an input shows is its value.
        if (*role != ov::ControlRole::Input)
            control.caption = CaptionOf(window);
        UINT given = AccessibleNameId(::GetDlgCtrlID(window));
        if (given == 0 && *role == ov::ControlRole::Button)
            given = IDS_NAME_BROWSE;
        if (given != 0)
            control.given = AfxLoadString(given);
        windows.push_back(window);
        controls.push_back(std::move(control));
    }
    const std::vector<ov::Text> names = ov::NamesToGive(controls);
    for (size_t i = 0; i < names.size(); ++i) {
        if (!names[i].empty())
            Names().Set(windows[i], names[i]);
    }
}

CWindowNames& CResizableDlg::Names()
{
    CWnd* const root = CWnd::FromHandlePermanent(::GetAncestor(m_hWnd, GA_ROOT));
    CResizableDlg* const dialog = DYNAMIC_DOWNCAST(CResizableDlg, root);
    return dialog != nullptr ? dialog->m_names : m_names;
}

void CResizableDlg::AddLayout(UINT controlId, std::uint32_t flags)
{
    ov::CDlgControlInfo info;
    info.controlId = static_cast<std::uint16_t>(controlId);
    info.layoutFlags = flags;
    m_controlLayout.push_back(info);
}

CRect CResizableDlg::GetClientRectangle() const
{
    CRect client;
    if (m_hWnd != nullptr)
        GetClientRect(&client);
    return client;
}

void CResizableDlg::LayoutPass()
{
    if (!ov::IsLayoutActive(m_designWidth, m_designHeight))
        return;
    const CRect client = GetClientRectangle();
    DialogControls controls(*this);
    // Its first size reaches a window before its controls are made.
    if (::GetWindow(m_hWnd, GW_CHILD) != nullptr)
        ov::ApplyLayout(m_controlLayout, controls, m_designWidth, m_designHeight, client.Width(),
                        client.Height());
    RepositionCurrentPage();
}

void CResizableDlg::ApplyMinimumSize(MINMAXINFO* info)
{
    const auto minimum = ov::MinimumTrackSize(m_designWidth, m_designHeight);
    if (!minimum) {
        CAbstractFontDlg::OnGetMinMaxInfo(info);
        return;
    }
    RepositionCurrentPage();
    info->ptMinTrackSize = {minimum->width, minimum->height};
    // A window that is made smaller than its template, for it would be larger than
    // the screen, would be captured with controls outside of it.
    if (!m_isCaptured)
        info->ptMaxTrackSize = {largestSize, largestSize};
}

int CResizableDlg::OnCreate(CREATESTRUCTW* create)
{
    if (CAbstractFontDlg::OnCreate(create) == -1)
        return -1;
    if (m_sizeGrip)
        m_grip.Create();
    return 0;
}

void CResizableDlg::OnSize(UINT type, int width, int height)
{
    CAbstractFontDlg::OnSize(type, width, height);
    if (type == SIZE_MINIMIZED)
        return;
    // A destroyed dialog's controls, the grip among them, stay where they are.
    if (m_designWidth != 0)
        m_grip.MoveToCorner();
    LayoutPass();
}

void CResizableDlg::OnDestroy()
{
    // Sizes that still arrive while the window goes down find nothing to lay out.
    m_designWidth = 0;
    m_names.Clear();
    CAbstractFontDlg::OnDestroy();
}

void CResizableDlg::OnGetMinMaxInfo(MINMAXINFO* info)
{
    if (m_designWidth == 0)
        CAbstractFontDlg::OnGetMinMaxInfo(info);
}

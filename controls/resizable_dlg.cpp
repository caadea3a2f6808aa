#include "controls/resizable_dlg.h"

#include "controls/control_names.h"
#include "controls/core/dialog_units.h"
#include "framework/dialog_template.h"

#include <algorithm>
#include <optional>

namespace
{

// Larger than any template at any resolution.
constexpr LONG largestSize = 30000;

// The dialog's controls, as the layout arithmetic accesses them.
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
            ::SetWindowPos(control, nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                           SWP_NOZORDER | SWP_NOACTIVATE | (m_visible ? 0 : SWP_NOREDRAW | SWP_DEFERERASE));
        if (m_visible)
            ::InvalidateRect(control, nullptr, TRUE);
    }

  private:
    const CWnd& m_dialog;
    // A hidden dialog is drawn completely when it is shown.
    bool m_visible;
};

/// Detaches an up-down control from its edit until Attach is called. Each time it is
/// attached, it makes the edit narrower.
class DetachedUpDown
{
  public:
    explicit DetachedUpDown(HWND upDown)
        : m_upDown(upDown), m_buddy(reinterpret_cast<HWND>(::SendMessageW(upDown, UDM_GETBUDDY, 0, 0)))
    {
        SetBuddy(nullptr);
    }
    void Attach() const { SetBuddy(m_buddy); }

  private:
    void SetBuddy(HWND buddy) const
    {
        if (m_buddy != nullptr)
            ::SendMessageW(m_upDown, UDM_SETBUDDY, reinterpret_cast<WPARAM>(buddy), 0);
    }

    HWND m_upDown;
    HWND m_buddy;
};

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
    m_templateSize = CSize(client.Width(), client.Height());
    DialogControls controls(*this);
    ov::CaptureControls(m_controlLayout, controls, client.Width(), client.Height());
    m_isCaptured = true;
    NameControls(
        FirstChildren(), [this](int controlId) { return AccessibleNameId(controlId); }, Names());
    OnTemplateLayout();
    if (const UINT resolution = OpeningResolution(); resolution != Resolution())
        OpenAt(resolution);
    return result;
}

// The system created the dialog for another resolution.
void CResizableDlg::OpenAt(UINT resolution)
{
    ChangeResolution(resolution);
    if ((GetStyle() & WS_CHILD) != 0)
        return; // the outer dialog sets the size of this one
    CRect window;
    CRect client;
    GetWindowRect(&window);
    GetClientRect(&client);
    const CSize growth(m_templateSize.cx - client.Width(), m_templateSize.cy - client.Height());
    const bool isCentred = (GetStyle() & DS_CENTER) != 0;
    const CPoint shift = isCentred ? CPoint(growth.cx / 2, growth.cy / 2) : CPoint();
    SetWindowPos(nullptr, window.left - shift.x, window.top - shift.y, window.Width() + growth.cx,
                 window.Height() + growth.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

void CResizableDlg::OnResolutionChanged()
{
    const auto layout = AfxReadTemplateLayout(m_nIDTemplate);
    if (!layout)
        return;
    PlaceControls(layout->controls);
    CRect client(0, 0, layout->size.cx, layout->size.cy);
    MapDialogRect(client);
    m_templateSize = CSize(client.Width(), client.Height());
    DialogControls controls(*this);
    ov::RecaptureControls(m_controlLayout, controls, client.Width(), client.Height());
    OnTemplateLayout();
    // Everything that follows the dialog's size is placed again from the template's positions.
    if (IsIconic())
        return;
    GetClientRect(&client);
    SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height()));
}

void CResizableDlg::PlaceControls(const std::vector<RECT>& rectsInUnits) const
{
    std::vector<HWND> controls;
    std::vector<DetachedUpDown> upDowns;
    for (const HWND child : FirstChildren()) {
        if (child != m_grip.m_hWnd)
            controls.push_back(child);
        if (AfxIsOfClass(child, UPDOWN_CLASSW))
            upDowns.emplace_back(child);
    }
    const size_t count = std::min(controls.size(), rectsInUnits.size());
    for (size_t i = 0; i < count; ++i) {
        const RECT& units = rectsInUnits[i];
        const ov::Rect rect =
            ov::ControlInPixels({units.left, units.top, units.right, units.bottom}, Units());
        ::SetWindowPos(controls[i], nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                       SWP_NOZORDER | SWP_NOACTIVATE);
    }
    for (const DetachedUpDown& upDown : upDowns)
        upDown.Attach();
}

UINT CResizableDlg::AccessibleNameId(int) const
{
    return 0;
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
    // A window receives its first size before its controls are created.
    if (!FirstChildren().empty())
        ov::ApplyLayout(m_controlLayout, controls, m_designWidth, m_designHeight, client.Width(),
                        client.Height());
    RepositionCurrentPage();
}

CRect CResizableDlg::WorkArea() const
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(m_hWnd, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor.rcWork;
}

void CResizableDlg::ApplyMinimumSize(MINMAXINFO* info)
{
    const CRect work = WorkArea();
    const auto minimum =
        ov::MinimumTrackSize(m_designWidth, m_designHeight, Units(), {work.Width(), work.Height()});
    if (!minimum) {
        CAbstractFontDlg::OnGetMinMaxInfo(info);
        return;
    }
    RepositionCurrentPage();
    info->ptMinTrackSize = {minimum->width, minimum->height};
    // Windows shrinks a dialog that does not fit the screen; captured then,
    // controls would lie outside it.
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
    // A destroyed dialog's controls, including the grip, are not moved.
    if (m_designWidth != 0)
        m_grip.MoveToCorner();
    LayoutPass();
}

void CResizableDlg::OnDestroy()
{
    // Sizes that arrive during destruction must not cause a layout.
    m_designWidth = 0;
    m_names.Clear();
    CAbstractFontDlg::OnDestroy();
}

void CResizableDlg::OnGetMinMaxInfo(MINMAXINFO* info)
{
    if (m_designWidth == 0)
        CAbstractFontDlg::OnGetMinMaxInfo(info);
}

#include "controls/resizable_dlg.h"

namespace
{

// The controls of a dialog, as the layout arithmetic sees them.
class DialogControls : public ov::LayoutControls
{
  public:
    explicit DialogControls(HWND dialog) : m_dialog(dialog), m_visible(::IsWindowVisible(dialog) != FALSE) {}

    std::optional<ov::Rect> ControlRect(std::uint16_t controlId) override
    {
        const HWND control = Find(controlId);
        if (control == nullptr)
            return std::nullopt;
        RECT rect;
        ::GetWindowRect(control, &rect);
        ::MapWindowPoints(HWND_DESKTOP, m_dialog, reinterpret_cast<POINT*>(&rect), 2);
        return ov::Rect{rect.left, rect.top, rect.right, rect.bottom};
    }

    std::int32_t ListColumns(std::uint16_t controlId) override
    {
        const HWND control = Find(controlId);
        if (!AfxIsOfClass(control, WC_LISTVIEWW))
            return 0;
        const HWND header = ListView_GetHeader(control);
        return header != nullptr ? Header_GetItemCount(header) : 0;
    }

    void SetListColumnWidths(std::uint16_t controlId, std::int32_t width) override
    {
        const HWND control = Find(controlId);
        for (std::int32_t column = ListColumns(controlId) - 1; column >= 0; --column)
            ListView_SetColumnWidth(control, column, width);
    }

    void MoveControl(std::uint16_t controlId, const ov::Rect& rect) override
    {
        const HWND control = Find(controlId);
        if (ControlRect(controlId) != rect)
            ::MoveWindow(control, rect.left, rect.top, rect.Width(), rect.Height(), m_visible);
        if (m_visible)
            ::InvalidateRect(control, nullptr, TRUE);
    }

  private:
    // The layout asks for one control several times in a row, and the system
    // looks through all of them each time.
    HWND Find(std::uint16_t controlId)
    {
        if (m_found == nullptr || m_foundId != controlId) {
            m_found = ::GetDlgItem(m_dialog, controlId);
            m_foundId = controlId;
        }
        return m_found;
    }

    HWND m_dialog;
    // A hidden dialog is drawn as a whole when it is shown.
    bool m_visible;
    HWND m_found = nullptr;
    std::uint16_t m_foundId = 0;
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
    DialogControls controls(m_hWnd);
    ov::CaptureControls(m_controlLayout, controls, client.Width(), client.Height());
    return result;
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
    DialogControls controls(m_hWnd);
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
    CAbstractFontDlg::OnDestroy();
}

void CResizableDlg::OnGetMinMaxInfo(MINMAXINFO* info)
{
    if (m_designWidth == 0)
        CAbstractFontDlg::OnGetMinMaxInfo(info);
}

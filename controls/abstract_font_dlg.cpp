#include "controls/abstract_font_dlg.h"

#include "controls/core/dialog_units.h"
#include "controls/dialog_app.h"
#include "framework/window_resolution.h"

IMPLEMENT_DYNAMIC(CAbstractFontDlg, CDialog)

BEGIN_MESSAGE_MAP(CAbstractFontDlg, CDialog)
    ON_MESSAGE(WM_DPICHANGED, &CAbstractFontDlg::OnDpiChanged)
    ON_MESSAGE(WM_DPICHANGED_BEFOREPARENT, &CAbstractFontDlg::OnDpiChangedBeforeParent)
    ON_MESSAGE(WM_DPICHANGED_AFTERPARENT, &CAbstractFontDlg::OnDpiChangedAfterParent)
END_MESSAGE_MAP()

CAbstractFontDlg::CAbstractFontDlg(UINT templateId, CWnd* parent) : CDialog(templateId, parent) {}

BOOL CAbstractFontDlg::OnInitDialog()
{
    const BOOL result = CDialog::OnInitDialog();
    AfxDisableDialogScaling(m_hWnd);
    m_resolution = AfxGetFrameResolution(m_hWnd);
    CRect units(0, 0, 4, 8);
    ::MapDialogRect(m_hWnd, &units);
    m_units = {units.Width(), units.Height()};
    m_firstChildren = GetControls();
    if (const CFont* const font = GetSharedDialogFont(m_resolution))
        GiveFont(*font);
    return result;
}

BOOL CAbstractFontDlg::Create(UINT templateId, CWnd* parent)
{
    return CDialog::Create(templateId, parent);
}

void CAbstractFontDlg::MapDialogRect(CRect& edges) const
{
    const ov::Rect pixels = ov::EdgesInPixels({edges.left, edges.top, edges.right, edges.bottom}, m_units);
    edges = CRect(pixels.left, pixels.top, pixels.right, pixels.bottom);
}

void CAbstractFontDlg::GiveFont(const CFont& font) const
{
    const auto handle = reinterpret_cast<WPARAM>(font.GetSafeHandle());
    for (const HWND child : m_firstChildren)
        ::SendMessageW(child, WM_SETFONT, handle, TRUE);
}

void CAbstractFontDlg::MeasureUnits(const CFont& font)
{
    static constexpr wchar_t letters[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    const HDC context = ::GetDC(m_hWnd);
    const HGDIOBJ before = ::SelectObject(context, font.GetSafeHandle());
    SIZE alphabet{};
    TEXTMETRICW metrics{};
    ::GetTextExtentPoint32W(context, letters, static_cast<int>(std::size(letters)) - 1, &alphabet);
    ::GetTextMetricsW(context, &metrics);
    ::SelectObject(context, before);
    ::ReleaseDC(m_hWnd, context);
    m_units = ov::UnitsOfFont(alphabet.cx, metrics.tmHeight);
}

CAbstractFontDlg* CAbstractFontDlg::DialogAround() const
{
    // The parent of a child window or the owner of any other window.
    return DYNAMIC_DOWNCAST(CAbstractFontDlg, CWnd::FromHandlePermanent(::GetParent(m_hWnd)));
}

UINT CAbstractFontDlg::OpeningResolution() const
{
    const CAbstractFontDlg* const around = DialogAround();
    return around != nullptr && around->m_resolution != 0 ? around->m_resolution
                                                          : AfxGetWindowResolution(m_hWnd);
}

void CAbstractFontDlg::ChangeResolution(UINT resolution)
{
    // Without a font for the new resolution the layout would not fit the texts.
    const CFont* const font = resolution != m_resolution ? GetSharedDialogFont(resolution) : nullptr;
    if (font == nullptr)
        return;
    m_resolution = resolution;
    GiveFont(*font);
    MeasureUnits(*font);
    OnResolutionChanged();
    for (const HWND child : AfxChildWindows(m_hWnd)) {
        if (auto* const inside = DYNAMIC_DOWNCAST(CAbstractFontDlg, CWnd::FromHandlePermanent(child)))
            inside->ChangeResolution(resolution);
    }
}

void CAbstractFontDlg::MoveTo(const RECT& rectangle)
{
    if (!IsIconic()) {
        MoveWindow(&rectangle);
        return;
    }
    // The rectangle is that of the restored window, not of the icon.
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    ::GetWindowPlacement(m_hWnd, &placement);
    placement.rcNormalPosition = rectangle;
    placement.showCmd = SW_SHOWMINNOACTIVE;
    ::SetWindowPlacement(m_hWnd, &placement);
}

LRESULT CAbstractFontDlg::OnDpiChanged(WPARAM resolutions, LPARAM suggestedRect)
{
    const UINT resolution = HIWORD(resolutions);
    if (m_resolution != 0 && resolution != 0)
        ChangeResolution(resolution);
    if (const auto* const rect = reinterpret_cast<const RECT*>(suggestedRect))
        MoveTo(*rect);
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    return 0;
}

// The system's dialogs scale their controls in this handler; this one must not.
LRESULT CAbstractFontDlg::OnDpiChangedBeforeParent(WPARAM, LPARAM)
{
    return 0;
}

LRESULT CAbstractFontDlg::OnDpiChangedAfterParent(WPARAM, LPARAM)
{
    if (m_resolution != 0)
        ChangeResolution(OpeningResolution());
    // The thickness of the frame and the scroll bars has changed.
    SetWindowPos(nullptr, 0, 0, 0, 0,
                 SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return 0;
}

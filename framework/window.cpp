#include "framework/window.h"

#include "framework/modal_doors.h"
#include "framework/thread_state.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::~CWnd()
{
    // Named places and temporary objects carry a handle that is not theirs.
    if (m_hWnd != nullptr && FromHandlePermanent(m_hWnd) == this)
        CWnd::DestroyWindow();
}

CWnd* CWnd::FromHandlePermanent(HWND window)
{
    const auto& map = AfxGetThreadState().permanentWindows;
    const auto found = map.find(window);
    return found != map.end() ? found->second : nullptr;
}

CWnd* CWnd::FromHandle(HWND window)
{
    if (CWnd* const permanent = FromHandlePermanent(window))
        return permanent;
    return AfxGetThreadState().temporary.windows.FromHandle(window);
}

BOOL CWnd::Attach(HWND window)
{
    if (window == nullptr || m_hWnd != nullptr || FromHandlePermanent(window) != nullptr)
        return FALSE;
    AfxGetThreadState().permanentWindows.emplace(window, this);
    m_hWnd = window;
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND window = m_hWnd;
    if (window != nullptr && FromHandlePermanent(window) == this)
        AfxGetThreadState().permanentWindows.erase(window);
    m_hWnd = nullptr;
    m_superWndProc = nullptr;
    return window;
}

void CWnd::Bind(HWND window)
{
    if (!Attach(window))
        return;
    PreSubclassWindow();
    const LONG_PTR previous =
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc));
    m_superWndProc = reinterpret_cast<WNDPROC>(previous);
}

BOOL CWnd::SubclassWindow(HWND window)
{
    if (window == nullptr || m_hWnd != nullptr || FromHandlePermanent(window) != nullptr)
        return FALSE;
    Bind(window);
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent)
{
    return SubclassWindow(::GetDlgItem(AfxSafeHwnd(parent), static_cast<int>(id)));
}

HWND CWnd::UnsubclassWindow()
{
    if (m_superWndProc != nullptr)
        ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_superWndProc));
    return Detach();
}

void CWnd::SetWindowText(const ov::Text& text)
{
    ::SetWindowTextW(m_hWnd, Wide(text));
}

void CWnd::SetWindowText(LPCWSTR text)
{
    ::SetWindowTextW(m_hWnd, text);
}

ov::Text CWnd::GetWindowText() const
{
    ov::Text text(static_cast<std::size_t>(GetWindowTextLength()), u'\0');
    if (!text.empty()) {
        const int copied = ::GetWindowTextW(m_hWnd, reinterpret_cast<wchar_t*>(text.data()),
                                            static_cast<int>(text.size()) + 1);
        // The length asked for may be more than there is, never less.
        text.resize(static_cast<std::size_t>(copied));
    }
    return text;
}

namespace
{
BOOL ModifyBits(HWND window, int index, DWORD remove, DWORD add, UINT positionFlags)
{
    const auto old = static_cast<DWORD>(::GetWindowLongPtrW(window, index));
    const DWORD changed = (old & ~remove) | add;
    if (old == changed)
        return FALSE;
    ::SetWindowLongPtrW(window, index, static_cast<LONG_PTR>(changed));
    if (positionFlags != 0) {
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | positionFlags);
    }
    return TRUE;
}
} // namespace

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT positionFlags)
{
    return ModifyBits(m_hWnd, GWL_STYLE, remove, add, positionFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD remove, DWORD add, UINT positionFlags)
{
    return ModifyBits(m_hWnd, GWL_EXSTYLE, remove, add, positionFlags);
}

HICON CWnd::SetIcon(HICON icon, BOOL big)
{
    const LRESULT previous =
        SendMessage(WM_SETICON, big ? ICON_BIG : ICON_SMALL, reinterpret_cast<LPARAM>(icon));
    return reinterpret_cast<HICON>(previous);
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

void CWnd::SetFont(CFont* font, BOOL redraw)
{
    const HGDIOBJ handle = font != nullptr ? font->GetSafeHandle() : nullptr;
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(handle), redraw);
}

void CWnd::MoveWindow(int x, int y, int width, int height, BOOL repaint)
{
    ::MoveWindow(m_hWnd, x, y, width, height, repaint);
}

void CWnd::MoveWindow(LPCRECT rectangle, BOOL repaint)
{
    const CRect r(*rectangle);
    MoveWindow(r.left, r.top, r.Width(), r.Height(), repaint);
}

BOOL CWnd::SetWindowPos(const CWnd* insertAfter, int x, int y, int width, int height, UINT flags)
{
    return ::SetWindowPos(m_hWnd, AfxSafeHwnd(insertAfter), x, y, width, height, flags);
}

// Both corners in one call: only so does a mirrored window get a rectangle with
// its left on the left.
void CWnd::ScreenToClient(LPRECT rectangle) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(rectangle), 2);
}

void CWnd::ClientToScreen(LPRECT rectangle) const
{
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(rectangle), 2);
}

void CWnd::CenterWindow()
{
    HWND over = ::GetWindow(m_hWnd, GW_OWNER);
    if (over != nullptr && (!::IsWindowVisible(over) || ::IsIconic(over)))
        over = nullptr;
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(over != nullptr ? over : m_hWnd, MONITOR_DEFAULTTOPRIMARY),
                      &monitor);
    const CRect work(monitor.rcWork);
    CRect target = work;
    if (over != nullptr)
        ::GetWindowRect(over, target);
    CRect own;
    GetWindowRect(own);
    int x = (target.left + target.right - own.Width()) / 2;
    int y = (target.top + target.bottom - own.Height()) / 2;
    // The caption must stay in reach: left and top win over right and bottom.
    x = std::max(std::min(x, static_cast<int>(work.right) - own.Width()), static_cast<int>(work.left));
    y = std::max(std::min(y, static_cast<int>(work.bottom) - own.Height()), static_cast<int>(work.top));
    SetWindowPos(nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CWnd::IsChild(const CWnd* window) const
{
    return ::IsChild(m_hWnd, AfxSafeHwnd(window));
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* from, BOOL previous) const
{
    return FromHandle(::GetNextDlgTabItem(m_hWnd, AfxSafeHwnd(from), previous));
}

BOOL CWnd::RedrawWindow(LPCRECT rectangle, HRGN region, UINT flags)
{
    return ::RedrawWindow(m_hWnd, rectangle, region, flags);
}

int CWnd::MessageBox(const ov::Text& text, const ov::Text& caption, UINT type) const
{
    return AfxShowMessageBox(m_hWnd, text, caption, type);
}

BOOL CWnd::GetScrollInfo(int bar, SCROLLINFO* info, UINT mask) const
{
    info->cbSize = sizeof *info;
    info->fMask = mask;
    return ::GetScrollInfo(m_hWnd, bar, info);
}

BOOL CWnd::SetScrollInfo(int bar, SCROLLINFO* info, BOOL redraw)
{
    info->cbSize = sizeof *info;
    ::SetScrollInfo(m_hWnd, bar, info, redraw);
    return TRUE;
}

void CWnd::GetScrollRange(int bar, int* minimum, int* maximum) const
{
    ::GetScrollRange(m_hWnd, bar, minimum, maximum);
}

ov::Text CWnd::GetDlgItemText(int id) const
{
    const CWnd* const control = GetDlgItem(id);
    return control != nullptr ? control->GetWindowText() : ov::Text();
}

CWnd* AfxWindowFromParam(LPARAM handle)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}

#include "framework/window.h"

#include "framework/focus.h"
#include "framework/thread_state.h"
#include "framework/work_area.h"

#include <iterator>
#include <utility>

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

CWnd::~CWnd()
{
    // Temporary objects hold a handle that they do not own.
    if (m_hWnd != nullptr && FromHandlePermanent(m_hWnd) == this)
        CWnd::DestroyWindow();
}

CWnd* CWnd::FromHandlePermanent(HWND window)
{
    // Destructors call this, and messages arrive, even after the thread's state has been
    // freed. A new state would then never be freed, so none is created.
    const AFX_THREAD_STATE* const state = AfxPeekThreadState();
    if (state == nullptr)
        return nullptr;
    const auto found = state->permanentWindows.find(window);
    return found != state->permanentWindows.end() ? found->second : nullptr;
}

CWnd* CWnd::FromHandle(HWND window)
{
    if (CWnd* const permanent = FromHandlePermanent(window))
        return permanent;
    return AfxGetThreadState().temporary.windows.FromHandle(window);
}

CWnd* CWnd::FromForeign(const void* pointer)
{
    if (pointer == nullptr)
        return nullptr;
    const AFX_THREAD_STATE& state = AfxGetThreadState();
    const auto own = std::ranges::find(state.permanentWindows, pointer, [](const auto& entry) {
        return static_cast<const void*>(entry.second);
    });
    if (own != state.permanentWindows.end())
        return own->second;
    if (const HWND window = state.temporary.windows.HandleAt(pointer))
        return FromHandle(window);
    // The system uses only 32 bits of a handle, so an object's address could pass for one.
    const auto window = static_cast<HWND>(const_cast<void*>(pointer));
    const bool isHandle =
        LongToHandle(HandleToLong(window)) == window || UlongToHandle(HandleToULong(window)) == window;
    return isHandle && ::IsWindow(window) ? FromHandle(window) : nullptr;
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
    if (window != nullptr && FromHandlePermanent(window) == this) {
        AfxGetThreadState().permanentWindows.erase(window);
        AfxGetThreadState().controls.erase(window);
    }
    m_hWnd = nullptr;
    m_superWndProc = nullptr;
    return window;
}

bool CWnd::Bind(HWND window)
{
    if (!Attach(window))
        return false;
    try {
        PreSubclassWindow();
    } catch (...) {
        Detach();
        throw;
    }
    const LONG_PTR previous =
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc));
    m_superWndProc = reinterpret_cast<WNDPROC>(previous);
    return true;
}

BOOL CWnd::SubclassWindow(HWND window)
{
    return Bind(window);
}

HWND CWnd::UnsubclassWindow()
{
    if (m_superWndProc != nullptr &&
        ::GetWindowLongPtrW(m_hWnd, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&AfxWndProc))
        ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_superWndProc));
    return Detach();
}

namespace
{
const AFX_CONTROLS& EnumerateControls(HWND parent)
{
    AFX_CONTROLS& controls = AfxGetThreadState().controls[parent];
    controls = {AfxChildWindows(parent), {}};
    for (const HWND child : controls.windows)
        controls.byId.try_emplace(::GetDlgCtrlID(child), child);
    return controls;
}

const AFX_CONTROLS* KnownControls(HWND parent)
{
    const auto& controls = AfxGetThreadState().controls;
    const auto known = controls.find(parent);
    return known != controls.end() ? &known->second : nullptr;
}

bool IsChildOf(HWND parent, HWND child)
{
    return ::IsWindow(child) && ::GetParent(child) == parent;
}
} // namespace

HWND CWnd::FindControl(int id) const
{
    // A temporary object gets no notice when its window is destroyed.
    if (FromHandlePermanent(m_hWnd) == nullptr)
        return ::GetDlgItem(m_hWnd, id);
    if (const AFX_CONTROLS* const known = KnownControls(m_hWnd)) {
        const auto found = known->byId.find(id);
        if (found != known->byId.end() && IsChildOf(m_hWnd, found->second) &&
            ::GetDlgCtrlID(found->second) == id)
            return found->second;
    }
    const auto& controls = EnumerateControls(m_hWnd).byId;
    const auto found = controls.find(id);
    return found != controls.end() ? found->second : nullptr;
}

std::vector<HWND> CWnd::GetControls() const
{
    if (FromHandlePermanent(m_hWnd) == nullptr)
        return AfxChildWindows(m_hWnd);
    const AFX_CONTROLS* const known = KnownControls(m_hWnd);
    const bool isCurrent = known != nullptr && std::ranges::all_of(known->windows, [this](HWND child) {
                               return IsChildOf(m_hWnd, child);
                           });
    return isCurrent ? known->windows : EnumerateControls(m_hWnd).windows;
}

void CWnd::ForgetControls() const
{
    AfxGetThreadState().controls.erase(m_hWnd);
}

BOOL CWnd::EnableWindow(BOOL enable)
{
    // The system would cancel modes and ask for the focus even if nothing changes.
    const BOOL wasDisabled = IsWindowEnabled() ? FALSE : TRUE;
    if ((enable == FALSE) == (wasDisabled != FALSE))
        return wasDisabled;
    if (!enable)
        AfxReleaseFocus(m_hWnd);
    return ::EnableWindow(m_hWnd, enable);
}

BOOL CWnd::ShowWindow(int command)
{
    if (command == SW_HIDE)
        AfxReleaseFocus(m_hWnd);
    return ::ShowWindow(m_hWnd, command);
}

CWnd* CWnd::SetFocus()
{
    return FromHandle(AfxCanHoldFocus(m_hWnd) ? ::SetFocus(m_hWnd) : ::GetFocus());
}

void CWnd::SetWindowText(const ov::Text& text)
{
    ::SetWindowTextW(m_hWnd, Wide(text));
}

ov::Text CWnd::GetWindowText() const
{
    ov::Text text(static_cast<std::size_t>(::GetWindowTextLengthW(m_hWnd)), u'\0');
    if (!text.empty()) {
        const int copied = ::GetWindowTextW(m_hWnd, reinterpret_cast<wchar_t*>(text.data()),
                                            static_cast<int>(text.size()) + 1);
        // The reported length can be more than the actual one, never less.
        text.resize(static_cast<std::size_t>(copied));
    }
    return text;
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

// Both corners in one call: only then does a mirrored window get a rectangle whose
// left is smaller than its right.
void CWnd::ScreenToClient(LPRECT rectangle) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(rectangle), 2);
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
    const CPoint centred((target.left + target.right - own.Width()) / 2,
                         (target.top + target.bottom - own.Height()) / 2);
    const CRect place = AfxMovedInto(CRect(centred, CSize(own.Width(), own.Height())), work);
    SetWindowPos(nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::SendMessageToDescendants(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    for (HWND child = ::GetTopWindow(window); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        ::SendMessageW(child, message, wParam, lParam);
        SendMessageToDescendants(child, message, wParam, lParam);
    }
}

BOOL CWnd::RedrawWindow(LPCRECT rectangle, CRgn* region, UINT flags)
{
    return ::RedrawWindow(m_hWnd, rectangle, region != nullptr ? static_cast<HRGN>(*region) : nullptr, flags);
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

std::vector<HWND> AfxChildWindows(HWND parent)
{
    struct Search {
        HWND parent;
        std::vector<HWND> children{};
    } search{parent};
    const auto add = [](HWND window, LPARAM parameter) -> BOOL {
        auto& found = *reinterpret_cast<Search*>(parameter);
        if (::GetParent(window) == found.parent)
            found.children.push_back(window);
        return TRUE;
    };
    // A null parent would enumerate all top-level windows.
    if (parent != nullptr)
        ::EnumChildWindows(parent, add, reinterpret_cast<LPARAM>(&search));
    return std::move(search.children);
}

bool AfxIsOfClass(HWND window, LPCWSTR className)
{
    // The longest possible class name, with its terminator.
    wchar_t name[257] = L"";
    return window != nullptr && ::GetClassNameW(window, name, static_cast<int>(std::size(name))) != 0 &&
           ::lstrcmpiW(name, className) == 0;
}

CWnd* AfxWindowFromParam(LPARAM handle)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}

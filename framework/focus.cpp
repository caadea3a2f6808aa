#include "framework/focus.h"

#include "framework/dialog.h"

namespace
{
bool IsUsable(HWND window)
{
    const LONG_PTR style = ::GetWindowLongPtrW(window, GWL_STYLE);
    return (style & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
}

bool IsChildWindow(HWND window)
{
    return (::GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD) != 0;
}

bool IsOrHolds(HWND window, HWND other)
{
    return window == other || ::IsChild(window, other);
}

struct TabStops {
    HWND lost;
    bool passed = false;   ///< `lost` has been visited
    HWND before = nullptr; ///< the first tab stop before `lost`
    HWND after = nullptr;  ///< the first tab stop after `lost`
};

void FindTabStops(HWND parent, TabStops& stops)
{
    for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr && stops.after == nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        const bool leads = IsOrHolds(child, stops.lost);
        if (child != stops.lost && IsUsable(child)) {
            if ((::GetWindowLongPtrW(child, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0)
                FindTabStops(child, stops);
            else if (!leads && (::GetWindowLongPtrW(child, GWL_STYLE) & WS_TABSTOP) != 0) {
                HWND& first = stops.passed ? stops.after : stops.before;
                if (first == nullptr)
                    first = child;
            }
        }
        stops.passed = stops.passed || leads;
    }
}

void MoveFocusFrom(HWND lost)
{
    const HWND root = ::GetAncestor(lost, GA_ROOT);
    CWnd* const object = CWnd::FromHandlePermanent(root);
    const auto* const dialog = DYNAMIC_DOWNCAST(CDialog, object);
    const HWND next = dialog != nullptr ? dialog->FocusAfterLosing(lost) : AfxNextTabStop(lost);
    // As Tab does, so that a button becomes the default button and an edit's text is selected.
    if (next != nullptr && dialog != nullptr)
        ::SendMessageW(root, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), TRUE);
    else
        ::SetFocus(next);
}
} // namespace

bool AfxCanHoldFocus(HWND window)
{
    for (; IsChildWindow(window); window = ::GetParent(window)) {
        if (!IsUsable(window))
            return false;
    }
    return true;
}

HWND AfxNextTabStop(HWND lost)
{
    TabStops stops{lost};
    FindTabStops(::GetAncestor(lost, GA_ROOT), stops);
    return stops.after != nullptr ? stops.after : stops.before;
}

void AfxReleaseFocus(HWND window)
{
    if (IsChildWindow(window) && AfxCanHoldFocus(window) && IsOrHolds(window, ::GetFocus()))
        MoveFocusFrom(window);
}

HWND AfxRepairFocus(HWND window)
{
    const HWND focus = ::GetFocus();
    if (focus == nullptr || AfxCanHoldFocus(focus) || !::IsChild(::GetAncestor(window, GA_ROOT), focus))
        return nullptr;
    MoveFocusFrom(focus);
    return focus;
}

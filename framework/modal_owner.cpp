#include "framework/modal_owner.h"

#include <utility>

CModalOwner::CModalOwner(HWND owner) : m_owner(owner), m_focus(::GetFocus())
{
    if (m_owner == nullptr || m_owner == ::GetDesktopWindow()) {
        m_owner = nullptr;
        return;
    }
    const HWND root = ::GetAncestor(m_owner, GA_ROOTOWNER);
    if (root != m_owner && ::IsWindowEnabled(root)) {
        ::EnableWindow(root, FALSE);
        m_disabledRoot = root;
    }
    if (::IsWindowEnabled(m_owner)) {
        ::EnableWindow(m_owner, FALSE);
        m_ownerDisabled = true;
    }
}

void CModalOwner::Enable()
{
    if (std::exchange(m_ownerDisabled, false))
        ::EnableWindow(m_owner, TRUE);
    if (const HWND root = std::exchange(m_disabledRoot, nullptr))
        ::EnableWindow(root, TRUE);
}

void CModalOwner::Release(HWND modalWindow)
{
    Enable();
    if (m_owner == nullptr || modalWindow == nullptr || ::GetActiveWindow() != modalWindow)
        return;
    ::SetActiveWindow(m_owner);
    // A dialog remembers its focused control; other windows do not.
    if (m_focus != nullptr && ::IsChild(m_owner, m_focus) && ::IsWindowVisible(m_focus) &&
        ::IsWindowEnabled(m_focus))
        ::SetFocus(m_focus);
}

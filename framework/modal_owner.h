#pragma once

#include "framework/windows_api.h"

/// Disables the window over which something modal opens, and the top-level
/// window that owns it, and enables again what it disabled.
class CModalOwner
{
  public:
    explicit CModalOwner(HWND owner);
    ~CModalOwner() { Enable(); }
    CModalOwner(const CModalOwner&) = delete;
    CModalOwner& operator=(const CModalOwner&) = delete;

    HWND GetHandle() const { return m_owner; }
    /// Enables the windows and, when the modal window was the active one, gives
    /// activation and focus back to the owner. To be called while the modal
    /// window still is there: once it were gone with nothing enabled beneath,
    /// the system would activate another program.
    void Release(HWND modalWindow);

  private:
    void Enable();

    HWND m_owner;
    HWND m_focus;
    bool m_ownerDisabled = false;
    HWND m_disabledRoot = nullptr;
};

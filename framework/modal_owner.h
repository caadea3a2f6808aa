#pragma once

#include "framework/windows_api.h"

/// Disables the window that a modal window opens over, and that window's top-level
/// owner. Enables again only what it disabled.
class CModalOwner
{
  public:
    explicit CModalOwner(HWND owner);
    ~CModalOwner() { Enable(); }
    CModalOwner(const CModalOwner&) = delete;
    CModalOwner& operator=(const CModalOwner&) = delete;

    HWND GetHandle() const { return m_owner; }
    /// Enables the windows and, if the modal window was active, gives activation and
    /// focus back to the owner. Call it while the modal window still exists: if it were
    /// destroyed while every window beneath it was disabled, the system would activate
    /// another program.
    void Release(HWND modalWindow);

  private:
    void Enable();

    HWND m_owner;
    HWND m_focus;
    bool m_ownerDisabled = false;
    HWND m_disabledRoot = nullptr;
};

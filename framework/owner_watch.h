#pragma once

#include "framework/windows_api.h"

/// Keeps a modal dialog open when the host destroys the window that owns it. The system would destroy the
/// dialog with its owner, and the user would lose unsaved changes without being asked. The dialog continues
/// without an owner instead. Applies only to an owner of the same thread that is not one of this module's own
/// windows: a dialog over one of those ends with it.
class COwnerWatch
{
  public:
    /// Destroy it while the dialog's window still exists, or after it.
    explicit COwnerWatch(HWND dialog);
    ~COwnerWatch();
    COwnerWatch(const COwnerWatch&) = delete;
    COwnerWatch& operator=(const COwnerWatch&) = delete;

  private:
    static LRESULT CALLBACK HookProc(int code, WPARAM wParam, LPARAM lParam);

    HWND m_dialog;
    HHOOK m_hook = nullptr;
    COwnerWatch* m_outer; ///< the watch of the enclosing dialog on this thread
};

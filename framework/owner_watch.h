#pragma once

#include "framework/windows_api.h"

/// Keeps a modal dialog when the window that owns it is destroyed by the program around us: the system
/// would destroy the dialog along with it, and nobody could ask whether its changes are to be lost.
/// The dialog goes on without an owner instead. Only for an owner of the same thread, and none of this
/// module's own windows: a dialog over one of those belongs to it and ends with it.
class COwnerWatch
{
  public:
    /// To be destroyed while the dialog's window still exists, or after it.
    explicit COwnerWatch(HWND dialog);
    ~COwnerWatch();
    COwnerWatch(const COwnerWatch&) = delete;
    COwnerWatch& operator=(const COwnerWatch&) = delete;

  private:
    static LRESULT CALLBACK HookProc(int code, WPARAM wParam, LPARAM lParam);

    HWND m_dialog;
    HHOOK m_hook = nullptr;
    COwnerWatch* m_outer; ///< of another dialog of the thread
};

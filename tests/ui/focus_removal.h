/// Detects that the keyboard focus is removed.
#pragma once

#include "tests/support/await.h"
#include "tests/ui/host_thread.h"

#include <windows.h>
#include <atomic>

/// Records that the host's thread removes the keyboard focus from every window. A
/// window manager may activate the dialog a moment later, which restores the focus,
/// so checking for it afterwards would sometimes be too late.
class FocusRemoval
{
  public:
    FocusRemoval() : m_hook(SetWindowsHookExW(WH_CBT, See, nullptr, HostThread::Get().Id())) { seen = false; }
    ~FocusRemoval() { UnhookWindowsHookEx(m_hook); }
    FocusRemoval(const FocusRemoval&) = delete;
    FocusRemoval& operator=(const FocusRemoval&) = delete;

    bool Await() const
    {
        return uidriver::Await([] { return seen.load(); });
    }

  private:
    static LRESULT CALLBACK See(int code, WPARAM window, LPARAM previous)
    {
        if (code == HCBT_SETFOCUS && window == 0)
            seen = true;
        return CallNextHookEx(nullptr, code, window, previous);
    }

    static inline std::atomic<bool> seen = false;
    HHOOK m_hook;
};

/// The thread that calls the library in place of a host's user-interface thread.
#pragma once

#include <windows.h>

#include <functional>
#include <mutex>

/// One thread for all calls of the process, as a host has one: a new thread
/// would open its own connection to the display every time. Between two calls
/// it handles its messages like any thread that has windows.
class HostThread
{
  public:
    static HostThread& Get();

    /// Has the thread run this next. The previous job must have ended.
    void Run(std::function<void()> job);

    DWORD Id() const { return m_id; }

  private:
    HostThread();
    static DWORD WINAPI Begin(void* self);
    void Loop();
    std::function<void()> TakeJob();

    HANDLE m_wake = nullptr;
    DWORD m_id = 0;
    std::mutex m_mutex;
    std::function<void()> m_job;
};

/// The thread that calls the library in the role of a host's user interface thread.
#pragma once

#include <windows.h>
#include <functional>
#include <mutex>

/// One thread for all calls of the process, as in a host: a new thread would open
/// another connection to the display every time. Between two calls it handles its
/// messages like any thread with windows.
class HostThread
{
  public:
    static HostThread& Get();

    /// Runs the job on the thread. The previous job must have ended.
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

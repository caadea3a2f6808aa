#include "tests/ui/host_thread.h"

#include <utility>

HostThread& HostThread::Get()
{
    // Never destroyed, because the thread uses it until the process ends.
    static auto* thread = new HostThread;
    return *thread;
}

HostThread::HostThread() : m_wake(CreateEventW(nullptr, FALSE, FALSE, nullptr))
{
    CloseHandle(CreateThread(nullptr, 0, Begin, this, 0, &m_id));
}

void HostThread::Run(std::function<void()> job)
{
    {
        const std::lock_guard lock(m_mutex);
        m_job = std::move(job);
    }
    SetEvent(m_wake);
}

DWORD WINAPI HostThread::Begin(void* self)
{
    static_cast<HostThread*>(self)->Loop();
    return 0;
}

std::function<void()> HostThread::TakeJob()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_job, nullptr);
}

void HostThread::Loop()
{
    for (;;) {
        MsgWaitForMultipleObjectsEx(1, &m_wake, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        if (const auto job = TakeJob())
            job();
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

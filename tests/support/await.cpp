#include "tests/support/await.h"

#include <windows.h>

namespace uidriver
{

bool Await(const std::function<bool()>& condition, unsigned deadline, HANDLE event)
{
    constexpr DWORD pollInterval = 5;
    const ULONGLONG end = GetTickCount64() + deadline;
    while (!condition()) {
        if (GetTickCount64() >= end)
            return false;
        MsgWaitForMultipleObjectsEx(event ? 1 : 0, &event, pollInterval, QS_SENDMESSAGE, MWMO_INPUTAVAILABLE);
        MSG message;
        PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    }
    return true;
}

} // namespace uidriver

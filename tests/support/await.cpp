#include "tests/support/await.h"

#include <windows.h>

namespace uidriver
{

bool Await(const std::function<bool()>& condition, unsigned deadline)
{
    constexpr DWORD pollInterval = 5;
    const ULONGLONG end = GetTickCount64() + deadline;
    while (!condition()) {
        if (GetTickCount64() >= end)
            return false;
        MsgWaitForMultipleObjectsEx(0, nullptr, pollInterval, QS_SENDMESSAGE, MWMO_INPUTAVAILABLE);
        MSG message;
        PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    }
    return true;
}

} // namespace uidriver

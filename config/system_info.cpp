#include "config/system_info.h"

#include "framework/afxwin.h"

#include <vector>

namespace
{
// The longest result of the system's name functions, in characters.
constexpr DWORD nameCapacity = 32767;

ov::Text AskName(BOOL(WINAPI* ask)(LPWSTR, LPDWORD))
{
    std::vector<wchar_t> buffer(nameCapacity);
    DWORD length = nameCapacity;
    if (!ask(buffer.data(), &length))
        return {};
    return FromWide(buffer.data());
}
} // namespace

ov::Text GetLogonUserName()
{
    return AskName(&::GetUserNameW);
}

ov::Text GetMachineName()
{
    return AskName(&::GetComputerNameW);
}

std::tm GetLocalTimeNow()
{
    // Not the C library's function: it takes the time zone from an environment variable
    // that other programs set in formats it does not understand.
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    std::tm local{};
    local.tm_year = now.wYear - 1900;
    local.tm_mon = now.wMonth - 1;
    local.tm_mday = now.wDay;
    local.tm_wday = now.wDayOfWeek;
    local.tm_hour = now.wHour;
    local.tm_min = now.wMinute;
    local.tm_sec = now.wSecond;
    local.tm_isdst = -1;
    return local;
}

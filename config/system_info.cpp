#include "config/system_info.h"

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

std::tm TimeFields(const SYSTEMTIME& local)
{
    std::tm fields{};
    fields.tm_year = local.wYear - 1900;
    fields.tm_mon = local.wMonth - 1;
    fields.tm_mday = local.wDay;
    fields.tm_wday = local.wDayOfWeek;
    fields.tm_hour = local.wHour;
    fields.tm_min = local.wMinute;
    fields.tm_sec = local.wSecond;
    fields.tm_isdst = -1;
    return fields;
}

std::tm GetLocalTimeNow()
{
    // Not the C library's function: it takes the time zone from an environment variable
    // that other programs set in formats it does not understand.
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    return TimeFields(now);
}

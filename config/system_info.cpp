#include "config/system_info.h"

#include <stdexcept>
#include <vector>

#include "framework/afxwin.h"

namespace
{
// What the system's name functions may fill at most, in characters.
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
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    if (now == static_cast<std::time_t>(-1) || localtime_s(&local, &now) != 0)
        throw std::invalid_argument("The current time cannot be converted to local time.");
    return local;
}

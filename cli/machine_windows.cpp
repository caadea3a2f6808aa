#include "cli/machine.h"
#include "config/system_info.h"
#include "framework/wide.h"

#include <windows.h>

namespace ov::cli
{

std::chrono::year_month_day Today()
{
    using namespace std::chrono;
    const std::tm now = GetLocalTimeNow();
    return {year(now.tm_year + 1900), month(static_cast<unsigned>(now.tm_mon + 1)),
            day(static_cast<unsigned>(now.tm_mday))};
}

LocalTime LocalTimeNow()
{
    return LocalTimeOf(GetLocalTimeNow());
}

HeaderInfo HeaderOfMachine()
{
    return {FormatSaveDate(GetLocalTimeNow()), GetLogonUserName(), GetMachineName()};
}

bool PathExists(const Text& path)
{
    return ::GetFileAttributesW(Wide(path)) != INVALID_FILE_ATTRIBUTES;
}

} // namespace ov::cli

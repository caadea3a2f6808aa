#include "cli/machine.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <pwd.h>
#include <string>
#include <unistd.h>

namespace ov::cli
{
namespace
{

std::tm CalendarNow()
{
    const std::time_t now = std::time(nullptr);
    std::tm local = {};
    localtime_r(&now, &local);
    return local;
}

Text UserName()
{
    const passwd* const user = getpwuid(geteuid());
    return user != nullptr ? TextFromUtf8(user->pw_name) : Text();
}

Text ComputerName()
{
    std::array<char, 256> name = {};
    return gethostname(name.data(), name.size() - 1) == 0 ? TextFromUtf8(name.data()) : Text();
}

} // namespace

std::chrono::year_month_day Today()
{
    using namespace std::chrono;
    const std::tm now = CalendarNow();
    return {year(now.tm_year + 1900), month(static_cast<unsigned>(now.tm_mon + 1)),
            day(static_cast<unsigned>(now.tm_mday))};
}

LocalTime LocalTimeNow()
{
    return LocalTimeOf(CalendarNow());
}

HeaderInfo HeaderOfMachine()
{
    return {FormatSaveDate(CalendarNow()), UserName(), ComputerName()};
}

bool PathExists(const Text& path)
{
    std::string bytes = Utf8FromText(path);
    if (access(bytes.c_str(), F_OK) == 0)
        return true;
    std::ranges::replace(bytes, '\\', '/');
    return access(bytes.c_str(), F_OK) == 0;
}

} // namespace ov::cli

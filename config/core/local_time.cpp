#include "config/core/local_time.h"

#include <array>
#include <cstdio>

namespace ov
{

using namespace std::chrono;

LocalTime LocalTimeOf(const std::tm& time)
{
    const year_month_day date{year(time.tm_year + 1900), month(static_cast<unsigned>(time.tm_mon + 1)),
                              day(static_cast<unsigned>(time.tm_mday))};
    return local_days(date) + hours(time.tm_hour) + minutes(time.tm_min) + seconds(time.tm_sec);
}

std::tm CalendarOf(LocalTime time)
{
    const local_days today = floor<days>(time);
    const year_month_day date(today);
    const hh_mm_ss clock(time - today);
    std::tm calendar = {};
    calendar.tm_year = static_cast<int>(date.year()) - 1900;
    calendar.tm_mon = static_cast<int>(static_cast<unsigned>(date.month())) - 1;
    calendar.tm_mday = static_cast<int>(static_cast<unsigned>(date.day()));
    calendar.tm_hour = static_cast<int>(clock.hours().count());
    calendar.tm_min = static_cast<int>(clock.minutes().count());
    calendar.tm_sec = static_cast<int>(clock.seconds().count());
    calendar.tm_wday = static_cast<int>(weekday(today).c_encoding());
    calendar.tm_yday = static_cast<int>((today - local_days(date.year() / January / 1)).count());
    calendar.tm_isdst = -1;
    return calendar;
}

Text FormatLocalTime(LocalTime time)
{
    const std::tm calendar = CalendarOf(time);
    std::array<char, 64> text = {};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", calendar.tm_year + 1900,
                  calendar.tm_mon + 1, calendar.tm_mday, calendar.tm_hour, calendar.tm_min, calendar.tm_sec);
    return TextFromUtf8(text.data());
}

} // namespace ov

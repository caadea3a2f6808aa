// Conversions of local times.

#include "config/core/local_time.h"

#include <gtest/gtest.h>

namespace ov
{
namespace
{

using namespace std::chrono;

TEST(LocalTimeTest, IsConvertedBothWays)
{
    std::tm calendar = {};
    calendar.tm_year = 124;
    calendar.tm_mon = 1;
    calendar.tm_mday = 29;
    calendar.tm_hour = 23;
    calendar.tm_min = 59;
    calendar.tm_sec = 58;
    const LocalTime time = LocalTimeOf(calendar);
    EXPECT_EQ(time, local_days(year(2024) / 2 / 29) + 23h + 59min + 58s);
    const std::tm back = CalendarOf(time);
    EXPECT_EQ(back.tm_year, 124);
    EXPECT_EQ(back.tm_mon, 1);
    EXPECT_EQ(back.tm_mday, 29);
    EXPECT_EQ(back.tm_hour, 23);
    EXPECT_EQ(back.tm_min, 59);
    EXPECT_EQ(back.tm_sec, 58);
    EXPECT_EQ(back.tm_wday, 4); // A Thursday.
    EXPECT_EQ(back.tm_yday, 59);
}

TEST(LocalTimeTest, IsFormatted)
{
    EXPECT_EQ(FormatLocalTime(local_days(year(2026) / 1 / 2) + 3h + 4min + 5s), u"2026-01-02 03:04:05");
    EXPECT_EQ(FormatLocalTime(local_days(year(1969) / 12 / 31) + 23h), u"1969-12-31 23:00:00");
}

} // namespace
} // namespace ov

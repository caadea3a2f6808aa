#pragma once

#include "config/core/config_writer.h"
#include "config/core/save.h"

#include <ctime>
#include <stdexcept>

namespace ov::test
{

/// A save by Jane Admin on OFFICE-01 at 19:12 on Friday 20 November 2026.
class TestSurroundings final : public SaveSurroundings
{
  public:
    bool clockFails = false;

    /// The header of files saved in these surroundings.
    static Text Header()
    {
        return MakeHeader({u"Friday 20 November 2026, 19:12:00", u"Jane Admin", u"OFFICE-01"});
    }

    std::tm LocalTime() override
    {
        if (clockFails)
            throw std::invalid_argument("The local time cannot be told");
        std::tm time{};
        time.tm_year = 126;
        time.tm_mon = 10;
        time.tm_mday = 20;
        time.tm_wday = 5;
        time.tm_hour = 19;
        time.tm_min = 12;
        return time;
    }
    Text UserName() override { return u"Jane Admin"; }
    Text ComputerName() override { return u"OFFICE-01"; }
};

} // namespace ov::test

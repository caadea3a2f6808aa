#pragma once

#include "base/text.h"

#include <chrono>
#include <ctime>

namespace ov
{

/// A local time of this machine, in whole seconds.
using LocalTime = std::chrono::local_seconds;

/// The local time with the date and the time of day of `time`; the other members are ignored.
LocalTime LocalTimeOf(const std::tm& time);

/// The date, the time of day, the day of the week and the day of the year. The daylight saving flag is
/// "unknown".
std::tm CalendarOf(LocalTime time);

/// The time as "2026-11-22 13:05:12". Years have at least four digits.
Text FormatLocalTime(LocalTime time);

} // namespace ov

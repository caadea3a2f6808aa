#pragma once

#include "base/text.h"
#include "config/core/config_writer.h"
#include "config/core/local_time.h"

#include <chrono>

namespace ov::cli
{

/// The current local day.
std::chrono::year_month_day Today();

/// The current local time.
LocalTime LocalTimeNow();

/// The texts of a header written now, on this machine, by this user.
HeaderInfo HeaderOfMachine();

/// True if a file or folder exists under the path. Both kinds of slashes separate folders.
bool PathExists(const Text& path);

} // namespace ov::cli

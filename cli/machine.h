#pragma once

#include "base/text.h"
#include "config/core/config_writer.h"

#include <chrono>

namespace ov::cli
{

/// Today's day where the machine is.
std::chrono::year_month_day Today();

/// The texts of a header that is written now, on this machine, by this user.
HeaderInfo HeaderOfMachine();

/// Whether there is a file or folder under the path. Both kinds of slashes separate folders.
bool PathExists(const Text& path);

} // namespace ov::cli

#pragma once

#include <ctime>

#include "base/text.h"

/// The logged-on user's name; empty when the system does not provide it.
ov::Text GetLogonUserName();

/// The computer's name; empty when the system does not provide it.
ov::Text GetMachineName();

/// The local time now, in the system's time zone. Whether daylight saving is in
/// force and the day of the year are left open.
std::tm GetLocalTimeNow();

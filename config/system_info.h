#pragma once

#include <ctime>

#include "base/text.h"

/// The logged-on user's name; empty when the system does not tell.
ov::Text GetLogonUserName();

/// The computer's name; empty when the system does not tell.
ov::Text GetMachineName();

/// The local time now. Throws std::invalid_argument when the system's time
/// cannot be expressed as local time.
std::tm GetLocalTimeNow();

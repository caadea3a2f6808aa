#pragma once

#include "base/text.h"
#include "framework/afxwin.h"

#include <ctime>

/// The logged-on user's name; empty if the system does not provide it.
ov::Text GetLogonUserName();

/// The computer's name; empty if the system does not provide it.
ov::Text GetMachineName();

/// The fields of a local time of the system. Whether it is daylight saving time is unknown; the day of the
/// year is not set.
std::tm TimeFields(const SYSTEMTIME& local);

/// The current local time, in the system's time zone. The daylight saving flag and
/// the day of the year are not set.
std::tm GetLocalTimeNow();

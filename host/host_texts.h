/// The texts of the launcher, from its string table.
#pragma once

#include "base/text.h"

#include <initializer_list>

/// A text of the string table with "%1", "%2", ... replaced.
ov::Text HostText(unsigned id, std::initializer_list<ov::TextView> values = {});

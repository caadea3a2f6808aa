#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Logging page.
const PageRows& LoggingRows();

} // namespace ov

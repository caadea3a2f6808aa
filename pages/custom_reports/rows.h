#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Custom Reports page.
const PageRows& CustomReportsRows();

} // namespace ov

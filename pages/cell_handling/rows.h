#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Cell Handling page.
const PageRows& CellHandlingRows();

} // namespace ov

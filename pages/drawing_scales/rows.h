#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Drawing Scales page.
const PageRows& DrawingScalesRows();

} // namespace ov

#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Watermark Placement page.
const PageRows& WatermarkPlacementRows();

} // namespace ov

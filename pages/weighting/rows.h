#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Score Weighting page.
const PageRows& WeightingRows();

} // namespace ov

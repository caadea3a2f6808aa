#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Conforming page: what is checked, tolerances and ignored levels.
const PageRows& ConformingRows();

} // namespace ov

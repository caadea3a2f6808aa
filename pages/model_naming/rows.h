#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Model Naming page.
const PageRows& ModelNamingRows();

} // namespace ov

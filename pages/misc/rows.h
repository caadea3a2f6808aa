#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Miscellaneous page.
const PageRows& MiscRows();

} // namespace ov

#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Third Party Apps page.
const PageRows& ThirdPartyRows();

} // namespace ov

#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Version page.
const PageRows& VersionRows();

} // namespace ov

#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Feature Tables page.
const PageRows& FeatureTablesRows();

} // namespace ov

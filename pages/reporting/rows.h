#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Reporting page.
const PageRows& ReportingRows();

} // namespace ov

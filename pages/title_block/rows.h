#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Title Blocks page.
const PageRows& TitleBlockRows();

} // namespace ov

#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The File Naming page.
const PageRows& FileNamingRows();

} // namespace ov

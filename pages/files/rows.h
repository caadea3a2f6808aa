#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The File Paths page.
const PageRows& FilesRows();

} // namespace ov

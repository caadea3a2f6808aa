#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Reference Files page.
const PageRows& ReferenceFilesRows();

} // namespace ov

#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Users page.
const PageRows& UsersRows();

} // namespace ov

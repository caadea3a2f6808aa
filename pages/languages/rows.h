#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Languages page.
const PageRows& LanguagesRows();

} // namespace ov

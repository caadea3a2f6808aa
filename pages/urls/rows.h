#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The URLs page.
const PageRows& UrlsRows();

} // namespace ov

#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The rows of every page that has them, in catalogue order.
std::span<const PageRows* const> AllPageRows();

} // namespace ov

#pragma once

#include "pages/core/setting_row.h"

#include <vector>

namespace ov
{

/// The layout row of each control of the page's template: how it follows the page's
/// size. Edits stretch unless they have an up-down control. "..." buttons stay at
/// the right end of the stretched controls. All other controls are fixed. The
/// page's rows contain the exceptions.
std::vector<LayoutRow> LayoutOf(const PageRows& page);

} // namespace ov

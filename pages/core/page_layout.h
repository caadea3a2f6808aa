#pragma once

#include "pages/core/setting_row.h"

#include <vector>

namespace ov
{

/// How the controls of a page follow its size, for each control of its template.
/// Edits stretch, unless they have an up-down control; "..." buttons stay at the
/// right end of what stretches; everything else keeps its place and its size.
/// What differs from that is in the page's rows.
std::vector<LayoutRow> LayoutOf(const PageRows& page);

} // namespace ov

#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Colour Table page.
const PageRows& ColourTableRows();

} // namespace ov

#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Drafting page.
const PageRows& DraftingRows();

} // namespace ov

#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Signature Cells page.
const PageRows& SignatureCellRows();

} // namespace ov

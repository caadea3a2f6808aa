#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Watermark Integrity page.
const PageRows& WatermarkIntegrityRows();

} // namespace ov

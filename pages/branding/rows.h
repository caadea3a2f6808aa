#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Branding page: branding of files with feature tables.
const PageRows& BrandingRows();

} // namespace ov

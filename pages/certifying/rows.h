#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The Certifying page.
const PageRows& CertifyingRows();

} // namespace ov

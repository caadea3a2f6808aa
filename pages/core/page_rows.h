#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

// For each page, that is for each folder in pages/, `const PageRows& <Name>Rows()`,
// which the folder's rows.cpp defines: ConformingRows() for pages/conforming.
#define OV_PAGE(name) const PageRows& name##Rows();
#include "pages/page_list.inc"
#undef OV_PAGE

} // namespace ov

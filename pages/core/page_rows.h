#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

// Declares `const PageRows& <Name>Rows()` for each page, that is, for each folder in
// pages/. The folder's rows.cpp defines it: ConformingRows() for pages/conforming.
#define OV_PAGE(name) const PageRows& name##Rows();
#include "pages/page_list.inc"
#undef OV_PAGE

} // namespace ov

#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

// Declares the rows of each page, that is, of each folder in pages/. The folder's
// rows.cpp defines them: kConformingRows for pages/conforming.
#define OV_PAGE(name) extern const PageRows k##name##Rows;
#include "pages/page_list.inc"
#undef OV_PAGE

} // namespace ov

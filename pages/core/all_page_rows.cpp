#include "pages/core/all_page_rows.h"

#include "pages/core/branding_rows.h"
#include "pages/core/conforming_rows.h"

namespace ov
{

std::span<const PageRows* const> AllPageRows()
{
    static const PageRows* const pages[] = {&BrandingRows(), &ConformingRows()};
    return pages;
}

} // namespace ov

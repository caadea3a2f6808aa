#pragma once

#include "controls/core/layout.h"

#include <cstdint>

namespace ov
{

/// The ways in which the controls of the pages follow their page.
inline constexpr std::uint32_t kFixed = LayoutKeepLeft | LayoutKeepTop;
inline constexpr std::uint32_t kTopRight = LayoutKeepTop | LayoutAnchorRight;
inline constexpr std::uint32_t kStretched = LayoutKeepTop | LayoutStretchWidth;

} // namespace ov

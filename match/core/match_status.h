#pragma once

#include <cstdint>

namespace ov
{

/// Return values of the matching functions.
inline constexpr std::uint32_t kMatchDone = 0;
inline constexpr std::uint32_t kMatchFailed = 0x8000;

} // namespace ov

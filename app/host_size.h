#pragma once

#include <cstdint>

namespace Bentley::UIFramework
{
/// The host framework's size type, with two 32-bit extents. Its header declares the
/// assignments as exported, so a library built with it exports them too.
class BSize
{
  public:
    BSize() = default;
    BSize(std::int32_t width, std::int32_t height) : cx(width), cy(height) {}
    BSize(const BSize&) = default;
    BSize& operator=(const BSize& other);
    BSize& operator=(BSize&& other) noexcept;

    std::int32_t cx = 0;
    std::int32_t cy = 0;
};
static_assert(sizeof(BSize) == 8);
} // namespace Bentley::UIFramework

#include "app/host_size.h"

namespace Bentley::UIFramework
{
BSize& BSize::operator=(const BSize& other)
{
    cx = other.cx;
    cy = other.cy;
    return *this;
}

BSize& BSize::operator=(BSize&& other) noexcept
{
    cx = other.cx;
    cy = other.cy;
    return *this;
}
} // namespace Bentley::UIFramework

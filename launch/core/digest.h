#pragma once

#include "base/text.h"

#include <cstdint>
#include <string_view>

namespace ov
{

/// The digest of no bytes.
inline constexpr std::uint64_t kEmptyDigest = 0xCBF29CE484222325;

/// A 64-bit digest (FNV-1a) that recognises the same bytes again; not for protection against intent.
/// Continues the digest `before` of the preceding bytes.
std::uint64_t DigestOf(std::string_view bytes, std::uint64_t before = kEmptyDigest);

/// The last `digits` hexadecimal digits of a number, in lower case.
Text Hexadecimal(std::uint64_t number, int digits);

} // namespace ov

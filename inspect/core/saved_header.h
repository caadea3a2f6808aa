#pragma once

#include "base/text.h"
#include "config/core/config_writer.h"

#include <cstddef>
#include <optional>
#include <span>

namespace ov
{

/// The number of lines of the header that Save writes.
inline constexpr std::size_t kSavedHeaderLines = 13;

/// What the header of a file says about its last save. Nothing when the lines, given
/// without line ends, are not a header as Save writes it.
std::optional<HeaderInfo> ReadSavedHeader(std::span<const Text> lines);

} // namespace ov

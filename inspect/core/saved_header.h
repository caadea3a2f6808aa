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

/// The data about the last save in a file's header. Nothing if the lines, given without
/// line ends, are not a header in the form that Save writes.
std::optional<HeaderInfo> ReadSavedHeader(std::span<const Text> lines);

} // namespace ov

#pragma once

#include "base/text.h"
#include "config/core/file_port.h"

#include <functional>
#include <string_view>

namespace ov
{

/// Reads a whole file and passes its bytes on in blocks.
FileResult ReadBlocks(FilePort& files, const Text& path, const std::function<void(std::string_view)>& block);

} // namespace ov

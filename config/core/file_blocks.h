#pragma once

#include "base/text.h"
#include "config/core/file_port.h"

#include <functional>
#include <string>
#include <string_view>

namespace ov
{

/// Reads a whole file and passes its bytes on in blocks.
FileResult ReadBlocks(FilePort& files, const Text& path, const std::function<void(std::string_view)>& block);

/// Sets `content` to the bytes of a whole file; unspecified on failure.
FileResult ReadWhole(FilePort& files, const Text& path, std::string& content);

} // namespace ov

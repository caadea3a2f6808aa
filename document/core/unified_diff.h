#pragma once

#include <string>
#include <string_view>

namespace ov
{

/// The unified difference of two files, as `diff -u` writes it and `patch` applies it: byte for byte,
/// whatever the encoding, with LF ends for its own lines. Empty when the files are equal. The names
/// appear in the first two lines.
std::string UnifiedDiff(std::string_view oldBytes, std::string_view newBytes, std::string_view oldName,
                        std::string_view newName);

} // namespace ov

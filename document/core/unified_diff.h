#pragma once

#include <string>
#include <string_view>

namespace ov
{

/// The unified difference of two files, as written by `diff -u` and applied by `patch`: byte for byte in
/// any encoding, with LF at the end of its own lines. Empty if the files are equal. The names
/// appear in the first two lines.
std::string UnifiedDiff(std::string_view oldBytes, std::string_view newBytes, std::string_view oldName,
                        std::string_view newName);

} // namespace ov

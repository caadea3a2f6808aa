/// Finds the files that tests read.
#pragma once

#include <filesystem>
#include <string_view>

namespace ov::test
{

/// The path of a file or folder, given by its path in the source tree ("tests/golden").
///
/// The environment variable OV_TEST_DATA replaces the root of the source tree, for test programs on
/// a machine without the sources.
std::filesystem::path TestData(std::string_view path);

} // namespace ov::test

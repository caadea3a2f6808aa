/// Random configuration files for the property tests, as people and programs leave
/// them behind. Portable.
#pragma once

#include <random>
#include <string>

namespace expected
{

/// The bytes of a file: known and unknown variables with values that mean something
/// and others that do not, in all operators and layouts, among comments, directives,
/// blank and broken lines; with or without a header, in any line ends and encoding.
std::string RandomFile(std::mt19937& random);

} // namespace expected

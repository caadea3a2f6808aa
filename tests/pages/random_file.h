/// Random configuration files for the property tests, similar to those of users and
/// programs. Portable.
#pragma once

#include <random>
#include <string>

namespace expected
{

/// The bytes of a file: known and unknown variables with valid and invalid values,
/// with all operators and layouts, among comments, directives, blank lines and
/// malformed lines; with or without a header, in any line ends and encoding.
std::string RandomFile(std::mt19937& random);

} // namespace expected

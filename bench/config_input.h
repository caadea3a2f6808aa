#pragma once

#include <string>

namespace ov::bench
{

/// A configuration file of so many variables, each with a comment of several lines, as the writer
/// makes them: the same bytes in every run.
std::string MakeConfigFile(int variables);

} // namespace ov::bench

#pragma once

#include <string>

namespace ov::bench
{

/// A configuration file of so many variables, each with a comment of several lines, as the writer
/// makes them: the same bytes in every run. A variable takes six to seven lines and about 260
/// bytes, more than four in five of them comment. The names are in order, as the writer puts them,
/// or in none.
std::string MakeConfigFile(int variables, bool inOrder = true);

/// A configuration file that adds to one variable in so many lines, each with this operator.
std::string MakeListFile(int lines, char operation);

} // namespace ov::bench

#pragma once

#include <string>

namespace ov::bench
{

/// A configuration file of that many variables, each with a comment of several lines, in the form that the
/// writer creates. The bytes are the same in every run. A variable has six to seven lines and about 260
/// bytes, more than four fifths of them in comments. The names are in the writer's order,
/// or in no order.
std::string MakeConfigFile(int variables, bool inOrder = true);

/// A configuration file that adds to one variable in that many lines, each with this operator.
std::string MakeListFile(int lines, char operation);

} // namespace ov::bench

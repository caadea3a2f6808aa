#pragma once

#include <string>

namespace ov::bench
{

/// Returns a configuration file with that many variables, each with a comment of several lines, as the
/// writer makes them; every run makes the same bytes. A variable takes six to seven lines and about 260
/// bytes; more than four in five of the bytes are comment. The names begin with `prefix`; they are in
/// name order, as the writer puts them, or in random order.
std::string MakeConfigFile(int variables, bool inOrder = true, const char* prefix = "_ORTHOVAL_BENCH_");

/// A configuration file that adds to one variable in that many lines, each with this operator.
std::string MakeListFile(int lines, char operation);

} // namespace ov::bench

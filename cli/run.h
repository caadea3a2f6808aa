#pragma once

#include "cli/command.h"

#include <string>
#include <vector>

namespace ov::cli
{

/// Runs the program with its arguments, in UTF-8 and without the program's own name. Writes the
/// answer and the problems to the process's streams.
ExitCode Run(const std::vector<std::string>& arguments);

} // namespace ov::cli

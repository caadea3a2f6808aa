#pragma once

#include "cli/command.h"

#include <string>
#include <vector>

namespace ov::cli
{

/// Runs the program. The arguments are in UTF-8 and do not include the program's own name. Writes the
/// answer and the problems to the streams of the process.
ExitCode Run(const std::vector<std::string>& arguments);

} // namespace ov::cli

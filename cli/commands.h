#pragma once

#include "cli/command.h"

#include <span>

namespace ov::cli
{

/// All commands in the order in which the help lists them.
std::span<const CommandRow> AllCommands();

// Each is defined in the source that has the command's name.
std::unique_ptr<Command> MakeGetCommand();

} // namespace ov::cli

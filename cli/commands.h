#pragma once

#include "cli/command.h"

#include <span>

namespace ov::cli
{

/// All commands in the order in which the help lists them.
std::span<const CommandRow> AllCommands();

// Each function is defined in the source file named after its command.
std::unique_ptr<Command> MakeCheckCommand();
std::unique_ptr<Command> MakeGetCommand();
std::unique_ptr<Command> MakePreviewCommand();
std::unique_ptr<Command> MakeExplainCommand();
std::unique_ptr<Command> MakeFindCommand();
std::unique_ptr<Command> MakeMatchCommand();
std::unique_ptr<Command> MakeReferenceCommand();
std::unique_ptr<Command> MakeRulesCommand();
std::unique_ptr<Command> MakeSetCommand();
std::unique_ptr<Command> MakeUnsetCommand();
std::unique_ptr<Command> MakeListCommand();
std::unique_ptr<Command> MakeDiffCommand();
std::unique_ptr<Command> MakeMergeCommand();
std::unique_ptr<Command> MakeRestoreCommand();

} // namespace ov::cli

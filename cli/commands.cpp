#include "cli/commands.h"

namespace ov::cli
{
namespace
{

constexpr CommandRow kCommands[] = {
    {"check", "Report what is wrong with configuration files", MakeCheckCommand},
    {"preview", "Show what Save would make of a file", MakePreviewCommand},
    {"get", "Print the values of variables", MakeGetCommand},
    {"set", "Give variables new values, line by line", MakeSetCommand},
    {"unset", "Remove variables with their comments", MakeUnsetCommand},
    {"list", "Add and remove entries of a list", MakeListCommand},
    {"explain", "Explain settings", MakeExplainCommand},
    {"find", "Find settings by words", MakeFindCommand},
    {"diff", "Compare two files variable by variable", MakeDiffCommand},
    {"merge", "Merge two changed files variable by variable", MakeMergeCommand},
    {"restore", "Bring back a dated copy of a file", MakeRestoreCommand},
    {"match", "Match texts with a template", MakeMatchCommand},
    {"reference", "Print the reference of all settings", MakeReferenceCommand},
    {"rules", "Print the rules of check", MakeRulesCommand},
};

} // namespace

std::span<const CommandRow> AllCommands()
{
    return kCommands;
}

} // namespace ov::cli

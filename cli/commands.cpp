#include "cli/commands.h"

namespace ov::cli
{
namespace
{

constexpr CommandRow kCommands[] = {
    {"check", "Report what is wrong with configuration files", MakeCheckCommand},
    {"preview", "Show what Save would make of a file", MakePreviewCommand},
    {"get", "Print the values of variables", MakeGetCommand},
    {"explain", "Explain settings", MakeExplainCommand},
    {"find", "Find settings by words", MakeFindCommand},
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

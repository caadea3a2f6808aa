#include "cli/commands.h"

namespace ov::cli
{
namespace
{

constexpr CommandRow kCommands[] = {
    {"get", "Print the values of variables", MakeGetCommand},
};

} // namespace

std::span<const CommandRow> AllCommands()
{
    return kCommands;
}

} // namespace ov::cli

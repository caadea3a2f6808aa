#pragma once

#include <string_view>

namespace ov::cli
{

class Output;

/// Prints the unified difference between two contents of a file, coloured on a terminal.
void PrintUnifiedDiff(Output& output, std::string_view before, std::string_view after, std::string_view path);

} // namespace ov::cli

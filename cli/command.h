#pragma once

#include <memory>

namespace ov::cli
{

class Options;
class Output;

/// The program's exit codes. Scripts rely on them.
enum class ExitCode {
    Done = 0,   ///< Done, and nothing to report.
    Found = 1,  ///< Findings, differences, a name not found, no match, a conflict, a refused edit.
    Failed = 2, ///< Wrong usage, a file that cannot be read, a failed write.
};

/// The more severe of two exit codes.
constexpr ExitCode Worse(ExitCode first, ExitCode second)
{
    return first < second ? second : first;
}

/// A command of the program. An object is used for one call; its members hold the options.
class Command
{
  public:
    virtual ~Command() = default;

    /// Declares the options and operands; parsing stores them in the object's members.
    virtual void Declare(Options& options) = 0;

    /// Runs the command with the given options. Throws Usage for arguments that contradict each other.
    virtual ExitCode Run(Output& output) = 0;
};

/// An entry of the table of commands.
struct CommandRow {
    const char* name;
    const char* summary; ///< One sentence without a full stop.
    std::unique_ptr<Command> (*make)();
};

} // namespace ov::cli

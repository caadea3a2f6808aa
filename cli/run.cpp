#include "cli/run.h"

#include "cli/commands.h"
#include "cli/options.h"
#include "cli/output.h"
#include "version/version.h"

#include <algorithm>
#include <exception>
#include <new>

namespace ov::cli
{
namespace
{

constexpr std::size_t kSummaryColumn = 14;

std::string ProgramHelp()
{
    std::string text = "Checks, shows and edits the configuration files of Orthoval Preferences.\n"
                       "\n"
                       "Usage: ovprefs COMMAND [options] [operands]\n"
                       "       ovprefs COMMAND --help\n"
                       "       ovprefs --help | --version\n"
                       "\n"
                       "Commands:\n";
    for (const CommandRow& row : AllCommands()) {
        std::string line = std::string("  ") + row.name;
        line.resize(std::max(line.size() + 1, kSummaryColumn), ' ');
        text += line + row.summary + "\n";
    }
    text += "\n"
            "Exit code: 0 done, nothing to report; 1 findings, differences, a name not found,\n"
            "no match, a conflict, a refused edit; 2 wrong usage, a file that cannot be read,\n"
            "a failed write.\n";
    return text;
}

ExitCode WrongUsage(Output& output, const std::string& message, const std::string& command)
{
    output.Problem(message);
    output.Remark("Try 'ovprefs " + (command.empty() ? "" : command + " ") + "--help'.");
    return ExitCode::Failed;
}

ExitCode RunCommand(const CommandRow& row, const std::vector<std::string>& arguments, Output& output)
{
    const std::unique_ptr<Command> command = row.make();
    Options options(row.name, row.summary);
    command->Declare(options);
    std::string message;
    switch (options.Parse(arguments, message)) {
    case Options::Outcome::HelpAsked:
        output.Print(options.Help());
        return ExitCode::Done;
    case Options::Outcome::Wrong:
        return WrongUsage(output, message, row.name);
    case Options::Outcome::Parsed:
        break;
    }
    try {
        return command->Run(output);
    } catch (const Usage& usage) {
        return WrongUsage(output, usage.what(), row.name);
    }
}

ExitCode RunProgram(const std::vector<std::string>& arguments, Output& output)
{
    if (arguments.empty())
        return WrongUsage(output, "A command is missing", "");
    const std::string& name = arguments.front();
    if (name == "--help") {
        output.Print(ProgramHelp());
        return ExitCode::Done;
    }
    if (name == "--version") {
        output.Print(std::string("ovprefs ") + VersionWithRevision() + "\n");
        return ExitCode::Done;
    }
    const auto rows = AllCommands();
    const auto row =
        std::find_if(rows.begin(), rows.end(), [&](const CommandRow& r) { return name == r.name; });
    if (row == rows.end())
        return WrongUsage(output, "There is no command '" + name + "'", "");
    return RunCommand(*row, {arguments.begin() + 1, arguments.end()}, output);
}

} // namespace

ExitCode Run(const std::vector<std::string>& arguments)
{
    Output output;
    try {
        return output.Finish(RunProgram(arguments, output));
    } catch (const std::bad_alloc&) {
        output.Problem("There is not enough memory");
    } catch (const std::exception& error) {
        output.Problem(error.what());
    }
    return ExitCode::Failed;
}

} // namespace ov::cli

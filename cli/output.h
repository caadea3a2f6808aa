#pragma once

#include "cli/command.h"

#include <string>
#include <string_view>

namespace ov::cli
{

/// Terminal colours by their meaning.
enum class Colour { None, Removed, Added, Heading, Error, Warning, Note };

/// The output of a command: the answer on the standard output, problems on the standard error.
///
/// The answer is collected and written by Finish at the end, so that a command that fails midway
/// leaves no partial answer.
class Output
{
  public:
    /// Checks the streams and the environment variable NO_COLOR to decide about colours.
    Output();

    /// Appends bytes to the answer.
    void Print(std::string_view bytes) { m_answer.append(bytes); }

    /// Appends bytes to the answer, in a colour on a terminal.
    void Print(std::string_view bytes, Colour colour);

    /// True if the answer is shown in colours.
    bool UsesColours() const { return m_colours; }

    /// Writes "ovprefs: MESSAGE" to the standard error at once.
    void Problem(std::string_view message);

    /// Writes a line to the standard error at once, for text that is neither the answer nor a problem.
    void Remark(std::string_view line);

    /// Writes a line to the standard error after the answer, such as the number of findings.
    void Summarise(std::string_view line) { m_summary.append(line).append("\n"); }

    /// Writes the answer. Returns the exit code: `code`, or Failed if the answer cannot be written.
    /// A stream whose reader is gone is not a failure.
    ExitCode Finish(ExitCode code);

  private:
    std::string m_answer;
    std::string m_summary;
    bool m_colours;
};

} // namespace ov::cli

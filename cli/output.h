#pragma once

#include "cli/command.h"

#include <string>
#include <string_view>

namespace ov::cli
{

/// Colours of the terminal, by what they mean.
enum class Colour { None, Removed, Added, Heading, Error, Warning, Note };

/// What a command says: the answer on the standard output, problems on the standard error.
///
/// The answer is collected and written at the end by Finish, so that a command that fails half-way
/// leaves no half answer.
class Output
{
  public:
    /// Asks the streams and the environment variable NO_COLOR whether colours are to be used.
    Output();

    /// Appends bytes to the answer.
    void Print(std::string_view bytes) { m_answer.append(bytes); }

    /// Appends bytes to the answer, in a colour on a terminal.
    void Print(std::string_view bytes, Colour colour);

    /// True when the answer is shown in colours.
    bool UsesColours() const { return m_colours; }

    /// Writes "ovprefs: MESSAGE" to the standard error at once.
    void Problem(std::string_view message);

    /// Writes a line to the standard error at once: what is neither the answer nor a problem.
    void Remark(std::string_view line);

    /// Writes the answer. Gives the exit code: `code`, or Failed when the answer cannot be written.
    /// A stream that nobody reads any more is no failure.
    ExitCode Finish(ExitCode code);

  private:
    std::string m_answer;
    bool m_colours;
};

} // namespace ov::cli

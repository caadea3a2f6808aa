#include "cli/output.h"

#include "cli/platform.h"

namespace ov::cli
{
namespace
{

// The terminal's escape sequence for a colour.
std::string_view SequenceOf(Colour colour)
{
    switch (colour) {
    case Colour::Removed:
    case Colour::Error:
        return "\x1b[31m";
    case Colour::Added:
        return "\x1b[32m";
    case Colour::Warning:
        return "\x1b[33m";
    case Colour::Heading:
    case Colour::Note:
        return "\x1b[36m";
    case Colour::None:
        break;
    }
    return "";
}

} // namespace

Output::Output() : m_colours(EnvironmentVariable("NO_COLOR").empty() && IsColourTerminal(Stream::Output)) {}

void Output::Print(std::string_view bytes, Colour colour)
{
    if (!m_colours || colour == Colour::None || bytes.empty()) {
        m_answer.append(bytes);
        return;
    }
    m_answer.append(SequenceOf(colour)).append(bytes).append("\x1b[0m");
}

void Output::Problem(std::string_view message)
{
    Remark("ovprefs: " + std::string(message));
}

void Output::Remark(std::string_view line)
{
    std::string ignored;
    WriteBytes(Stream::Error, std::string(line) + "\n", ignored);
}

ExitCode Output::Finish(ExitCode code)
{
    std::string problem;
    const WriteOutcome outcome = WriteBytes(Stream::Output, m_answer, problem);
    std::string ignored;
    WriteBytes(Stream::Error, m_summary, ignored);
    if (outcome != WriteOutcome::Failed)
        return code;
    Problem("The output cannot be written: " + problem);
    return ExitCode::Failed;
}

} // namespace ov::cli

#include "cli/commands.h"
#include "cli/file_output.h"
#include "cli/input.h"
#include "cli/options.h"
#include "cli/output.h"
#include "document/core/plain_text.h"
#include "inspect/core/merge.h"
#include "inspect/core/page_facts.h"

namespace ov::cli
{
namespace
{

class MergeCommand final : public Command
{
  public:
    void Declare(Options& options) override
    {
        options.Operand("BASE", m_base, "The file that both others were made from");
        options.Operand("OURS", m_ours, "The file that gets the changes");
        options.Operand("THEIRS", m_theirs, "The file with the changes");
        options.Text("--output", "FILE", m_output, "Write the merged file there instead of printing it");
        m_encoding.Declare(options);
    }

    ExitCode Run(Output& output) override
    {
        if (m_output && !MayWriteTo(*m_output, output))
            return ExitCode::Failed;
        InputReader reader(m_encoding, output);
        const auto base = reader.Read(m_base);
        const auto ours = reader.Read(m_ours);
        const auto theirs = reader.Read(m_theirs);
        if (!base || !ours || !theirs)
            return ExitCode::Failed;
        if (!IsPlainText(*base, output) || !IsPlainText(*ours, output) || !IsPlainText(*theirs, output))
            return ExitCode::Failed;
        const MergeResult result = MergeFiles({base->bytes, base->charset}, {ours->bytes, ours->charset},
                                              {theirs->bytes, theirs->charset}, FactsOfPages);
        for (const Text& name : result.conflicts)
            output.Problem(m_ours + ": Conflict in " + Utf8FromText(name));
        if (result.otherLines)
            output.Problem(m_ours + ": Conflict in lines that belong to no variable");
        const ExitCode code = result.IsClean() ? ExitCode::Done : ExitCode::Found;
        if (m_output)
            return Worse(code, ReplaceFile(*m_output, result.bytes, output));
        output.Print(result.bytes);
        return code;
    }

  private:
    // Merging lines would damage any other file.
    static bool IsPlainText(const InputFile& file, Output& output)
    {
        const char* const reason = WhyNotPlainText(file.bytes);
        if (reason != nullptr)
            output.Problem(file.path + ": It is not plain text: " + reason);
        return reason == nullptr;
    }

    std::string m_base;
    std::string m_ours;
    std::string m_theirs;
    std::optional<std::string> m_output;
    EncodingOption m_encoding;
};

} // namespace

std::unique_ptr<Command> MakeMergeCommand()
{
    return std::make_unique<MergeCommand>();
}

} // namespace ov::cli

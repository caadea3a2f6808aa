#include "cli/commands.h"
#include "cli/file_output.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/reference_output.h"

namespace ov::cli
{
namespace
{

class ReferenceCommand final : public Command
{
  public:
    void Declare(Options& options) override
    {
        options.Choice("--format", m_format, {"markdown", "html", "json", "schema"},
                       "The form of the output");
        options.Text("--output", "FILE", m_path, "The file to write, in place of the standard output");
    }

    ExitCode Run(Output& output) override
    {
        const std::string reference = Reference();
        if (m_path)
            return ReplaceFile(*m_path, reference, output);
        output.Print(reference);
        return ExitCode::Done;
    }

  private:
    enum class Format { Markdown, Html, Json, Schema };

    std::string Reference() const
    {
        switch (m_format) {
        case Format::Markdown:
            return ReferenceAsMarkdown();
        case Format::Html:
            return ReferenceAsHtml();
        case Format::Json:
            return ReferenceAsJson();
        case Format::Schema:
            break;
        }
        return ReferenceAsSchema();
    }

    Format m_format = Format::Markdown;
    std::optional<std::string> m_path;
};

} // namespace

std::unique_ptr<Command> MakeReferenceCommand()
{
    return std::make_unique<ReferenceCommand>();
}

} // namespace ov::cli

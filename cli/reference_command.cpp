#include "cli/commands.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/platform.h"
#include "cli/setting_text.h"

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
            return Write(output, reference);
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

    ExitCode Write(Output& output, const std::string& bytes) const
    {
        const auto files = MakeFilePort();
        const Text path = TextFromUtf8(*m_path);
        const FileKind kind = files->Kind(path);
        if (kind == FileKind::Directory || kind == FileKind::Other) {
            output.Problem(*m_path + ": It is no regular file");
            return ExitCode::Failed;
        }
        FileHandle file{};
        FileResult result = files->Create(path, CreateMode::Truncate, file);
        if (result) {
            result = files->Write(file, bytes);
            if (FileResult closing = files->Close(file); result)
                result = std::move(closing);
        }
        if (result)
            return ExitCode::Done;
        output.Problem(*m_path + ": " + Utf8FromText(result.systemText));
        return ExitCode::Failed;
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

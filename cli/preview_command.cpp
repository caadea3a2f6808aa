#include "cli/commands.h"
#include "cli/difference.h"
#include "cli/finding_output.h"
#include "cli/inspection_options.h"
#include "cli/options.h"
#include "cli/output.h"
#include "document/core/unified_diff.h"
#include "inspect/core/save_preview.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace ov::cli
{
namespace
{

class PreviewCommand final : public Command
{
  public:
    void Declare(Options& options) override
    {
        options.Operand("FILE", m_path, "The configuration file; - for the standard input");
        options.Choice("--format", m_format, {"diff", "file", "losses", "json"},
                       "The difference, the saved file, what Save loses, or all three");
        options.Text("--user", "NAME", m_user, "The user in the header, in place of the one in the file");
        options.Text("--computer", "NAME", m_computer, "The computer in the header");
        options.Text("--date", "TEXT", m_date, "The date in the header");
        m_inspection.Declare(options);
    }

    ExitCode Run(Output& output) override
    {
        InputReader reader(m_inspection.Encoding(), output);
        auto settings = m_inspection.Settings(reader);
        auto input = settings ? reader.Read(m_path) : std::nullopt;
        if (!input)
            return ExitCode::Failed;
        settings->rules.Set("OV1", true);
        settings->header.user = AsText(m_user);
        settings->header.computer = AsText(m_computer);
        settings->header.date = AsText(m_date);
        const InspectedFile file(std::move(input->bytes), input->charset);
        switch (m_format) {
        case Format::Diff:
        case Format::File:
            return PrintFile(output, file, *settings);
        case Format::Losses:
            PrintFindings(output, {m_path, Inspector(*settings).Inspect(file)});
            return ExitCode::Done;
        case Format::Json:
            break;
        }
        return PrintJson(output, file, *settings);
    }

  private:
    enum class Format { Diff, File, Losses, Json };

    static std::optional<Text> AsText(const std::optional<std::string>& given)
    {
        return given ? std::optional(TextFromUtf8(*given)) : std::nullopt;
    }

    /// What Save writes. If it would refuse, reports that and returns nothing.
    std::optional<SavePreview> Saved(Output& output, const InspectedFile& file,
                                     const InspectionSettings& settings) const
    {
        SavePreview preview = PreviewSave(file, settings);
        if (preview.result)
            return preview;
        const std::string place =
            preview.result.inHeader ? "the header" : Utf8FromText(preview.result.variable);
        output.Problem(m_path + ": Save would refuse the file: its encoding lacks the character \"" +
                       Utf8FromText(preview.result.character) + "\" in " + place);
        return std::nullopt;
    }

    ExitCode PrintFile(Output& output, const InspectedFile& file, const InspectionSettings& settings) const
    {
        const auto saved = Saved(output, file, settings);
        if (!saved)
            return ExitCode::Found;
        if (m_format == Format::File) {
            output.Print(saved->bytes);
            return ExitCode::Done;
        }
        PrintUnifiedDiff(output, file.Bytes(), saved->bytes, m_path);
        return file.Bytes() == saved->bytes ? ExitCode::Done : ExitCode::Found;
    }

    ExitCode PrintJson(Output& output, const InspectedFile& file, const InspectionSettings& settings) const
    {
        const auto saved = Saved(output, file, settings);
        nlohmann::ordered_json json = {
            {"changed", nullptr}, {"diff", nullptr}, {"file", nullptr}, {"losses", nullptr}};
        if (saved) {
            const LocaleDecoder decoder(saved->charset);
            const auto decoded = [&](std::string_view bytes) {
                Text text;
                decoder.Append(bytes, text);
                return Utf8FromText(text);
            };
            json["changed"] = file.Bytes() != saved->bytes;
            json["diff"] = decoded(UnifiedDiff(file.Bytes(), saved->bytes, m_path, m_path));
            json["file"] = decoded(saved->bytes);
        }
        json["losses"] = FindingsAsJson(Inspector(settings).Inspect(file));
        output.Print(PrintedJson(json));
        return saved ? ExitCode::Done : ExitCode::Found;
    }

    std::string m_path;
    Format m_format = Format::Diff;
    std::optional<std::string> m_user;
    std::optional<std::string> m_computer;
    std::optional<std::string> m_date;
    InspectionOptions m_inspection;
};

} // namespace

std::unique_ptr<Command> MakePreviewCommand()
{
    return std::make_unique<PreviewCommand>();
}

} // namespace ov::cli

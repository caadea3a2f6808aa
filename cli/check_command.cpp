#include "cli/commands.h"
#include "cli/finding_output.h"
#include "cli/inspection_options.h"
#include "cli/options.h"
#include "cli/output.h"

#include <nlohmann/json.hpp>

#include <array>
#include <utility>

namespace ov::cli
{
namespace
{

class CheckCommand final : public Command
{
  public:
    void Declare(Options& options) override
    {
        options.Operands("FILE", m_paths, 1, "The configuration files; - for the standard input");
        options.Choice("--format", m_format, {"text", "json", "sarif"}, "The form of the output");
        options.List("--select", "RULE,..", m_select,
                     "The rules to look at in place of the default ones: ids, beginnings of ids, all");
        options.List("--ignore", "RULE,..", m_ignore, "Rules not to look at");
        options.Choice("--fail-on", m_failOn, {"error", "warning", "note", "never"},
                       "The least severity that makes the exit code 1");
        m_inspection.Declare(options);
    }

    ExitCode Run(Output& output) override
    {
        InputReader reader(m_inspection.Encoding(), output);
        RuleSet rules = SelectedRules();
        auto settings = m_inspection.Settings(reader);
        if (!settings)
            return ExitCode::Failed;
        settings->rules = std::move(rules);
        Inspector inspector(*settings);
        ExitCode code = ExitCode::Done;
        std::vector<FileFindings> files;
        for (const std::string& path : m_paths) {
            auto input = reader.Read(path);
            if (!input) {
                code = ExitCode::Failed;
                continue;
            }
            const InspectedFile file(std::move(input->bytes), input->charset);
            files.push_back({path, inspector.Inspect(file)});
            code = Worse(code, Count(files.back()));
        }
        Print(output, files);
        return code;
    }

  private:
    enum class Format { Text, Json, Sarif };
    enum class FailOn { Error, Warning, Note, Never };

    RuleSet SelectedRules() const
    {
        RuleSet rules;
        if (!m_select.empty())
            rules.Clear();
        for (const std::string& which : m_select)
            Set(rules, which, true);
        for (const std::string& which : m_ignore)
            Set(rules, which, false);
        return rules;
    }

    static void Set(RuleSet& rules, const std::string& which, bool contains)
    {
        if (!rules.Set(which, contains))
            throw Usage("There is no rule '" + which + "'");
    }

    ExitCode Count(const FileFindings& file)
    {
        ExitCode code = ExitCode::Done;
        for (const Finding& finding : file.findings) {
            const auto severity = static_cast<std::size_t>(RuleOf(finding.rule).severity);
            ++m_counts[severity];
            if (m_failOn != FailOn::Never && severity <= static_cast<std::size_t>(m_failOn))
                code = ExitCode::Found;
        }
        return code;
    }

    std::string Counted(Severity severity) const
    {
        const std::size_t count = m_counts[static_cast<std::size_t>(severity)];
        return std::to_string(count) + " " + SeverityName(severity) + (count == 1 ? "" : "s");
    }

    void Print(Output& output, const std::vector<FileFindings>& files) const
    {
        if (m_format == Format::Sarif) {
            output.Print(PrintedJson(FindingsAsSarif(files)));
        } else if (m_format == Format::Json) {
            output.Print(PrintedJson(AsJson(files)));
        } else {
            for (const FileFindings& file : files)
                PrintFindings(output, file);
        }
        output.Summarise(Counted(Severity::Error) + ", " + Counted(Severity::Warning) + ", " +
                         Counted(Severity::Note));
    }

    nlohmann::ordered_json AsJson(const std::vector<FileFindings>& files) const
    {
        auto all = nlohmann::ordered_json::array();
        for (const FileFindings& file : files)
            all.push_back({{"path", file.path}, {"findings", FindingsAsJson(file.findings)}});
        return {{"version", 1},
                {"files", std::move(all)},
                {"summary", {{"errors", m_counts[0]}, {"warnings", m_counts[1]}, {"notes", m_counts[2]}}}};
    }

    std::vector<std::string> m_paths;
    Format m_format = Format::Text;
    std::vector<std::string> m_select;
    std::vector<std::string> m_ignore;
    FailOn m_failOn = FailOn::Warning;
    InspectionOptions m_inspection;
    std::array<std::size_t, 3> m_counts{}; ///< findings by severity
};

} // namespace

std::unique_ptr<Command> MakeCheckCommand()
{
    return std::make_unique<CheckCommand>();
}

} // namespace ov::cli

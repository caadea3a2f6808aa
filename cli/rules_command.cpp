#include "cli/commands.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/rule_text.h"

#include <algorithm>
#include <string>
#include <vector>

namespace ov::cli
{
namespace
{

class RulesCommand final : public Command
{
  public:
    void Declare(Options& options) override
    {
        options.Operands("RULE", m_rules, 0, "Rules by their ids or names; without any, the table of all");
        options.Choice("--format", m_format, {"text", "markdown"}, "The form of the output");
    }

    ExitCode Run(Output& output) override
    {
        if (m_format == Format::Markdown) {
            output.Print(RulesAsMarkdown());
            return ExitCode::Done;
        }
        if (m_rules.empty())
            output.Print(TableOfRules());
        ExitCode code = ExitCode::Done;
        bool isFirst = true;
        for (const std::string& which : m_rules) {
            const auto rules = Rules();
            const auto rule = std::ranges::find_if(
                rules, [&](const Rule& each) { return which == each.id || which == each.name; });
            if (rule == rules.end()) {
                output.Problem("There is no rule " + which);
                code = ExitCode::Found;
                continue;
            }
            if (!isFirst)
                output.Print("\n");
            isFirst = false;
            output.Print(RuleAsText(*rule));
        }
        return code;
    }

  private:
    enum class Format { Text, Markdown };

    std::vector<std::string> m_rules;
    Format m_format = Format::Text;
};

} // namespace

std::unique_ptr<Command> MakeRulesCommand()
{
    return std::make_unique<RulesCommand>();
}

} // namespace ov::cli

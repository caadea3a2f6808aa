#include "cli/commands.h"
#include "cli/options.h"
#include "cli/output.h"
#include "match/core/match_status.h"
#include "match/core/pattern_check.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace ov::cli
{
namespace
{

constexpr std::array<const char*, 6> typeNames = {"NONE", "DOS", "RANGES", "SUBSETS", "PERL", "POSIX"};

class MatchCommand final : public Command
{
  public:
    void Declare(Options& options) override
    {
        options.Operand("TYPE", m_type, "0 to 5, or NONE, DOS, RANGES, SUBSETS, PERL, POSIX");
        options.Operand("TEMPLATE", m_template, "The template");
        options.Operands("TEXT", m_texts, 1, "The texts to match with it");
        options.Flag("--ignore-case", m_ignoreCase, "Compare without regard to case, as the dialog does");
    }

    ExitCode Run(Output& output) override
    {
        const WildcardType type = Type();
        const Text pattern = TextFromUtf8(m_template);
        if (const auto error = CheckPattern(pattern, type)) {
            output.Problem("The template does not compile: " + error->message + " at position " +
                           std::to_string(error->position + 1));
            return ExitCode::Failed;
        }
        ExitCode code = ExitCode::Done;
        for (const std::string& text : m_texts) {
            std::uint32_t match = 0;
            const Text subject = TextFromUtf8(text);
            if (MatchPattern(&match, pattern.c_str(), subject.c_str(), type, m_ignoreCase ? 0 : 1) !=
                kMatchDone) {
                output.Problem(type == WildcardTypePosix
                                   ? "POSIX expressions are not evaluated"
                                   : "'" + text + "' cannot be matched: it takes too long");
                return ExitCode::Failed;
            }
            output.Print(match != 0 ? "yes\n" : "no\n");
            code = Worse(code, match != 0 ? ExitCode::Done : ExitCode::Found);
        }
        return code;
    }

  private:
    WildcardType Type() const
    {
        std::string name = m_type;
        std::ranges::transform(name, name.begin(), [](char c) {
            return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        });
        for (std::size_t code = 0; code < typeNames.size(); ++code) {
            if (name == typeNames[code] || name == std::to_string(code))
                return static_cast<WildcardType>(code);
        }
        throw Usage("TYPE: '" + m_type + "' is none of 0 to 5, NONE, DOS, RANGES, SUBSETS, PERL, POSIX");
    }

    std::string m_type;
    std::string m_template;
    std::vector<std::string> m_texts;
    bool m_ignoreCase = false;
};

} // namespace

std::unique_ptr<Command> MakeMatchCommand()
{
    return std::make_unique<MatchCommand>();
}

} // namespace ov::cli

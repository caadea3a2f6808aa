#include "cli/commands.h"
#include "cli/options.h"
#include "cli/output.h"
#include "inspect/core/reference.h"

#include <algorithm>

namespace ov::cli
{
namespace
{

Text Folded(TextView text)
{
    Text folded(text);
    std::ranges::transform(folded, folded.begin(), ToUpperAscii);
    return folded;
}

class FindCommand final : public Command
{
  public:
    void Declare(Options& options) override
    {
        options.Operands("WORD", m_words, 1,
                         "Words that all occur in a setting's name, caption or help text");
    }

    ExitCode Run(Output& output) override
    {
        std::vector<Text> words;
        for (const std::string& word : m_words)
            words.push_back(Folded(TextFromUtf8(word)));
        ExitCode code = ExitCode::Found;
        for (const SettingDescription& setting : DescribeAll()) {
            const Text all = Folded(setting.variable + u"\n" + setting.caption + u"\n" + setting.heading +
                                    u"\n" + setting.help);
            if (!std::ranges::all_of(words, [&](const Text& word) { return all.find(word) != Text::npos; }))
                continue;
            output.Print(Utf8FromText(setting.variable) + "\t" + Utf8FromText(setting.page) + "\t" +
                         Utf8FromText(setting.caption) + "\n");
            code = ExitCode::Done;
        }
        return code;
    }

  private:
    std::vector<std::string> m_words;
};

} // namespace

std::unique_ptr<Command> MakeFindCommand()
{
    return std::make_unique<FindCommand>();
}

} // namespace ov::cli

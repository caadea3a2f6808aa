#include "cli/commands.h"
#include "cli/edit.h"
#include "cli/options.h"
#include "cli/output.h"
#include "inspect/core/page_facts.h"

#include <algorithm>

namespace ov::cli
{
namespace
{

class UnsetCommand final : public Command
{
  public:
    void Declare(Options& options) override
    {
        m_edit.Declare(options);
        options.Operands("NAME", m_names, 1, "The variables to remove");
    }

    ExitCode Run(Output& output) override
    {
        std::vector<Text> names;
        for (const std::string& name : m_names) {
            const Text text = TextOfArgument(name);
            if (std::ranges::find(names, text) == names.end())
                names.push_back(text);
        }
        return m_edit.Run(output,
                          [&](const EditedFile& file) { return UnsetVariables(file, names, FactsOfPages); });
    }

  private:
    FileEdit m_edit;
    std::vector<std::string> m_names;
};

} // namespace

std::unique_ptr<Command> MakeUnsetCommand()
{
    return std::make_unique<UnsetCommand>();
}

} // namespace ov::cli

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

class SetCommand final : public Command
{
  public:
    void Declare(Options& options) override
    {
        m_edit.Declare(options);
        options.Operands("NAME=VALUE", m_assignments, 1, "The variables and their new values");
    }

    ExitCode Run(Output& output) override
    {
        const std::vector<NewValue> values = Values();
        return m_edit.Run(output,
                          [&](const EditedFile& file) { return SetVariables(file, values, FactsOfPages); });
    }

  private:
    std::vector<NewValue> Values() const
    {
        std::vector<NewValue> values;
        for (const std::string& assignment : m_assignments) {
            const std::size_t equals = assignment.find('=');
            if (equals == 0 || equals == std::string::npos)
                throw Usage("'" + assignment + "' is not of the form NAME=VALUE");
            const NewValue wanted{TextOfArgument(assignment.substr(0, equals)),
                                  TextOfArgument(assignment.substr(equals + 1))};
            const auto same = std::ranges::find(values, wanted.name, &NewValue::name);
            if (same == values.end())
                values.push_back(wanted);
            else if (same->value != wanted.value)
                throw Usage("Two values are given for " + Utf8FromText(wanted.name));
        }
        return values;
    }

    FileEdit m_edit;
    std::vector<std::string> m_assignments;
};

} // namespace

std::unique_ptr<Command> MakeSetCommand()
{
    return std::make_unique<SetCommand>();
}

} // namespace ov::cli

#include "cli/commands.h"
#include "cli/edit.h"
#include "cli/options.h"
#include "cli/output.h"
#include "inspect/core/page_facts.h"

#include <algorithm>
#include <iterator>

namespace ov::cli
{
namespace
{

std::vector<Text> Texts(const std::vector<std::string>& entries)
{
    std::vector<Text> texts;
    std::ranges::transform(entries, std::back_inserter(texts),
                           [](const std::string& entry) { return TextOfArgument(entry); });
    return texts;
}

class ListCommand final : public Command
{
  public:
    void Declare(Options& options) override
    {
        m_edit.Declare(options);
        options.Operand("NAME", m_name, "The variable whose entries change");
        options.Texts("--remove", "ENTRY", m_remove, "Remove an entry");
        options.Texts("--prepend", "ENTRY", m_prepend, "Add an entry at the front");
        options.Texts("--append", "ENTRY", m_append, "Add an entry at the end");
    }

    ExitCode Run(Output& output) override
    {
        if (m_remove.empty() && m_prepend.empty() && m_append.empty())
            output.Remark("Nothing to do without --remove, --prepend and --append.");
        const Text name = TextOfArgument(m_name);
        const ListChange change{Texts(m_remove), Texts(m_prepend), Texts(m_append)};
        return m_edit.Run(
            output, [&](const EditedFile& file) { return ChangeList(file, name, change, FactsOfPages); });
    }

  private:
    FileEdit m_edit;
    std::string m_name;
    std::vector<std::string> m_remove;
    std::vector<std::string> m_prepend;
    std::vector<std::string> m_append;
};

} // namespace

std::unique_ptr<Command> MakeListCommand()
{
    return std::make_unique<ListCommand>();
}

} // namespace ov::cli

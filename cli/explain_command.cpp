#include "cli/commands.h"
#include "cli/input.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/setting_text.h"
#include "config/core/config_reader.h"
#include "inspect/core/inspected_file.h"
#include "pages/core/string_table.h"

#include <algorithm>

namespace ov::cli
{
namespace
{

class ExplainCommand final : public Command
{
  public:
    void Declare(Options& options) override
    {
        options.Operands("NAME", m_names, 1, "The variables");
        options.Text("--file", "FILE", m_path, "A configuration file: its value, lines and comment too");
        m_encoding.Declare(options);
    }

    ExitCode Run(Output& output) override
    {
        std::optional<InspectedFile> file;
        SettingStore store;
        if (m_path) {
            auto input = InputReader(m_encoding, output).Read(*m_path);
            if (!input)
                return ExitCode::Failed;
            ReadConfig(store, kCurrentTable, input->bytes, input->charset);
            file.emplace(std::move(input->bytes), input->charset);
        }
        ExitCode code = ExitCode::Done;
        bool isFirst = true;
        for (const std::string& given : m_names) {
            const Text name = TextFromUtf8(given);
            const SettingPlace* place = FindSetting(name);
            const PageRows* olderPage = PageOfOlderVariable(name);
            if (place == nullptr && olderPage == nullptr) {
                output.Problem("There is no setting " + given + Suggestions(name));
                code = ExitCode::Found;
                continue;
            }
            if (!isFirst)
                output.Print("\n");
            output.Print(place != nullptr ? SettingAsText(Describe(*place)) : OlderText(given, *olderPage));
            isFirst = false;
            if (file)
                output.Print(InFile(name, *file, store));
        }
        return code;
    }

  private:
    static std::string OlderText(const std::string& name, const PageRows& page)
    {
        return name + "\n  Page: " + Utf8FromText(FindString(page.info.titleId)) +
               "\n\nA variable of earlier versions: the page reads it and never writes it.\n";
    }

    static std::string Suggestions(const Text& name)
    {
        if (const auto similar = SimilarVariable(name))
            return "; is it " + Utf8FromText(*similar) + "?";
        constexpr std::size_t kMost = 5;
        Text folded(name);
        std::ranges::transform(folded, folded.begin(), ToUpperAscii);
        std::string found;
        std::size_t count = 0;
        for (const SettingPlace& place : AllSettings()) {
            if (folded.empty() || TextView(place.row->variable).find(folded) == TextView::npos ||
                count++ == kMost)
                continue;
            found += (found.empty() ? "; is it " : ", ") + Utf8FromText(place.row->variable);
        }
        return found.empty() ? found : found + "?";
    }

    std::string InFile(const Text& name, const InspectedFile& file, const SettingStore& store) const
    {
        const InspectedFile::Variable* variable = file.Find(name);
        const auto record = store.FindSetting(TextView(name), kCurrentTable);
        if (variable == nullptr || !record)
            return "\n" + *m_path + ": not there\n";
        std::vector<std::size_t> lines;
        for (const InspectedFile::Line& line : file.Lines()) {
            if (line.variable != InspectedFile::kNone && &file.Variables()[line.variable] == variable)
                lines.push_back(line.number + 1);
        }
        std::string text = "\n" + *m_path + ":\n  Value: " + Utf8FromText(Text(record->value)) +
                           "\n  Lines: " + Ranges(lines) + "\n";
        if (!record->comment.empty())
            text += "  Comment:\n" + Indented(Utf8FromText(Text(record->comment)));
        return text;
    }

    // "1, 2, 7-12": ascending numbers, with three or more in a row as a range.
    static std::string Ranges(const std::vector<std::size_t>& numbers)
    {
        std::string text;
        for (std::size_t first = 0, next = 0; first < numbers.size(); first = next) {
            next = first + 1;
            while (next < numbers.size() && numbers[next] == numbers[next - 1] + 1)
                ++next;
            if (next - first < 3)
                next = first + 1;
            text.append(text.empty() ? "" : ", ").append(std::to_string(numbers[first]));
            if (next - first > 1)
                text.append("-").append(std::to_string(numbers[next - 1]));
        }
        return text;
    }

    static std::string Indented(const std::string& comment)
    {
        std::string text;
        for (std::size_t start = 0; start < comment.size();) {
            const std::size_t end = std::min(comment.find('\n', start), comment.size());
            if (end > start)
                text += "    " + comment.substr(start, end - start) + "\n";
            start = end + 1;
        }
        return text;
    }

    std::vector<std::string> m_names;
    std::optional<std::string> m_path;
    EncodingOption m_encoding;
};

} // namespace

std::unique_ptr<Command> MakeExplainCommand()
{
    return std::make_unique<ExplainCommand>();
}

} // namespace ov::cli

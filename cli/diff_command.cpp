#include "cli/commands.h"
#include "cli/input.h"
#include "cli/options.h"
#include "cli/output.h"
#include "config/core/config_reader.h"
#include "inspect/core/difference.h"
#include "inspect/core/page_facts.h"

#include <nlohmann/json.hpp>

#include <map>

namespace ov::cli
{
namespace
{

using Json = nlohmann::json;

SettingStore StoreOf(const InputFile& file)
{
    SettingStore store;
    ReadConfig(store, kCurrentTable, file.bytes, file.charset);
    return store;
}

// A line of the answer, preceded by a mark for its kind.
void PrintLine(Output& output, std::string_view mark, TextView text, Colour colour)
{
    output.Print(std::string(mark) + Utf8FromText(text), colour);
    output.Print("\n");
}

void PrintChanged(Output& output, const ChangedVariable& changed)
{
    PrintLine(output, "~ ", changed.name, Colour::Heading);
    const std::vector<Text> before = changed.isList ? changed.removed : std::vector<Text>{changed.before};
    const std::vector<Text> after = changed.isList ? changed.added : std::vector<Text>{changed.after};
    for (const Text& value : before)
        PrintLine(output, "    - ", value, Colour::Removed);
    for (const Text& value : after)
        PrintLine(output, "    + ", value, Colour::Added);
}

class DiffCommand final : public Command
{
  public:
    void Declare(Options& options) override
    {
        options.Operand("OLD", m_old, "A configuration file; - for the standard input");
        options.Operand("NEW", m_new, "The file to compare it with");
        options.Choice("--format", m_format, {"text", "json"}, "The form of the output");
        m_encoding.Declare(options);
    }

    ExitCode Run(Output& output) override
    {
        InputReader reader(m_encoding, output);
        const auto before = reader.Read(m_old);
        const auto after = reader.Read(m_new);
        if (!before || !after)
            return ExitCode::Failed;
        const VariableDifference difference =
            CompareVariables(StoreOf(*before), StoreOf(*after), FactsOfPages);
        if (m_format == Format::AsJson)
            PrintJson(difference, output);
        else
            PrintText(difference, output);
        return difference.IsNone() ? ExitCode::Done : ExitCode::Found;
    }

  private:
    enum class Format { AsText, AsJson };

    // In name order, across all kinds of differences.
    static void PrintText(const VariableDifference& difference, Output& output)
    {
        std::multimap<Text, std::function<void()>> lines;
        for (const OnlyVariable& only : difference.added)
            lines.emplace(only.name,
                          [&] { PrintLine(output, "+ ", only.name + u'=' + only.value, Colour::Added); });
        for (const OnlyVariable& only : difference.removed)
            lines.emplace(only.name,
                          [&] { PrintLine(output, "- ", only.name + u'=' + only.value, Colour::Removed); });
        for (const ChangedVariable& changed : difference.changed)
            lines.emplace(changed.name, [&] { PrintChanged(output, changed); });
        for (const ChangedComment& comment : difference.comments)
            lines.emplace(comment.name, [&] { PrintLine(output, "# ", comment.name, Colour::Heading); });
        for (const auto& [name, print] : lines)
            print();
    }

    static Json Texts(const std::vector<Text>& texts)
    {
        Json json = Json::array();
        for (const Text& text : texts)
            json.push_back(Utf8FromText(text));
        return json;
    }

    static void PrintJson(const VariableDifference& difference, Output& output)
    {
        Json json{{"added", Json::object()},
                  {"removed", Json::object()},
                  {"changed", Json::object()},
                  {"comments", Json::object()}};
        for (const OnlyVariable& only : difference.added)
            json["added"][Utf8FromText(only.name)] = Utf8FromText(only.value);
        for (const OnlyVariable& only : difference.removed)
            json["removed"][Utf8FromText(only.name)] = Utf8FromText(only.value);
        for (const ChangedVariable& changed : difference.changed) {
            Json entries = nullptr;
            if (changed.isList)
                entries = {{"removed", Texts(changed.removed)}, {"added", Texts(changed.added)}};
            json["changed"][Utf8FromText(changed.name)] = {{"before", Utf8FromText(changed.before)},
                                                           {"after", Utf8FromText(changed.after)},
                                                           {"entries", entries}};
        }
        for (const ChangedComment& comment : difference.comments)
            json["comments"][Utf8FromText(comment.name)] = {{"before", Utf8FromText(comment.before)},
                                                            {"after", Utf8FromText(comment.after)}};
        output.Print(json.dump(2) + "\n");
    }

    std::string m_old;
    std::string m_new;
    Format m_format = Format::AsText;
    EncodingOption m_encoding;
};

} // namespace

std::unique_ptr<Command> MakeDiffCommand()
{
    return std::make_unique<DiffCommand>();
}

} // namespace ov::cli

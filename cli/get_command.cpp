#include "cli/command.h"
#include "cli/commands.h"
#include "cli/input.h"
#include "cli/options.h"
#include "cli/output.h"
#include "config/core/config_reader.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace ov::cli
{
namespace
{

using Values = std::vector<std::pair<std::string, std::string>>;

class GetCommand final : public Command
{
  public:
    void Declare(Options& options) override
    {
        options.Operand("FILE", m_path, "The configuration file; - for the standard input");
        options.Operands("NAME", m_names, 0, "The variables; without any, all in name order as NAME=VALUE");
        options.Choice("--format", m_format, {"text", "json"}, "The form of the output");
        m_encoding.Declare(options);
    }

    ExitCode Run(Output& output) override
    {
        const auto file = InputReader(m_encoding, output).Read(m_path);
        if (!file)
            return ExitCode::Failed;
        SettingStore store;
        ReadConfig(store, kCurrentTable, file->bytes, file->charset);
        ExitCode code = ExitCode::Done;
        const Values values = m_names.empty() ? AllValues(store) : NamedValues(store, output, code);
        if (m_format == Format::AsJson)
            PrintJson(values, output);
        else
            PrintText(values, output);
        return code;
    }

  private:
    enum class Format { AsText, AsJson };

    static Values AllValues(const SettingStore& store)
    {
        Values values;
        store.VisitInOrder(kCurrentTable, [&values](const SettingRecord& record) {
            values.emplace_back(Utf8FromText(Text(record.name)), Utf8FromText(Text(record.value)));
            return true;
        });
        return values;
    }

    Values NamedValues(const SettingStore& store, Output& output, ExitCode& code) const
    {
        Values values;
        for (const std::string& name : m_names) {
            const Text key = TextFromUtf8(name);
            if (store.HasSetting(key, kCurrentTable)) {
                values.emplace_back(name, Utf8FromText(store.GetSettingValue(key, kCurrentTable)));
            } else {
                output.Problem(m_path + ": There is no variable " + name);
                code = ExitCode::Found;
            }
        }
        return values;
    }

    void PrintText(const Values& values, Output& output) const
    {
        for (const auto& [name, value] : values) {
            if (m_names.empty())
                output.Print(name + "=");
            output.Print(value + "\n");
        }
    }

    static void PrintJson(const Values& values, Output& output)
    {
        auto json = nlohmann::json::object();
        for (const auto& [name, value] : values)
            json[name] = value;
        output.Print(json.dump(2) + "\n");
    }

    std::string m_path;
    std::vector<std::string> m_names;
    Format m_format = Format::AsText;
    EncodingOption m_encoding;
};

} // namespace

std::unique_ptr<Command> MakeGetCommand()
{
    return std::make_unique<GetCommand>();
}

} // namespace ov::cli

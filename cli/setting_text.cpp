#include "cli/setting_text.h"

#include "cli/rule_text.h"

#include <charconv>

namespace ov::cli
{
namespace
{

std::string Quoted(char16_t character)
{
    return Utf8FromText(Text(u"\"") + character + u'"');
}

std::string KindText(const SettingDescription& setting)
{
    std::string kind(setting.kind);
    if (!setting.isList)
        return kind;
    kind = "list, entries separated by " + Quoted(setting.list.separator);
    if (setting.list.fieldCount > 1)
        kind += ", " + std::to_string(setting.list.fieldCount) + " fields separated by " +
                Quoted(setting.list.fieldSeparator);
    return kind;
}

std::string Conditions(const SettingDescription& setting)
{
    std::string text;
    for (const Text& condition : setting.enabledBy)
        text += (text.empty() ? "" : " and ") + Utf8FromText(condition);
    return text;
}

/// The lines of the help text in UTF-8, tabs included.
std::vector<std::string> HelpLines(const SettingDescription& setting)
{
    std::vector<std::string> lines(1);
    for (const char c : Utf8FromText(setting.help)) {
        if (c == '\n')
            lines.emplace_back();
        else if (c != '\r')
            lines.back() += c;
    }
    return lines;
}

/// A line of an example: the tabs in front are what sets it in, any other is a column.
std::string ExampleLine(const std::string& line)
{
    std::string text;
    for (const char c : line.substr(line.find_first_not_of('\t')))
        text += c == '\t' ? "  " : std::string(1, c);
    return text;
}

} // namespace

std::vector<HelpBlock> HelpBlocks(const SettingDescription& setting)
{
    std::vector<HelpBlock> blocks;
    bool isNew = true;
    for (const std::string& line : HelpLines(setting)) {
        if (line.find_first_not_of('\t') == std::string::npos) {
            isNew = true;
            continue;
        }
        const bool isExample = line.front() == '\t';
        if (isNew || blocks.back().isExample != isExample)
            blocks.push_back({isExample, {}});
        blocks.back().lines.push_back(isExample ? ExampleLine(line) : line);
        isNew = false;
    }
    return blocks;
}

std::string NumberText(double number)
{
    char digits[32];
    const auto result = std::to_chars(digits, digits + sizeof digits, number);
    return {digits, result.ptr};
}

std::string AllowedValues(const SettingDescription& setting)
{
    if (setting.kind == "flag")
        return "0 = off, 1 = on";
    std::string text;
    for (const Choice& choice : setting.choices) {
        text += (text.empty() ? "" : ", ") +
                (choice.value.empty() ? std::string("empty") : Utf8FromText(choice.value)) + " = " +
                Utf8FromText(choice.caption);
    }
    if (!text.empty() && setting.kind != "choice")
        text += ", or any text";
    if (setting.range && setting.choices.empty())
        text = NumberText(setting.range->lowest) + " to " + NumberText(setting.range->highest);
    else if (setting.range && setting.range->lowest < 0)
        text += "; negative when the user may not change it";
    return text;
}

std::vector<std::pair<std::string, std::string>> SettingFacts(const SettingDescription& setting)
{
    std::vector<std::pair<std::string, std::string>> facts;
    const auto add = [&](const char* name, const std::string& text) {
        if (!text.empty())
            facts.emplace_back(name, text);
    };
    add("Caption", Utf8FromText(setting.caption));
    add("Kind", KindText(setting));
    add("Values", AllowedValues(setting));
    if (setting.initial)
        add("Before the first load", setting.initial->empty() ? "empty" : Utf8FromText(*setting.initial));
    add("Enabled when", Conditions(setting));
    if (!setting.isWritten)
        add("Written", "never: the dialog only shows it");
    return facts;
}

std::string SettingAsText(const SettingDescription& setting)
{
    std::string text = Utf8FromText(setting.variable) + "\n  Page: " + Utf8FromText(setting.page) + "\n";
    for (const auto& [name, fact] : SettingFacts(setting))
        text.append("  ").append(name).append(": ").append(fact).append("\n");
    for (const HelpBlock& block : HelpBlocks(setting)) {
        text += "\n";
        for (const std::string& line : block.lines)
            text += block.isExample ? "    " + line + "\n" : Wrapped(line, kTerminalWidth);
    }
    return text;
}

} // namespace ov::cli

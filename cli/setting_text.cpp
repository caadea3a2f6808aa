#include "cli/setting_text.h"

#include "cli/finding_output.h"
#include "cli/rule_text.h"

#include <nlohmann/json.hpp>

#include <charconv>
#include <functional>
#include <string_view>

namespace ov::cli
{
namespace
{

using Json = nlohmann::ordered_json;

std::string Number(double number)
{
    char digits[32];
    const auto result = std::to_chars(digits, digits + sizeof digits, number);
    return {digits, result.ptr};
}

/// The help text's lines, without the tabs that indent examples.
std::vector<std::string> HelpLines(const SettingDescription& setting)
{
    std::vector<std::string> lines(1);
    for (const char c : Utf8FromText(setting.help)) {
        if (c == '\n')
            lines.emplace_back();
        else if (c == '\t')
            lines.back() += "    ";
        else if (c != '\r')
            lines.back() += c;
    }
    return lines;
}

std::string KindText(const SettingDescription& setting)
{
    std::string kind(setting.kind);
    if (setting.isList)
        kind = "list between \"" + Utf8FromText(Text(1, setting.separator)) + "\"" +
               (setting.kind == "list" ? "" : " (" + kind + ")");
    return kind;
}

std::string Conditions(const SettingDescription& setting)
{
    std::string text;
    for (const Text& condition : setting.enabledBy)
        text += (text.empty() ? "" : " and ") + Utf8FromText(condition);
    return text;
}

std::string Escaped(std::string_view text, const std::function<const char*(char)>& replacement)
{
    std::string escaped;
    for (const char c : text) {
        if (const char* other = replacement(c))
            escaped += other;
        else
            escaped += c;
    }
    return escaped;
}

std::string ForMarkdown(std::string_view text)
{
    return Escaped(text, [](char c) -> const char* {
        switch (c) {
        case '<':
            return "&lt;";
        case '|':
            return "\\|";
        case '*':
            return "\\*";
        case '[':
            return "\\[";
        default:
            return nullptr;
        }
    });
}

std::string ForHtml(std::string_view text)
{
    return Escaped(text, [](char c) -> const char* {
        switch (c) {
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '&':
            return "&amp;";
        case '"':
            return "&quot;";
        default:
            return nullptr;
        }
    });
}

/// The facts about a setting as pairs of a label and a text, without those that do not apply.
std::vector<std::pair<std::string, std::string>> Facts(const SettingDescription& setting)
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

Json AsJson(const SettingDescription& setting)
{
    Json json = {{"variable", Utf8FromText(setting.variable)},
                 {"page", Utf8FromText(setting.page)},
                 {"caption", nullptr},
                 {"kind", setting.kind},
                 {"separator", nullptr},
                 {"fieldSeparator", nullptr},
                 {"fields", nullptr},
                 {"values", nullptr},
                 {"minimum", nullptr},
                 {"maximum", nullptr},
                 {"initial", nullptr},
                 {"enabledWhen", nullptr},
                 {"written", setting.isWritten},
                 {"heading", Utf8FromText(setting.heading)},
                 {"help", Utf8FromText(setting.help)}};
    if (!setting.caption.empty())
        json["caption"] = Utf8FromText(setting.caption);
    if (setting.isList) {
        json["separator"] = Utf8FromText(Text(1, setting.separator));
        json["fields"] = setting.fieldCount;
        if (setting.fieldSeparator != u'\0')
            json["fieldSeparator"] = Utf8FromText(Text(1, setting.fieldSeparator));
    }
    if (setting.kind == "flag")
        json["values"] = {{{"value", "0"}, {"meaning", "off"}}, {{"value", "1"}, {"meaning", "on"}}};
    for (const Choice& choice : setting.choices)
        json["values"].push_back(
            {{"value", Utf8FromText(choice.value)}, {"meaning", Utf8FromText(choice.caption)}});
    if (setting.range) {
        json["minimum"] = setting.range->lowest;
        json["maximum"] = setting.range->highest;
    }
    if (setting.initial)
        json["initial"] = Utf8FromText(*setting.initial);
    for (const Text& condition : setting.enabledBy)
        json["enabledWhen"].push_back(Utf8FromText(condition));
    return json;
}

} // namespace

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
        text = Number(setting.range->lowest) + " to " + Number(setting.range->highest);
    else if (setting.range && setting.range->lowest < 0)
        text += "; negative when the user may not change it";
    return text;
}

std::string SettingAsText(const SettingDescription& setting)
{
    constexpr std::size_t kWidth = 80;
    std::string text = Utf8FromText(setting.variable) + "\n  Page: " + Utf8FromText(setting.page) + "\n";
    for (const auto& [name, fact] : Facts(setting))
        text += "  " + name + ": " + fact + "\n";
    text += "\n";
    for (const std::string& line : HelpLines(setting))
        text += line.starts_with(' ') ? line + "\n" : Wrapped(line, kWidth);
    return text;
}

std::string ReferenceAsMarkdown()
{
    std::string text = "# Settings\n\n"
                       "Made by `scripts/make-docs` from the pages' rows and texts; do not edit.\n\n"
                       "Every setting of every page, in the order of the category list.\n";
    Text page;
    for (const SettingDescription& setting : DescribeAll()) {
        if (setting.page != page)
            text += "\n## " + Utf8FromText(setting.page) + "\n";
        page = setting.page;
        text += "\n### `" + Utf8FromText(setting.variable) + "`\n\n";
        for (const auto& [name, fact] : Facts(setting))
            text += "- " + name + ": " + ForMarkdown(fact) + "\n";
        text += "\n";
        for (const std::string& line : HelpLines(setting)) {
            const bool isExample = line.starts_with("    ");
            text += isExample ? "\n" + line + "\n" : Wrapped(ForMarkdown(line), 110);
        }
    }
    return text;
}

std::string ReferenceAsHtml()
{
    std::string text = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                       "<title>Settings of Orthoval Preferences</title>\n</head>\n<body>\n"
                       "<h1>Settings of Orthoval Preferences</h1>\n";
    Text page;
    for (const SettingDescription& setting : DescribeAll()) {
        if (setting.page != page)
            text += "<h2>" + ForHtml(Utf8FromText(setting.page)) + "</h2>\n";
        page = setting.page;
        const std::string name = ForHtml(Utf8FromText(setting.variable));
        text += "<h3 id=\"" + name + "\"><code>" + name + "</code></h3>\n<dl>\n";
        for (const auto& [word, fact] : Facts(setting))
            text += "<dt>" + word + "</dt><dd>" + ForHtml(fact) + "</dd>\n";
        text += "</dl>\n<p>";
        bool isFirst = true;
        for (const std::string& line : HelpLines(setting)) {
            text += (isFirst ? "" : "<br>\n") + ForHtml(line);
            isFirst = false;
        }
        text += "</p>\n";
    }
    return text + "</body>\n</html>\n";
}

std::string ReferenceAsJson()
{
    Json settings = Json::array();
    for (const SettingDescription& setting : DescribeAll())
        settings.push_back(AsJson(setting));
    Json older = Json::array();
    for (const OlderVariable& variable : OlderVariables())
        older.push_back(
            {{"variable", Utf8FromText(variable.variable)}, {"page", Utf8FromText(variable.page)}});
    return PrintedJson(
        {{"version", 1}, {"settings", std::move(settings)}, {"olderVariables", std::move(older)}});
}

std::string ReferenceAsSchema()
{
    Json properties = Json::object();
    for (const SettingDescription& setting : DescribeAll()) {
        Json property = {{"type", "string"},
                         {"title", Utf8FromText(setting.heading)},
                         {"description", Utf8FromText(setting.help)}};
        if (setting.kind == "flag")
            property["enum"] = {"0", "1", ""};
        if (setting.kind == "choice" && !setting.range) {
            property["enum"] = Json::array({""});
            for (const Choice& choice : setting.choices)
                property["enum"].push_back(Utf8FromText(choice.value));
        }
        if (setting.kind == "number")
            property["pattern"] = "^([+-]?[0-9]*[.]?[0-9]+)?$";
        properties[Utf8FromText(setting.variable)] = std::move(property);
    }
    return PrintedJson({{"$schema", "https://json-schema.org/draft/2020-12/schema"},
                        {"title", "A configuration file as ovprefs get prints it"},
                        {"type", "object"},
                        {"properties", std::move(properties)},
                        {"additionalProperties", {{"type", "string"}}}});
}

} // namespace ov::cli

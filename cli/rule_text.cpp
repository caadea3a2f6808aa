#include "cli/rule_text.h"

#include <algorithm>
#include <string_view>

namespace ov::cli
{
namespace
{

constexpr std::size_t kWidth = 80;
constexpr std::size_t kSeverityWidth = 8;
constexpr std::size_t kNameWidth = 20;

std::string Padded(std::string text, std::size_t width)
{
    text.resize(std::max(text.size() + 1, width), ' ');
    return text;
}

std::string Indented(std::string_view text)
{
    std::string indented;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        indented += "    " + std::string(text.substr(start, end - start)) + "\n";
        start = end + 1;
    }
    return indented;
}

std::string Examples(const Rule& rule)
{
    std::string text = Indented(rule.example);
    if (*rule.exampleDefaults != '\0')
        text += "\nwith this defaults file:\n\n" + Indented(rule.exampleDefaults);
    return text;
}

} // namespace

std::string Wrapped(const std::string& text, std::size_t width)
{
    std::string wrapped;
    std::size_t lineStart = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(' ', start), text.size());
        const std::string_view word = std::string_view(text).substr(start, end - start);
        if (wrapped.size() > lineStart && wrapped.size() - lineStart + 1 + word.size() > width) {
            wrapped += '\n';
            lineStart = wrapped.size();
        } else if (wrapped.size() > lineStart) {
            wrapped += ' ';
        }
        wrapped += word;
        start = end + 1;
    }
    return wrapped + "\n";
}

std::string TableOfRules()
{
    std::string table;
    for (const Rule& rule : Rules()) {
        table += std::string(rule.id) + "  " + Padded(SeverityName(rule.severity), kSeverityWidth) +
                 Padded(rule.name, kNameWidth) + rule.summary + (rule.byDefault ? "" : " (off)") + "\n";
    }
    return table;
}

std::string RuleAsText(const Rule& rule)
{
    return std::string(rule.id) + " " + rule.name + " (" + SeverityName(rule.severity) +
           (rule.byDefault ? "" : ", off unless selected") + ")\n\n" + Wrapped(rule.explanation, kWidth) +
           "\nMessage: " + rule.message + "\n\nExample:\n\n" + Examples(rule);
}

std::string RulesAsMarkdown()
{
    std::string text =
        "# Rules of `ovprefs check`\n\n"
        "Made by `scripts/make-docs` from the table in `inspect/core/rules.cpp`; do not edit.\n\n"
        "Ids and names never change. In the examples `{E9}` stands for the byte of that "
        "hexadecimal number.\n\n| id | name | severity | fires on |\n|---|---|---|---|\n";
    for (const Rule& rule : Rules()) {
        text += std::string("| [") + rule.id + "](#" + rule.name + ") | " + rule.name + " | " +
                SeverityName(rule.severity) + (rule.byDefault ? "" : ", off unless selected") + " | " +
                rule.summary + " |\n";
    }
    for (const Rule& rule : Rules()) {
        text += std::string("\n## <a id=\"") + rule.name + "\"></a>" + rule.id + " " + rule.name + "\n\n" +
                Wrapped(rule.explanation, kWidth) + "\nMessage: \"" + rule.message + "\"\n\n" +
                Examples(rule);
    }
    return text;
}

} // namespace ov::cli

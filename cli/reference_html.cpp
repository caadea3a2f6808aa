#include "cli/reference_output.h"
#include "cli/setting_text.h"

#include <string_view>

namespace ov::cli
{
namespace
{

constexpr std::string_view kHead = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Settings of Orthoval Preferences</title>
<style>
body { font: 16px/1.5 system-ui, sans-serif; max-width: 50rem; margin: 0 auto; padding: 1rem; }
h2 { border-bottom: 1px solid #888; margin-top: 3rem; }
h3 { margin-top: 2rem; overflow-wrap: anywhere; }
dl { display: grid; grid-template-columns: max-content auto; gap: 0 1rem; }
dt { font-weight: bold; }
dd { margin: 0; overflow-wrap: anywhere; }
pre { overflow-x: auto; background: #eee; color: #000; padding: .5rem; }
nav ul { columns: 16rem; }
</style>
</head>
<body>
<h1>Settings of Orthoval Preferences</h1>
)";

std::string Escaped(std::string_view text)
{
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '&':
            escaped += "&amp;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

std::string Escaped(const Text& text)
{
    return Escaped(Utf8FromText(text));
}

/// The title of a page as the fragment of an address.
std::string FragmentOf(const Text& page)
{
    std::string fragment;
    for (const char c : Utf8FromText(page))
        fragment += c == ' ' ? '-' : c;
    return Escaped(fragment);
}

std::string PageList(const std::vector<SettingDescription>& settings)
{
    std::string list = "<nav>\n<ul>\n";
    Text page;
    for (const SettingDescription& setting : settings) {
        if (setting.page != page)
            list +=
                "<li><a href=\"#" + FragmentOf(setting.page) + "\">" + Escaped(setting.page) + "</a></li>\n";
        page = setting.page;
    }
    return list + "</ul>\n</nav>\n";
}

std::string SectionAsHtml(const SettingDescription& setting)
{
    const std::string name = Escaped(setting.variable);
    std::string text = "<h3 id=\"" + name + "\"><code>" + name + "</code></h3>\n<dl>\n";
    for (const auto& [word, fact] : SettingFacts(setting))
        text += "<dt>" + word + "</dt><dd>" + Escaped(fact) + "</dd>\n";
    text += "</dl>\n";
    for (const HelpBlock& block : HelpBlocks(setting)) {
        text += block.isExample ? "<pre>" : "<p>";
        bool isFirst = true;
        for (const std::string& line : block.lines) {
            text.append(isFirst ? "" : "\n").append(Escaped(line));
            isFirst = false;
        }
        text += block.isExample ? "</pre>\n" : "</p>\n";
    }
    return text;
}

} // namespace

std::string ReferenceAsHtml()
{
    const std::vector<SettingDescription> settings = DescribeAll();
    std::string text(kHead);
    text += PageList(settings);
    Text page;
    for (const SettingDescription& setting : settings) {
        if (setting.page != page)
            text += "<h2 id=\"" + FragmentOf(setting.page) + "\">" + Escaped(setting.page) + "</h2>\n";
        page = setting.page;
        text += SectionAsHtml(setting);
    }
    return text + "</body>\n</html>\n";
}

} // namespace ov::cli

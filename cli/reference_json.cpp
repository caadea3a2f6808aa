#include "cli/finding_output.h"
#include "cli/reference_output.h"
#include "cli/setting_text.h"

#include <nlohmann/json.hpp>

namespace ov::cli
{
namespace
{

using Json = nlohmann::ordered_json;

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
        json["separator"] = Utf8FromText(Text(1, setting.list.separator));
        json["fields"] = setting.list.fieldCount;
        if (setting.list.fieldCount > 1)
            json["fieldSeparator"] = Utf8FromText(Text(1, setting.list.fieldSeparator));
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

/// The texts that a setting with choices may be; an empty one selects nothing.
Json Choices(const SettingDescription& setting)
{
    Json values = Json::array({""});
    for (const Choice& choice : setting.choices) {
        values.push_back(Utf8FromText(choice.value));
        if (setting.range && setting.range->lowest < 0)
            values.push_back(Utf8FromText(u'-' + choice.value));
    }
    return values;
}

Json SchemaOf(const SettingDescription& setting)
{
    Json property = {{"type", "string"},
                     {"title", Utf8FromText(setting.heading)},
                     {"description", Utf8FromText(setting.help)}};
    if (setting.kind == "flag")
        property["enum"] = {"", "0", "1"};
    else if (setting.kind == "choice")
        property["enum"] = Choices(setting);
    else if (setting.kind == "number")
        property["pattern"] = "^([+-]?[0-9]*[.]?[0-9]+)?$";
    return property;
}

} // namespace

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
    for (const SettingDescription& setting : DescribeAll())
        properties[Utf8FromText(setting.variable)] = SchemaOf(setting);
    return PrintedJson({{"$schema", "https://json-schema.org/draft/2020-12/schema"},
                        {"title", "A configuration file as ovprefs get prints it"},
                        {"type", "object"},
                        {"properties", std::move(properties)},
                        {"additionalProperties", {{"type", "string"}}}});
}

} // namespace ov::cli

#include "cli/finding_output.h"

#include "cli/output.h"
#include "cli/platform.h"
#include "version/version.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <string_view>

namespace ov::cli
{
namespace
{

using Json = nlohmann::ordered_json;

Colour ColourOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return Colour::Error;
    case Severity::Warning:
        return Colour::Warning;
    case Severity::Note:
        break;
    }
    return Colour::Note;
}

Json OrNull(const std::optional<Text>& text)
{
    return text ? Json(Utf8FromText(*text)) : Json(nullptr);
}

Json AsJson(const Finding& finding)
{
    const Rule& rule = RuleOf(finding.rule);
    Json json = {{"rule", rule.id},
                 {"severity", SeverityName(rule.severity)},
                 {"line", finding.line},
                 {"column", finding.column},
                 {"variable", OrNull(finding.variable)},
                 {"message", finding.message},
                 {"before", OrNull(finding.before)},
                 {"after", OrNull(finding.after)}};
    if (!finding.added.empty()) {
        Json added = Json::object();
        for (const auto& [name, value] : finding.added)
            added[Utf8FromText(name)] = Utf8FromText(value);
        json["after"] = std::move(added);
    }
    return json;
}

/// "DirectiveLost" for "directive-lost": names of SARIF are written so.
std::string PascalCase(std::string_view name)
{
    std::string result;
    bool isFirst = true;
    for (const char c : name) {
        if (c != '-')
            result += isFirst ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
        isFirst = c == '-';
    }
    return result;
}

Json SarifRule(const Rule& rule)
{
    return {{"id", rule.id},
            {"name", PascalCase(rule.name)},
            {"shortDescription", {{"text", std::string(rule.summary) + "."}}},
            {"fullDescription", {{"text", rule.explanation}}},
            {"help", {{"text", rule.explanation}}},
            {"defaultConfiguration", {{"enabled", rule.byDefault}, {"level", SeverityName(rule.severity)}}}};
}

/// A path as a relative reference or a file URI.
std::string UriOf(std::string_view path)
{
    constexpr std::string_view kPlain = "-._~/";
    std::string uri;
    const bool hasDrive = kBackslashDivides && path.size() > 2 && path[1] == ':' &&
                          std::isalpha(static_cast<unsigned char>(path[0])) != 0;
    if (path.starts_with('/') || hasDrive)
        uri = hasDrive ? "file:///" : "file://";
    else if (kBackslashDivides && path.starts_with("\\\\"))
        uri = "file:";
    for (std::size_t i = 0; i < path.size(); ++i) {
        const auto byte = static_cast<unsigned char>(path[i]);
        if (hasDrive && i == 1) {
            uri += ':';
        } else if (kBackslashDivides && byte == '\\') {
            uri += '/';
        } else if (std::isalnum(byte) != 0 || kPlain.find(path[i]) != std::string_view::npos) {
            uri += path[i];
        } else {
            constexpr char digits[] = "0123456789ABCDEF";
            uri += '%';
            uri += digits[byte >> 4];
            uri += digits[byte & 15];
        }
    }
    return uri;
}

Json SarifResult(const std::string& path, const Finding& finding)
{
    const Rule& rule = RuleOf(finding.rule);
    const Json region = {{"startLine", finding.line}, {"startColumn", finding.column}};
    const Json place = {{"artifactLocation", {{"uri", UriOf(path)}}}, {"region", region}};
    return {{"ruleId", rule.id},
            {"ruleIndex", static_cast<std::size_t>(rule.rule)},
            {"level", SeverityName(rule.severity)},
            {"message", {{"text", finding.message}}},
            {"locations", Json::array({{{"physicalLocation", place}}})}};
}

} // namespace

void PrintFindings(Output& output, const FileFindings& file)
{
    for (const Finding& finding : file.findings) {
        const Rule& rule = RuleOf(finding.rule);
        output.Print(file.path + ":" + std::to_string(finding.line) + ":" + std::to_string(finding.column) +
                     ": ");
        output.Print(SeverityName(rule.severity), ColourOf(rule.severity));
        output.Print(": " + finding.message + " [" + rule.id + "]\n");
    }
}

nlohmann::ordered_json FindingsAsJson(const std::vector<Finding>& findings)
{
    Json json = Json::array();
    for (const Finding& finding : findings)
        json.push_back(AsJson(finding));
    return json;
}

nlohmann::ordered_json FindingsAsSarif(const std::vector<FileFindings>& files)
{
    Json rules = Json::array();
    for (const Rule& rule : Rules())
        rules.push_back(SarifRule(rule));
    Json results = Json::array();
    for (const FileFindings& file : files) {
        for (const Finding& finding : file.findings)
            results.push_back(SarifResult(file.path, finding));
    }
    const Json driver = {{"name", "ovprefs"}, {"version", Version()}, {"rules", std::move(rules)}};
    const Json run = {
        {"tool", {{"driver", driver}}}, {"columnKind", "unicodeCodePoints"}, {"results", std::move(results)}};
    return {{"$schema", "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/"
                        "sarif-schema-2.1.0.json"},
            {"version", "2.1.0"},
            {"runs", Json::array({run})}};
}

std::string PrintedJson(const nlohmann::ordered_json& json)
{
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace ov::cli

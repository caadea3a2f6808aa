#include "tests/ui/expected_file.h"

#include "resources/ids.h"
#include "tests/data/saved_header.h"
#include "tests/ui/built_pages.h"

#include <windows.h>
#include <regex>
#include <sstream>

namespace
{

struct HelpText {
    unsigned id;
    const char* text;
};

#define OV_STRING(id, text) {id, text},
constexpr HelpText helpTexts[] = {
#include "resources/strings.inc"
};
#undef OV_STRING

std::string ComputerName()
{
    wchar_t name[256] = {};
    DWORD size = 256;
    GetComputerNameW(name, &size);
    std::string bytes;
    for (const wchar_t* character = name; *character; ++character)
        bytes += static_cast<char>(*character);
    return bytes;
}

std::string WithCrLf(const std::string& text)
{
    return std::regex_replace(text, std::regex("\n"), "\r\n");
}

// A line of more than 100 characters is broken at the last blank before the limit,
// including one directly after the hundredth character. A longer word is not broken.
std::string Wrap(std::string text)
{
    constexpr std::size_t width = 100;
    std::size_t column = 0;
    std::size_t blank = 0; // 0: none; a blank at the very beginning is not replaced
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] == '\n') {
            column = 0;
            continue;
        }
        if (text[index] == ' ')
            blank = index;
        if (column >= width && blank > 0) {
            text[blank] = '\n';
            column = index - blank;
            blank = 0;
        } else {
            ++column;
        }
    }
    return text;
}

} // namespace

const std::vector<PageSetting>& BrandingSettings()
{
    using enum PageSetting::Kind;
    static const std::vector<PageSetting> settings = {
        {"_ORTHOVAL_BRANDING_AUTO", 9512, 2059, Flag},
        {"_ORTHOVAL_BRANDING_OVERRIDE", 9513, 2060, Flag},
        {"_ORTHOVAL_BRANDING_CERTIFY", 9514, 2061, Flag},
        {"_ORTHOVAL_BRANDING_DISABLE_AUTOLOAD", 9515, 2062, Flag},
        {"_ORTHOVAL_BRANDING_RENAME_TABLES", 11001, 2063, Text},
    };
    return settings;
}

const std::vector<PageSetting>& ConformingSettings()
{
    using enum PageSetting::Kind;
    static const std::vector<PageSetting> settings = {
        {"_ORTHOVAL_CHECK_CELLS", 2000, 8000, Flag},
        {"_ORTHOVAL_CHECK_TEXT", 2001, 8001, Flag},
        {"_ORTHOVAL_CHECK_TAGS", 2002, 8002, Flag},
        {"_ORTHOVAL_CHECK_RGB_COLOUR_MATCH", 11072, 2069, Flag},
        {"_ORTHOVAL_CHECK_COMPLEXCOMPONENTS", 2013, 8008, Flag},
        {"_ORTHOVAL_CHECK_3D_OBJECTS", 2014, 8020, Flag},
        {"_ORTHOVAL_CHECK_MULTILINE_DIMS", 2017, 8010, Flag},
        {"_ORTHOVAL_CHECK_PATTERNS", 2015, 8004, Flag},
        {"_ORTHOVAL_CHECK_HIDDEN_CELLS", 2016, 2011, Flag},
        {"_ORTHOVAL_ALLOW_NEGATIVE_TEXTSIZE", 2018, 8023, Flag},
        {"_ORTHOVAL_CHECK_CONTINUOUSISZERO", 2023, 8028, Flag},
        {"_ORTHOVAL_MAX_ERROR_UORS", 2019, 8012, Number},
        {"_ORTHOVAL_MIN_MU_ERRORSCALE", 2020, 2017, Number},
        {"_ORTHOVAL_CHECK_IGNORED_LEVELS", 11015, 8021, Text},
    };
    return settings;
}

std::string HelpSection(unsigned help, const std::string& tag)
{
    for (const HelpText& entry : helpTexts) {
        if (entry.id != help)
            continue;
        const std::string text = entry.text;
        const auto found = text.find(tag);
        if (found == std::string::npos)
            return {};
        const auto start = found + tag.size();
        std::size_t end = text.size();
        for (const char* next : {"<T>", "<H>", "<D>", "<S>"})
            end = std::min(end, text.find(next, start));
        return text.substr(start, end - start);
    }
    return {};
}

std::string CommentBlock(const std::string& description)
{
    std::string text = Wrap(description);
    std::erase(text, '\r');
    text = std::regex_replace(text, std::regex("\n"), "\n# ");
    return "\n#\n# " + text + "\n#\n";
}

void ExpectedFile::Add(const std::string& variable, const std::string& comment,
                       const std::vector<std::string>& lines)
{
    std::string element = comment;
    for (const auto& line : lines)
        element += line + "\n";
    m_elements.emplace(variable, element);
}

void ExpectedFile::AddMissingSettings()
{
    constexpr int textKind = 1; // the kind that is written in quotes
    for (const expected::Page* page : BuiltPages()) {
        for (const expected::Setting& setting : page->settings) {
            const auto value = expected::AfterSave(setting, {});
            if (!value)
                continue;
            const std::string written = setting.kind == textKind ? "\"" + *value + "\"" : *value;
            Add(setting.variable, CommentBlock(HelpSection(setting.helpId, "<D>")),
                {setting.variable + (" = " + written)});
        }
    }
}

std::string ExpectedFile::Bytes(const std::string& user) const
{
    std::string text = ov::test::kSavedHeaderBegin;
    text +=
        "# This file was last saved on %DATE% by user " + user + " on machine '" + ComputerName() + "'\n#\n";
    for (const auto& [variable, element] : m_elements)
        text += element;
    return WithCrLf(text);
}

std::string TakeDate(std::string& bytes)
{
    static const std::regex line("# This file was last saved on "
                                 "([A-Z][a-z]+day \\d\\d [A-Z][a-z]+ \\d{4}, \\d\\d:\\d\\d:\\d\\d) by user ");
    std::smatch match;
    if (!std::regex_search(bytes, match, line))
        return {};
    const std::string date = match[1];
    bytes.replace(static_cast<std::size_t>(match.position(1)), date.size(), "%DATE%");
    return date;
}

std::vector<std::string> AssignmentsOf(const std::string& bytes)
{
    std::vector<std::string> assignments;
    std::istringstream stream(bytes);
    for (std::string line; std::getline(stream, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (!line.empty() && line.front() != '#')
            assignments.push_back(line);
    }
    return assignments;
}

std::string AssignmentOf(const std::string& bytes, const std::string& variable)
{
    std::string found;
    for (const auto& line : AssignmentsOf(bytes)) {
        if (line.starts_with(variable + " "))
            found += (found.empty() ? "" : "|") + line;
    }
    return found;
}

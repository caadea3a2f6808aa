#include "tests/core/line_model.h"

#include <algorithm>
#include <utility>

namespace ov::test
{
namespace
{

void TakeApart(ModelLine& line)
{
    line.trimmed = Trimmed(line.text);
    if (line.trimmed.empty())
        return;
    if (line.trimmed[0] == '#' || line.trimmed[0] == '%') {
        line.kind = line.trimmed[0] == '#' ? LineKind::Comment : LineKind::Directive;
        return;
    }
    const std::size_t nameEnd = std::min(line.trimmed.find_first_of(" \t"), line.trimmed.size());
    const std::size_t start = std::min(line.trimmed.find_first_not_of(" \t", nameEnd), line.trimmed.size());
    const std::size_t end = std::min(line.trimmed.find_first_of(" \t", start), line.trimmed.size());
    const std::string token = line.trimmed.substr(start, end - start);
    line.name = line.trimmed.substr(0, nameEnd);
    line.kind = LineKind::Ignored;
    for (const char operation : {'=', '>', '<', '+', ':'}) {
        if (token.find(operation) == std::string::npos)
            continue;
        line.operation = operation;
        line.kind = LineKind::Assignment;
        return;
    }
}

bool BeginsWithWord(const std::string& directive, const std::string& word)
{
    std::string text = Trimmed(directive.substr(1)).substr(0, word.size());
    for (char& c : text)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return text == word;
}

} // namespace

ModelFile::ModelFile(std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        ModelLine line;
        line.text = bytes.substr(0, end == std::string_view::npos ? end : end + 1);
        bytes.remove_prefix(line.text.size());
        Add(std::move(line));
    }
}

bool ModelFile::Has(const std::string& name) const
{
    return std::ranges::any_of(m_lines, [&](const ModelLine& line) { return line.Assigns(name); });
}

bool ModelFile::HasOperation(const std::string& name, char operation) const
{
    return std::ranges::any_of(
        m_lines, [&](const ModelLine& line) { return line.Assigns(name) && line.operation == operation; });
}

bool ModelFile::IsConditional(const std::string& name) const
{
    return std::ranges::any_of(m_lines,
                               [&](const ModelLine& line) { return line.Assigns(name) && line.conditional; });
}

void ModelFile::Add(ModelLine line)
{
    for (const std::string end : {"\r\n", "\n"}) {
        if (line.end.empty() && line.text.ends_with(end)) {
            line.end = end;
            line.text.resize(line.text.size() - end.size());
        }
    }
    TakeApart(line);
    if (line.kind == LineKind::Directive && BeginsWithWord(line.trimmed, "if"))
        ++m_depth;
    else if (line.kind == LineKind::Directive && BeginsWithWord(line.trimmed, "endif") && m_depth > 0)
        --m_depth;
    line.conditional = m_depth > 0;
    m_lines.push_back(std::move(line));
}

std::string Trimmed(const std::string& text)
{
    const char* const white = " \t\n\v\f\r";
    const std::size_t first = text.find_first_not_of(white);
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(white) - first + 1);
}

} // namespace ov::test

#include "inspect/core/inspected_file.h"

#include "base/utf8.h"
#include "inspect/core/saved_header.h"

#include <algorithm>
#include <utility>

namespace ov
{
namespace
{
/// Seven "<" or ">", alone or before a blank, or seven "=" alone, at the beginning of a line.
bool IsConflictMarker(std::string_view line)
{
    constexpr std::size_t kLength = 7;
    if (line.size() < kLength || std::string_view("<=>").find(line.front()) == std::string_view::npos)
        return false;
    if (line.find_first_not_of(line.front()) < kLength)
        return false;
    return line.size() == kLength || (line.front() != '=' && line[kLength] == ' ');
}
} // namespace

InspectedFile::InspectedFile(std::string bytes, Charset charset)
    : m_document(std::move(bytes)), m_charset(charset), m_decoder(charset)
{
    m_lines.reserve(m_document.LineCount());
    for (std::size_t line = 0; line < m_document.LineCount(); ++line)
        AddLine(line);
    FindHeader();
}

void InspectedFile::AddLine(std::size_t number)
{
    Line line{m_document.Parts(number)};
    line.isConflictMarker = IsConflictMarker(m_document.Line(number).text);
    if (line.parts.kind == LineKind::Assignment && !line.isConflictMarker) {
        const auto [found, isNew] = m_variableOf.try_emplace(line.parts.name, m_variables.size());
        if (isNew)
            m_variables.push_back({line.parts.name, number, number, kNone});
        Variable& variable = m_variables[found->second];
        variable.lastLine = number;
        if (line.parts.operation == '=')
            variable.lastSet = number;
        line.variable = found->second;
    }
    m_lines.push_back(line);
}

void InspectedFile::FindHeader()
{
    std::vector<std::size_t> comments;
    std::size_t line = 0;
    for (; line < m_lines.size(); ++line) {
        const LineKind kind = m_lines[line].parts.kind;
        if (kind == LineKind::Comment)
            comments.push_back(line);
        else if (kind != LineKind::Directive)
            break;
    }
    // A header directly followed by the first variable was written by Save nevertheless.
    std::vector<Text> texts;
    texts.reserve(comments.size());
    for (const std::size_t comment : comments)
        texts.push_back(Decode(m_document.Line(comment).text));
    m_savedHeader = ReadSavedHeader(std::span(texts).first(std::min(texts.size(), kSavedHeaderLines)));
    if (line == m_lines.size() || m_lines[line].parts.kind != LineKind::Blank)
        return;
    m_header = std::move(comments);
    m_headerIsSaved = m_savedHeader && m_header.size() == kSavedHeaderLines;
}

const InspectedFile::Variable* InspectedFile::Find(TextView name) const
{
    std::string bytes;
    if (!LocaleEncoder(m_charset).Append(name, bytes))
        return nullptr;
    const auto found = m_variableOf.find(bytes);
    return found != m_variableOf.end() ? &m_variables[found->second] : nullptr;
}

Text InspectedFile::Decode(std::string_view bytes) const
{
    Text text;
    m_decoder.Append(bytes, text);
    return text;
}

std::size_t InspectedFile::ValueColumn(std::size_t line) const
{
    const std::string_view value = m_lines[line].parts.value;
    if (m_lines[line].variable == kNone || value.empty())
        return 1;
    const std::string_view whole = m_document.Line(line).text;
    std::string_view before = whole.substr(0, static_cast<std::size_t>(value.data() - whole.data()));
    std::size_t column = 1;
    for (; !before.empty(); ++column)
        before.remove_prefix(m_charset == Charset::Utf8 ? ReadUtf8(before).length : 1);
    return column;
}

} // namespace ov

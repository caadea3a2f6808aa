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
    : m_document(std::move(bytes)), m_charset(charset), m_decoder(charset), m_encoder(charset)
{
    for (std::size_t line = 0; line < m_document.LineCount(); ++line)
        AddLine(line);
    FindHeader();
}

void InspectedFile::AddLine(std::size_t number)
{
    const std::string_view text = m_document.Line(number).text;
    const ConfigLine parts = ParseConfigLine(text);
    if (parts.kind == LineKind::Blank || parts.kind == LineKind::Comment)
        return;
    Line line{
        number, kNone, parts.kind, parts.operation, parts.operatorToken.size() == 1, IsConflictMarker(text)};
    if (parts.kind == LineKind::Assignment && !line.isConflictMarker) {
        const CompactView name = CompactView::OfBytes(parts.name);
        line.variable = m_names.Find(name);
        if (line.variable == SettingTable::kNone) {
            line.variable = m_names.Insert(name, {}, SettingKindText, {});
            m_variables.push_back({parts.name, FindSetting(parts.name), number, number, kNone});
        }
        Variable& variable = m_variables[line.variable];
        variable.lastLine = number;
        if (parts.operation == '=')
            variable.lastSet = number;
    }
    m_lines.push_back(line);
}

void InspectedFile::FindHeader()
{
    std::vector<std::size_t> comments;
    LineKind kind = LineKind::Directive;
    for (std::size_t line = 0; line < LineCount(); ++line) {
        kind = Parts(line).kind;
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
    if (kind != LineKind::Blank)
        return;
    m_header = std::move(comments);
    m_headerIsSaved = m_savedHeader && m_header.size() == kSavedHeaderLines;
}

const InspectedFile::Variable* InspectedFile::Find(TextView name) const
{
    std::string bytes;
    if (!m_encoder.Append(name, bytes))
        return nullptr;
    const SettingTable::Index found = m_names.Find(CompactView::OfBytes(bytes));
    return found != SettingTable::kNone ? &m_variables[found] : nullptr;
}

Text InspectedFile::Decode(std::string_view bytes) const
{
    Text text;
    m_decoder.Append(bytes, text);
    return text;
}

CompactView InspectedFile::Decode(std::string_view bytes, Text& room) const
{
    if (m_decoder.IsPlain(bytes))
        return CompactView::OfBytes(bytes);
    room.clear();
    m_decoder.Append(bytes, room);
    return room;
}

std::size_t InspectedFile::ValueColumn(std::size_t line) const
{
    const std::string_view whole = m_document.Line(line).text;
    const ConfigLine parts = ParseConfigLine(whole);
    if (parts.kind != LineKind::Assignment || parts.value.empty() || IsConflictMarker(whole))
        return 1;
    std::string_view before = whole.substr(0, static_cast<std::size_t>(parts.value.data() - whole.data()));
    std::size_t column = 1;
    for (; !before.empty(); ++column)
        before.remove_prefix(m_charset == Charset::Utf8 ? ReadUtf8(before).length : 1);
    return column;
}

} // namespace ov

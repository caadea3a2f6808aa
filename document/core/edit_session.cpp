#include "document/core/edit_session.h"

#include "base/utf8.h"
#include "config/core/config_reader.h"
#include "document/core/plain_text.h"

#include <algorithm>
#include <set>

namespace ov
{
namespace
{

// The lines of a comment block, without its last line end.
std::vector<Text> LinesOfBlock(const Text& block)
{
    std::vector<Text> lines;
    for (std::size_t start = 0; start < block.size();) {
        const std::size_t end = std::min(block.find(u'\n', start), block.size());
        lines.push_back(block.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

// The number of lines before the blank line that ends the header, which the reader discards; 0 if an
// assignment comes before the first blank line.
std::size_t HeaderLineCount(const Document& document)
{
    for (std::size_t i = 0; i < document.LineCount(); ++i) {
        const LineKind kind = document.Parts(i).kind;
        if (kind != LineKind::Comment && kind != LineKind::Directive)
            return kind == LineKind::Blank ? i : 0;
    }
    return 0;
}

// A name and the value of its variable.
using NamedValue = std::pair<CompactView, CompactView>;

std::vector<NamedValue> ValuesOfOthers(const SettingStore& store, const std::set<Text>& named)
{
    std::vector<NamedValue> values;
    store.VisitInOrder(kCurrentTable, [&](const SettingRecord& record) {
        if (!named.contains(record.name))
            values.emplace_back(record.name, record.value);
        return true;
    });
    return values;
}

} // namespace

EditSession::EditSession(const EditedFile& file, const FactsOf& factsOf)
    : m_file(file), m_factsOf(factsOf), m_charset(file.CharsetOf(file.bytes)), m_encoder(m_charset),
      m_decoder(m_charset), m_document(std::string(file.bytes)), m_lines(m_document),
      m_headerLines(HeaderLineCount(m_document)), m_edits(m_document)
{
    ReadConfig(m_before, kCurrentTable, m_document.Bytes(), m_charset);
}

std::span<const VariableLine> EditSession::LinesOf(TextView name) const
{
    std::string bytes;
    return m_encoder.Append(name, bytes) ? m_lines.Of(bytes) : std::span<const VariableLine>();
}

bool EditSession::MayChange(TextView name)
{
    const auto lines = LinesOf(name);
    if (const char* const reason = WhyNotPlainText(m_document.Bytes()))
        Refuse(EditRefusal::NotPlainText, name, TextFromUtf8(reason));
    else if (std::any_of(lines.begin(), lines.end(),
                         [](const VariableLine& line) { return line.conditional; }))
        Refuse(EditRefusal::Conditional, name);
    else if (lines.empty() && m_lines.EndsInCondition())
        Refuse(EditRefusal::EndsInCondition, name);
    else
        return true;
    return false;
}

Text EditSession::ValueOf(std::size_t line) const
{
    const std::string_view bytes = m_document.Parts(line).value;
    Text value;
    m_decoder.Append(bytes, value);
    Text room;
    return IsQuoted(bytes) ? Text(Unquoted(TextView(value), room)) : value;
}

void EditSession::Rewrite(std::size_t line, char operation, TextView name, TextView valueText)
{
    const auto value = Encoded(name, valueText);
    const auto encodedName = Encoded(name, name);
    if (!value || !encodedName)
        return;
    const std::string_view text = m_document.Line(line).text;
    const ConfigLine parts = m_document.Parts(line);
    if (parts.operatorToken != std::string_view(&operation, 1)) {
        m_edits.Replace(line, Indentation(line) + *encodedName + " " + operation + " " + *value);
        return;
    }
    const auto operatorEnd =
        static_cast<std::size_t>(parts.operatorToken.data() + parts.operatorToken.size() - text.data());
    const char separator = operatorEnd < text.size() && IsBlank(text[operatorEnd]) ? text[operatorEnd] : ' ';
    m_edits.Replace(line, std::string(text.substr(0, operatorEnd)) + separator + *value);
}

void EditSession::InsertBelow(std::size_t line, char operation, TextView name, TextView valueText)
{
    const auto value = Encoded(name, valueText);
    const auto encodedName = Encoded(name, name);
    if (value && encodedName)
        m_edits.InsertBelow(line, Indentation(line) + *encodedName + " " + operation + " " + *value);
}

void EditSession::AppendNew(TextView name, const VariableFacts& facts,
                            const std::vector<std::pair<char, Text>>& lines)
{
    std::vector<std::string> texts;
    for (const Text& line : LinesOfBlock(facts.comment)) {
        if (auto text = Encoded(name, line))
            texts.push_back(std::move(*text));
    }
    for (const auto& [operation, value] : lines) {
        if (auto text = Encoded(name, Text(name) + u' ' + static_cast<char16_t>(operation) + u' ' + value))
            texts.push_back(std::move(*text));
    }
    for (std::string& text : texts)
        m_edits.Append(std::move(text));
}

void EditSession::RemoveVariable(TextView name)
{
    const auto lines = LinesOf(name);
    for (const VariableLine& line : lines)
        m_edits.Erase(line.line);
    const Text comment = Facts(name).comment;
    bool left = false;
    for (const VariableLine& line : lines) {
        const std::size_t start = line.line - DialogCommentAbove(line.line, comment);
        for (std::size_t i = start; i < line.line; ++i) {
            if (i > start || !SeparatesHeader(i, line.line))
                m_edits.Erase(i);
        }
        for (std::size_t i = start - CommentLinesAbove(m_document, start); i < start; ++i)
            left |= i >= m_headerLines && m_document.Parts(i).kind == LineKind::Comment;
    }
    if (left)
        m_result.commentsLeft.emplace_back(name);
}

// The length of the given comment block if it is directly above the line, as the reader reads it; else 0.
std::size_t EditSession::DialogCommentAbove(std::size_t line, const Text& comment) const
{
    const std::vector<Text> block = LinesOfBlock(comment);
    if (block.empty() || block.size() > line)
        return 0;
    for (std::size_t i = 0; i < block.size(); ++i) {
        std::string bytes;
        if (!m_encoder.Append(Trim(block[i]), bytes) ||
            m_document.Parts(line - block.size() + i).text != bytes)
            return 0;
    }
    return block.size();
}

// True if a blank line ends the header and must remain: without it the header would become the comment
// of the variable after the removed lines.
bool EditSession::SeparatesHeader(std::size_t blankLine, std::size_t lastRemoved) const
{
    if (m_document.Parts(blankLine).kind != LineKind::Blank)
        return false;
    for (std::size_t i = m_headerLines; i < blankLine; ++i) {
        if (!m_edits.IsErased(i))
            return false;
    }
    std::size_t next = lastRemoved;
    while (next < m_document.LineCount() && m_edits.IsErased(next))
        ++next;
    return m_headerLines > 0 && next < m_document.LineCount() &&
           m_document.Parts(next).kind != LineKind::Blank;
}

std::string EditSession::Indentation(std::size_t line) const
{
    const std::string_view text = m_document.Line(line).text;
    return std::string(
        text.substr(0, static_cast<std::size_t>(m_document.Parts(line).text.data() - text.data())));
}

// The text in the file's encoding. Refuses the edit if the encoding lacks a character.
std::optional<std::string> EditSession::Encoded(TextView name, TextView text)
{
    std::string bytes;
    const EncodeResult result = m_encoder.Append(text, bytes);
    if (result)
        return bytes;
    Refuse(EditRefusal::CharacterLacking, name,
           Text(text.substr(result.position, ReadUtf16(text.substr(result.position)).length)));
    return std::nullopt;
}

void EditSession::Refuse(EditRefusal reason, TextView name, Text detail)
{
    m_result.refused.push_back({reason, Text(name), std::move(detail)});
}

EditResult EditSession::Finish()
{
    if (m_result.refused.empty()) {
        m_result.bytes = m_edits.Apply();
        if (m_result.bytes != m_document.Bytes())
            Check();
    }
    return std::move(m_result);
}

// Refuses the edit unless the named variables read back as wanted and all others as before.
void EditSession::Check()
{
    // So many NULs that the file would be taken for UTF-16.
    if (const char* const reason = WhyNotPlainText(m_result.bytes); reason != nullptr && !m_wanted.empty()) {
        Refuse(EditRefusal::NotPlainText, m_wanted.front().first, TextFromUtf8(reason));
        return;
    }
    const Charset charset = m_file.CharsetOf(m_result.bytes);
    SettingStore after;
    ReadConfig(after, kCurrentTable, m_result.bytes, charset);
    std::set<Text> named;
    for (const auto& [name, value] : m_wanted) {
        named.insert(name);
        const bool kept = value ? after.HasSetting(name, kCurrentTable) &&
                                      after.GetSettingValue(name, kCurrentTable) == *value
                                : !after.HasSetting(name, kCurrentTable);
        if (!kept && charset != m_charset)
            Refuse(EditRefusal::EncodingChanged, name);
        else if (!kept)
            Refuse(value && !after.HasSetting(name, kCurrentTable) ? EditRefusal::NameNotKept
                                                                   : EditRefusal::ValueNotKept,
                   name, value.value_or(Text()));
    }
    if (!m_result.refused.empty())
        return;
    const std::vector<NamedValue> oldValues = ValuesOfOthers(m_before, named);
    const std::vector<NamedValue> newValues = ValuesOfOthers(after, named);
    const auto [before, now] =
        std::mismatch(oldValues.begin(), oldValues.end(), newValues.begin(), newValues.end());
    if (before == oldValues.end() && now == newValues.end())
        return;
    const Text name = before != oldValues.end() ? Text(before->first) : Text(now->first);
    Refuse(charset != m_charset ? EditRefusal::EncodingChanged : EditRefusal::OtherChanged, name);
}

} // namespace ov

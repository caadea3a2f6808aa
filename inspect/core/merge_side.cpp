#include "inspect/core/merge_side.h"

#include "config/core/config_reader.h"
#include "config/core/config_writer.h"
#include "document/core/variable_lines.h"
#include "inspect/core/saved_header.h"

#include <algorithm>

namespace ov
{
namespace
{

// True for the header line with the date of the save. In a comment it is the trace of a header that
// was read as a comment.
bool SaysWhenSaved(TextView line)
{
    static const Text s_start = [] {
        const Text header = MakeHeader({u"\1", u"", u""});
        const std::size_t date = header.find(u'\1');
        const std::size_t start = header.rfind(u'\n', date) + 1;
        return header.substr(start, date - start);
    }();
    return line.starts_with(s_start);
}

} // namespace

MergeSide::MergeSide(std::string_view bytes, Charset charset)
    : m_document(std::string(bytes)), m_charset(charset), m_decoder(charset)
{
    ReadConfig(m_store, kCurrentTable, m_document.Bytes(), charset);
    ReadLines(ReadHeader());
    FinishVariables();
}

const MergeVariable* MergeSide::Find(const Text& name) const
{
    const auto found = m_byName.find(name);
    return found == m_byName.end() || m_variables[found->second].lines.empty() ? nullptr
                                                                               : &m_variables[found->second];
}

Text MergeSide::LineText(std::size_t line) const
{
    Text text;
    m_decoder.Append(m_document.Line(line).text, text);
    return text;
}

Text MergeSide::LineValue(std::size_t line) const
{
    const std::string_view bytes = m_document.Parts(line).value;
    Text value;
    m_decoder.Append(bytes, value);
    Text room;
    return IsQuoted(bytes) ? Text(Unquoted(TextView(value), room)) : value;
}

bool MergeSide::HasSavedHeader() const
{
    return ReadSavedHeader(Texts(m_headerLines)).has_value();
}

std::vector<Text> MergeSide::Texts(const std::vector<std::size_t>& lines) const
{
    std::vector<Text> texts;
    std::transform(lines.begin(), lines.end(), std::back_inserter(texts),
                   [this](std::size_t line) { return Text(Trim(LineText(line))); });
    return texts;
}

// Returns the number of the first line after the header.
std::size_t MergeSide::ReadHeader()
{
    std::size_t end = 0;
    LineKind kind = LineKind::Blank;
    for (; end < m_document.LineCount(); ++end) {
        kind = m_document.Parts(end).kind;
        if (kind != LineKind::Comment && kind != LineKind::Directive)
            break;
    }
    if (end < m_document.LineCount() && kind != LineKind::Blank)
        return 0;
    for (std::size_t i = 0; i < end; ++i)
        (m_document.Parts(i).kind == LineKind::Comment ? m_headerLines : m_otherLines).push_back(i);
    if (end < m_document.LineCount() && !m_headerLines.empty())
        m_blankBelowHeader = end;
    return end;
}

void MergeSide::ReadLines(std::size_t first)
{
    ConditionDepth depth;
    for (const std::size_t line : m_otherLines)
        depth.Pass(m_document.Parts(line));
    std::vector<std::size_t> above; // Comment and blank lines directly above.
    for (std::size_t i = first; i < m_document.LineCount(); ++i) {
        const ConfigLine parts = m_document.Parts(i);
        depth.Pass(parts);
        if (parts.kind == LineKind::Comment || parts.kind == LineKind::Blank) {
            above.push_back(i);
            continue;
        }
        if (parts.kind == LineKind::Assignment && !depth.IsOpen()) {
            AddAssignment(i, parts, above);
        } else {
            if (parts.kind == LineKind::Assignment)
                AddConditional(parts);
            above.push_back(i);
        }
        AddOthers(above);
    }
    AddOthers(above);
}

void MergeSide::AddAssignment(std::size_t line, const ConfigLine& parts, std::vector<std::size_t>& above)
{
    Text name;
    m_decoder.Append(parts.name, name);
    const auto [place, added] = m_byName.try_emplace(name, m_variables.size());
    if (added)
        m_variables.push_back({.name = name, .lines = {}, .value = {}, .comment = {}});
    MergeVariable& variable = m_variables[place->second];
    if (variable.lines.empty()) {
        variable.commentStart = line - above.size();
        for (const Text& text : Texts(above)) {
            if (!text.empty() && !SaysWhenSaved(text))
                variable.comment += text + u'\n';
        }
        above.clear();
    }
    variable.lines.push_back(line);
}

void MergeSide::AddConditional(const ConfigLine& parts)
{
    Text name;
    m_decoder.Append(parts.name, name);
    const auto [place, added] = m_byName.try_emplace(name, m_variables.size());
    if (added)
        m_variables.push_back({.name = name, .lines = {}, .value = {}, .comment = {}});
    m_variables[place->second].conditional = true;
}

// Adds the lines to those without a variable, except for blank ones.
void MergeSide::AddOthers(std::vector<std::size_t>& lines)
{
    for (const std::size_t line : lines) {
        if (m_document.Parts(line).kind != LineKind::Blank)
            m_otherLines.push_back(line);
    }
    lines.clear();
}

void MergeSide::FinishVariables()
{
    for (MergeVariable& variable : m_variables) {
        variable.inherits =
            std::none_of(variable.lines.begin(), variable.lines.end(),
                         [this](std::size_t line) { return m_document.Parts(line).operation == '='; });
        if (!variable.conditional) {
            variable.value = m_store.GetSettingValue(variable.name, kCurrentTable);
            continue;
        }
        for (const Text& text : Texts(variable.lines))
            variable.value += text + u'\n';
    }
}

} // namespace ov

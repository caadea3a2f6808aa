#include "document/core/variable_lines.h"

#include <algorithm>

namespace ov
{
namespace
{

// True if the word after the "%" of a directive begins with the given one, ignoring case.
bool IsDirective(std::string_view directive, std::string_view word)
{
    directive.remove_prefix(1);
    while (!directive.empty() && IsBlank(directive.front()))
        directive.remove_prefix(1);
    return directive.size() >= word.size() &&
           std::equal(word.begin(), word.end(), directive.begin(), [](char expected, char c) {
               return ToUpperAscii(static_cast<unsigned char>(c)) == static_cast<unsigned char>(expected);
           });
}

} // namespace

void ConditionDepth::Pass(const ConfigLine& line)
{
    if (line.kind != LineKind::Directive)
        return;
    if (IsDirective(line.text, "IF"))
        ++m_open;
    else if (IsDirective(line.text, "ENDIF") && m_open > 0)
        --m_open;
}

VariableLines::VariableLines(const Document& document)
{
    ConditionDepth depth;
    for (std::size_t i = 0; i < document.LineCount(); ++i) {
        const ConfigLine parts = document.Parts(i);
        depth.Pass(parts);
        if (parts.kind == LineKind::Assignment)
            m_lines[parts.name].push_back({i, parts.operation, depth.IsOpen()});
    }
    m_endsInCondition = depth.IsOpen();
}

std::span<const VariableLine> VariableLines::Of(std::string_view name) const
{
    const auto found = m_lines.find(name);
    return found == m_lines.end() ? std::span<const VariableLine>() : found->second;
}

std::size_t CommentLinesAbove(const Document& document, std::size_t line)
{
    std::size_t count = 0;
    for (; count < line; ++count) {
        const LineKind kind = document.Parts(line - count - 1).kind;
        if (kind != LineKind::Comment && kind != LineKind::Blank)
            break;
    }
    return count;
}

} // namespace ov

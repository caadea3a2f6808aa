#include "document/core/document.h"

#include "config/core/text_lines.h"
#include "document/core/line_diff.h"

#include <utility>

namespace ov
{

Document::Document(std::string bytes) : m_bytes(std::move(bytes))
{
    for (const std::string_view line : LinesWithEnds(m_bytes)) {
        const bool ended = line.back() == '\n';
        const std::string_view text = ended ? WithoutCarriageReturn(line.substr(0, line.size() - 1)) : line;
        m_lines.push_back({text, line.substr(text.size())});
    }
}

std::string_view Document::EndBelow(std::size_t line) const
{
    for (std::size_t i = line + 1; i > 0; --i) {
        if (!m_lines[i - 1].end.empty())
            return m_lines[i - 1].end;
    }
    return "\r\n";
}

} // namespace ov

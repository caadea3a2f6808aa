#include "document/core/document.h"

#include <utility>

namespace ov
{

Document::Document(std::string bytes) : m_bytes(std::move(bytes)), m_starts{0}
{
    const std::string_view whole = m_bytes;
    while (m_starts.back() < whole.size()) {
        const std::size_t end = whole.find('\n', m_starts.back());
        m_starts.push_back(end == std::string_view::npos ? whole.size() : end + 1);
    }
}

std::string_view Document::EndBelow(std::size_t line) const
{
    for (std::size_t i = line + 1; i > 0; --i) {
        if (const std::string_view end = Line(i - 1).end; !end.empty())
            return end;
    }
    return "\r\n";
}

} // namespace ov

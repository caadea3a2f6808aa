#include "document/core/line_edits.h"

#include <utility>

namespace ov
{
namespace
{

// Joins lines. A line without a line end gets one if another line follows.
class LineJoiner
{
  public:
    // `endWhenNeeded` is used if `end` is empty and another line follows.
    void Add(std::string_view text, std::string_view end, std::string_view endWhenNeeded)
    {
        m_bytes.append(m_neededEnd);
        m_bytes.append(text).append(end);
        // An empty line is nothing but its end: without it the line would be gone.
        m_end = text.empty() ? std::string_view() : end;
        m_neededEnd = end.empty() ? endWhenNeeded : std::string_view();
        // A CR at the end of the text would be taken for a part of the line end.
        if (m_neededEnd == "\n" && text.ends_with('\r'))
            m_neededEnd = "\r\n";
    }

    // The joined lines, with or without a final line end.
    std::string Finish(bool withFinalEnd)
    {
        if (withFinalEnd)
            m_bytes.append(m_neededEnd);
        else
            m_bytes.resize(m_bytes.size() - m_end.size());
        return std::move(m_bytes);
    }

  private:
    std::string m_bytes;
    std::string_view m_end;       // The line end of the last line, unless it is an empty line.
    std::string_view m_neededEnd; // The line end that the last line needs if another line follows.
};

} // namespace

void LineEdits::Replace(std::size_t line, std::string text)
{
    Change& change = m_changes[line];
    change.replaced = true;
    change.text = std::move(text);
}

void LineEdits::Erase(std::size_t line)
{
    m_changes[line].erased = true;
}

bool LineEdits::IsErased(std::size_t line) const
{
    const auto found = m_changes.find(line);
    return found != m_changes.end() && found->second.erased;
}

void LineEdits::InsertBelow(std::size_t line, std::string text)
{
    m_changes[line].below.push_back(std::move(text));
}

void LineEdits::InsertAbove(std::size_t line, std::string text)
{
    m_changes[line].above.push_back(std::move(text));
}

void LineEdits::Append(std::string text)
{
    m_appended.push_back(std::move(text));
}

std::string LineEdits::Apply() const
{
    const std::size_t count = m_document.LineCount();
    LineJoiner joiner;
    auto next = m_changes.begin();
    for (std::size_t i = 0; i < count; ++i) {
        const DocumentLine line = m_document.Line(i);
        if (next == m_changes.end() || next->first != i) {
            joiner.Add(line.text, line.end, m_document.EndBelow(i));
            continue;
        }
        const Change& change = (next++)->second;
        for (const std::string& text : change.above)
            joiner.Add(text, m_document.EndBelow(i), {});
        if (!change.erased)
            joiner.Add(change.replaced ? change.text : line.text, line.end, m_document.EndBelow(i));
        for (const std::string& text : change.below)
            joiner.Add(text, m_document.EndBelow(i), {});
    }
    const std::string_view lastEnd = count == 0 ? "\r\n" : m_document.EndBelow(count - 1);
    for (const std::string& text : m_appended)
        joiner.Add(text, lastEnd, {});
    return joiner.Finish(count == 0 || !m_document.Line(count - 1).end.empty());
}

} // namespace ov

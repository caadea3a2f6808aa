#include "inspect/core/merge_output.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace ov
{
namespace
{

bool IsAscii(std::string_view bytes)
{
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

// A file in pure ASCII takes the encoding of the other one.
MergeOutput::MergeOutput(const MergeSide& ours, const MergeSide& theirs)
    : m_ours(ours), m_theirs(theirs),
      m_charset(IsAscii(ours.File().Bytes()) ? theirs.Encoding() : ours.Encoding()), m_encoder(m_charset),
      m_edits(ours.File())
{
}

std::vector<std::string> MergeOutput::OurLines(const std::vector<std::size_t>& lines) const
{
    std::vector<std::string> texts;
    std::transform(lines.begin(), lines.end(), std::back_inserter(texts),
                   [this](std::size_t line) { return std::string(m_ours.File().Line(line).text); });
    return texts;
}

std::vector<std::string> MergeOutput::TheirLines(const std::vector<std::size_t>& lines)
{
    std::vector<std::string> texts;
    for (const std::size_t line : lines) {
        std::string& text = texts.emplace_back();
        if (m_encoder.Append(m_theirs.LineText(line), text))
            continue;
        m_lossy = true;
        text = m_theirs.File().Line(line).text;
    }
    return texts;
}

std::string MergeOutput::NewLine(const Text& text)
{
    std::string bytes;
    if (!m_encoder.Append(text, bytes))
        m_lossy = true;
    return bytes;
}

bool MergeOutput::TakeLossy()
{
    return std::exchange(m_lossy, false);
}

void MergeOutput::Replace(const std::vector<std::size_t>& lines, const std::vector<std::string>& texts)
{
    for (const std::size_t line : lines)
        m_edits.Erase(line);
    InsertBelow(lines.front(), texts);
}

void MergeOutput::InsertAbove(std::size_t line, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts) {
        if (line == m_ours.File().LineCount())
            m_edits.Append(text);
        else
            m_edits.InsertAbove(line, text);
    }
}

void MergeOutput::InsertBelow(std::size_t line, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
        m_edits.InsertBelow(line, text);
}

void MergeOutput::EraseComment(const MergeVariable& ours)
{
    for (std::size_t line = ours.commentStart; line < ours.lines.front(); ++line) {
        if (line == m_ours.BlankBelowHeader())
            m_blankBelowHeaderIsSpare = true;
        else
            m_edits.Erase(line);
    }
}

std::string MergeOutput::Finish()
{
    if (m_blankBelowHeaderIsSpare)
        EraseSecondBlank(*m_ours.BlankBelowHeader() + 1);
    if (m_headerIsNew)
        EraseSecondBlank(0);
    return m_edits.Apply();
}

void MergeOutput::EraseSecondBlank(std::size_t line)
{
    while (line < m_ours.File().LineCount() && m_edits.IsErased(line))
        ++line;
    if (line < m_ours.File().LineCount() && m_ours.File().Parts(line).kind == LineKind::Blank)
        m_edits.Erase(line);
}

void MergeOutput::InsertHeader(std::vector<std::string> texts)
{
    texts.emplace_back();
    InsertAbove(0, texts);
    m_headerIsNew = true;
}

std::vector<std::string> MergeOutput::Conflict(const std::vector<std::string>& ours,
                                               const std::vector<std::string>& theirs)
{
    std::vector<std::string> block{"<<<<<<< ours"};
    block.insert(block.end(), ours.begin(), ours.end());
    block.emplace_back("=======");
    block.insert(block.end(), theirs.begin(), theirs.end());
    block.emplace_back(">>>>>>> theirs");
    return block;
}

std::vector<std::size_t> LineNumbers(std::size_t first, std::size_t last)
{
    std::vector<std::size_t> numbers(last - first);
    std::iota(numbers.begin(), numbers.end(), first);
    return numbers;
}

} // namespace ov

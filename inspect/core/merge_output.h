#pragma once

#include "document/core/line_edits.h"
#include "inspect/core/merge_side.h"

#include <optional>
#include <string>
#include <vector>

namespace ov
{

/// The edits of our file in a merge.
class MergeOutput
{
  public:
    MergeOutput(const MergeSide& ours, const MergeSide& theirs);

    LineEdits& Edits() { return m_edits; }

    /// The encoding of the result.
    Charset Encoding() const { return m_charset; }

    /// Our lines as they are.
    std::vector<std::string> OurLines(const std::vector<std::size_t>& lines) const;

    /// Their lines in the encoding of the result; as they are where it lacks a character, which
    /// IsLossy then says.
    std::vector<std::string> TheirLines(const std::vector<std::size_t>& lines);

    /// A line of the result; empty where the encoding lacks a character, which IsLossy then says.
    std::string NewLine(const Text& text);

    /// True when a character could not be written since the last call.
    bool TakeLossy();

    /// Puts other lines in the place of ours, of which there is at least one. They begin where our first
    /// one is.
    void Replace(const std::vector<std::size_t>& lines, const std::vector<std::string>& texts);

    /// Inserts lines above one of ours; the number of our lines is the end of the file.
    void InsertAbove(std::size_t line, const std::vector<std::string>& texts);

    /// Inserts lines below one of ours.
    void InsertBelow(std::size_t line, const std::vector<std::string>& texts);

    /// Removes the comment lines above one of our variables. The blank line below the header stays, or the
    /// header would become a comment.
    void EraseComment(const MergeVariable& ours);

    /// The bytes of the result.
    std::string Finish();

    /// Both versions between markers.
    static std::vector<std::string> Conflict(const std::vector<std::string>& ours,
                                             const std::vector<std::string>& theirs);

  private:
    const MergeSide& m_ours;
    const MergeSide& m_theirs;
    Charset m_charset; ///< Of the result.
    LineEdits m_edits;
    bool m_lossy = false;
    bool m_blankBelowHeaderIsSpare = false;
};

/// The numbers from the first to the one before the last.
std::vector<std::size_t> LineNumbers(std::size_t first, std::size_t last);

} // namespace ov

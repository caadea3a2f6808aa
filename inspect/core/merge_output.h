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

    /// Our lines, unchanged.
    std::vector<std::string> OurLines(const std::vector<std::size_t>& lines) const;

    /// Their lines in the encoding of the result. A line with a character that it lacks is unchanged;
    /// TakeLossy then returns true.
    std::vector<std::string> TheirLines(const std::vector<std::size_t>& lines);

    /// A line of the result; empty if the encoding lacks a character. TakeLossy then returns true.
    std::string NewLine(const Text& text);

    /// True if a character could not be written since the last call.
    bool TakeLossy();

    /// Replaces our lines, at least one, by other lines. These begin at the position of our first
    /// line.
    void Replace(const std::vector<std::size_t>& lines, const std::vector<std::string>& texts);

    /// Inserts lines above one of ours; the number of our lines means the end of the file.
    void InsertAbove(std::size_t line, const std::vector<std::string>& texts);

    /// Inserts lines below one of ours.
    void InsertBelow(std::size_t line, const std::vector<std::string>& texts);

    /// Inserts a header at the beginning of our file, which has none, and a blank line below it. Without the
    /// blank line, the header would become the comment of the first variable.
    void InsertHeader(std::vector<std::string> texts);

    /// Removes the comment lines above one of our variables. The blank line below the header remains;
    /// without it the header would become a comment.
    void EraseComment(const MergeVariable& ours);

    /// The bytes of the result.
    std::string Finish();

    /// Both versions between conflict markers.
    static std::vector<std::string> Conflict(const std::vector<std::string>& ours,
                                             const std::vector<std::string>& theirs);

  private:
    // Removes our line, or the next one that remains, if it is blank: one blank line is above it already.
    void EraseSecondBlank(std::size_t line);

    const MergeSide& m_ours;
    const MergeSide& m_theirs;
    Charset m_charset; ///< The encoding of the result.
    LocaleEncoder m_encoder;
    LineEdits m_edits;
    bool m_lossy = false;
    bool m_blankBelowHeaderIsSpare = false;
    bool m_headerIsNew = false;
};

/// The numbers from `first` up to, but not including, `last`.
std::vector<std::size_t> LineNumbers(std::size_t first, std::size_t last);

} // namespace ov

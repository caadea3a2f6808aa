#include "inspect/core/merge_others.h"

#include "document/core/line_diff.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <utility>

namespace ov
{
namespace
{

using LineNumberList = std::vector<std::size_t>;
using LinePair = std::pair<std::size_t, std::size_t>;

std::vector<std::string> Utf8Of(const std::vector<Text>& texts)
{
    std::vector<std::string> lines;
    std::transform(texts.begin(), texts.end(), std::back_inserter(lines),
                   [](const Text& text) { return Utf8FromText(text); });
    return lines;
}

std::vector<LineChange> Changes(const std::vector<Text>& before, const std::vector<Text>& after)
{
    const std::vector<std::string> oldTexts = Utf8Of(before);
    const std::vector<std::string> newTexts = Utf8Of(after);
    return DiffLines(std::vector<std::string_view>(oldTexts.begin(), oldTexts.end()),
                     std::vector<std::string_view>(newTexts.begin(), newTexts.end()));
}

bool Touch(const LineChange& first, const LineChange& second)
{
    return first.oldStart <= second.oldStart + second.oldCount &&
           second.oldStart <= first.oldStart + first.oldCount;
}

LineNumberList Part(const LineNumberList& lines, std::size_t start, std::size_t count)
{
    const auto first = lines.begin() + static_cast<std::ptrdiff_t>(start);
    return {first, first + static_cast<std::ptrdiff_t>(count)};
}

class OtherLinesMerger
{
  public:
    OtherLinesMerger(const MergeSide& base, const MergeSide& ours, const MergeSide& theirs,
                     MergeOutput& output)
        : m_ours(ours), m_theirs(theirs), m_output(output),
          m_ourChanges(Changes(base.Texts(base.OtherLines()), ours.Texts(ours.OtherLines()))),
          m_theirChanges(Changes(base.Texts(base.OtherLines()), theirs.Texts(theirs.OtherLines())))
    {
        for (const MergeVariable& variable : theirs.Variables()) {
            const MergeVariable* const our = ours.Find(variable.name);
            if (our != nullptr && !variable.lines.empty())
                m_commonVariables.emplace_back(variable.lines.back(), our->lines.back());
        }
        std::ranges::sort(m_commonVariables);
    }

    bool Run()
    {
        bool clean = true;
        for (const LineChange& change : m_theirChanges)
            clean &= Merge(change);
        return clean;
    }

  private:
    bool Merge(const LineChange& change)
    {
        const LineNumberList theirLines = Part(m_theirs.OtherLines(), change.newStart, change.newCount);
        // The first of our changes that does not end before theirs.
        const auto touching = std::ranges::partition_point(m_ourChanges, [&](const LineChange& our) {
            return our.oldStart + our.oldCount < change.oldStart;
        });
        if (touching != m_ourChanges.end() && Touch(*touching, change))
            return MergeTouching(*touching, change, theirLines);
        const std::size_t start = OurPlace(change.oldStart);
        const LineNumberList ourLines = Part(m_ours.OtherLines(), start, change.oldCount);
        std::vector<std::string> texts = m_output.TheirLines(theirLines);
        const bool lossy = m_output.TakeLossy();
        if (lossy)
            texts = MergeOutput::Conflict(m_output.OurLines(ourLines), texts);
        if (!ourLines.empty())
            m_output.Replace(ourLines, texts);
        else
            m_output.InsertAbove(LineToInsertAbove(start, theirLines), texts);
        return !lossy;
    }

    // Both sides changed the same place. If they made the same change, nothing has to be done.
    bool MergeTouching(const LineChange& our, const LineChange& their, const LineNumberList& theirLines)
    {
        const LineNumberList ourLines = Part(m_ours.OtherLines(), our.newStart, our.newCount);
        if (our.oldStart == their.oldStart && our.oldCount == their.oldCount &&
            m_ours.Texts(ourLines) == m_theirs.Texts(theirLines))
            return true;
        const std::vector<std::string> texts =
            MergeOutput::Conflict(m_output.OurLines(ourLines), m_output.TheirLines(theirLines));
        m_output.TakeLossy();
        const bool taken = !ourLines.empty() && m_output.Edits().IsErased(ourLines.front());
        if (ourLines.empty() || taken)
            m_output.InsertAbove(LineToInsertAbove(our.newStart, theirLines), texts);
        else
            m_output.Replace(ourLines, texts);
        return false;
    }

    // The position among our other lines of a base line that we did not change.
    std::size_t OurPlace(std::size_t basePlace) const
    {
        const auto next = std::ranges::lower_bound(m_ourChanges, basePlace, {}, &LineChange::oldStart);
        if (next == m_ourChanges.begin())
            return basePlace;
        const LineChange& our = *std::prev(next);
        return basePlace + our.newStart + our.newCount - our.oldStart - our.oldCount;
    }

    // The line above which to insert their new lines, between our other lines `place - 1` and `place`: next
    // to the one that is also their neighbour in their file, else below the variable above them.
    std::size_t LineToInsertAbove(std::size_t place, const LineNumberList& theirLines) const
    {
        const LineNumberList& ourOthers = m_ours.OtherLines();
        const std::size_t lowest = place > 0 ? ourOthers[place - 1] + 1 : 0;
        const std::size_t highest = place < ourOthers.size() ? ourOthers[place] : m_ours.File().LineCount();
        if (theirLines.empty())
            return highest;
        const std::size_t first = theirLines.front();
        const std::size_t last = theirLines.back();
        const LineNumberList& theirOthers = m_theirs.OtherLines();
        if (first > 0 && std::binary_search(theirOthers.begin(), theirOthers.end(), first - 1))
            return lowest;
        if (std::binary_search(theirOthers.begin(), theirOthers.end(), last + 1))
            return highest;
        const auto below = BelowVariableAbove(first);
        return below && *below >= lowest && *below <= highest ? *below : highest;
    }

    // The line after the nearest variable above their line that our file also has, in our file.
    std::optional<std::size_t> BelowVariableAbove(std::size_t theirLine) const
    {
        const auto next = std::ranges::upper_bound(m_commonVariables, theirLine, {}, &LinePair::first);
        if (next == m_commonVariables.begin())
            return std::nullopt;
        return std::prev(next)->second + 1;
    }

    const MergeSide& m_ours;
    const MergeSide& m_theirs;
    MergeOutput& m_output;
    std::vector<LineChange> m_ourChanges;
    std::vector<LineChange> m_theirChanges;
    std::vector<LinePair> m_commonVariables; // The last lines in their file and in ours, by the former.
};

// Uses their header if only they changed it, and ours if either one was written by Save.
bool MergeHeader(const MergeSide& base, const MergeSide& ours, const MergeSide& theirs, MergeOutput& output)
{
    const auto textsOf = [](const MergeSide& side) { return side.Texts(side.HeaderLines()); };
    if (textsOf(theirs) == textsOf(base) || textsOf(theirs) == textsOf(ours) || ours.HasSavedHeader())
        return true;
    const bool unchanged = textsOf(ours) == textsOf(base);
    if (!unchanged && theirs.HasSavedHeader())
        return true;
    std::vector<std::string> texts = output.TheirLines(theirs.HeaderLines());
    const bool clean = !output.TakeLossy() && unchanged;
    if (!clean)
        texts = MergeOutput::Conflict(output.OurLines(ours.HeaderLines()), texts);
    if (!ours.HeaderLines().empty()) {
        output.Replace(ours.HeaderLines(), texts);
        return clean;
    }
    output.InsertHeader(std::move(texts));
    return clean;
}

} // namespace

bool MergeOtherLines(const MergeSide& base, const MergeSide& ours, const MergeSide& theirs,
                     MergeOutput& output)
{
    const bool header = MergeHeader(base, ours, theirs, output);
    return OtherLinesMerger(base, ours, theirs, output).Run() && header;
}

} // namespace ov

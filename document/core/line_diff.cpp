#include "document/core/line_diff.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <unordered_map>

namespace ov
{
namespace
{

constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

// A gap without unique lines and with more differing lines than this counts as completely replaced.
constexpr std::size_t kMostDifferences = 400;

// A range of lines in both texts; ends are exclusive.
struct Range {
    std::size_t oldStart;
    std::size_t oldEnd;
    std::size_t newStart;
    std::size_t newEnd;
};

// An unchanged line: its positions in both texts.
struct Match {
    std::size_t oldLine;
    std::size_t newLine;
};

// The longest sequence of matches that ascends in both texts. The input ascends in the new text.
std::vector<Match> LongestAscending(const std::vector<Match>& matches)
{
    std::vector<std::size_t> ends;                            // The best last match for each length.
    std::vector<std::size_t> previous(matches.size(), kNone); // The preceding match in the best sequence.
    for (std::size_t i = 0; i < matches.size(); ++i) {
        const auto place =
            std::lower_bound(ends.begin(), ends.end(), matches[i].oldLine,
                             [&](std::size_t end, std::size_t line) { return matches[end].oldLine < line; });
        if (place != ends.begin())
            previous[i] = *(place - 1);
        if (place == ends.end())
            ends.push_back(i);
        else
            *place = i;
    }
    std::vector<Match> run;
    run.reserve(ends.size());
    for (std::size_t at = ends.empty() ? kNone : ends.back(); at != kNone; at = previous[at])
        run.push_back(matches[at]);
    std::ranges::reverse(run);
    return run;
}

class LineDiffer
{
  public:
    LineDiffer(std::span<const std::string_view> oldLines, std::span<const std::string_view> newLines)
        : m_oldKept(oldLines.size()), m_newKept(newLines.size())
    {
        std::unordered_map<std::string_view, std::uint32_t> numbers;
        const auto number = [&numbers](std::string_view line) {
            return numbers.try_emplace(line, static_cast<std::uint32_t>(numbers.size())).first->second;
        };
        std::transform(oldLines.begin(), oldLines.end(), std::back_inserter(m_old), number);
        std::transform(newLines.begin(), newLines.end(), std::back_inserter(m_new), number);
        m_uses.resize(numbers.size());
    }

    std::vector<LineChange> Run()
    {
        std::vector<Range> open{{0, m_old.size(), 0, m_new.size()}};
        while (!open.empty()) {
            const Range range = KeepEnds(open.back());
            open.pop_back();
            if (range.oldStart == range.oldEnd || range.newStart == range.newEnd)
                continue;
            const std::vector<Match> anchors = LongestAscending(UniqueMatches(range));
            if (anchors.empty())
                KeepFewDifferences(range);
            else
                Divide(range, anchors, open);
        }
        return Changes();
    }

  private:
    // The number of times that a line occurs in a range, and its position in the old text.
    struct Uses {
        std::uint32_t oldCount = 0;
        std::uint32_t newCount = 0;
        std::size_t oldLine = 0;
    };

    void Keep(std::size_t oldLine, std::size_t newLine)
    {
        m_oldKept[oldLine] = true;
        m_newKept[newLine] = true;
    }

    // Keeps the common beginning and end of both parts; returns the range between them.
    Range KeepEnds(Range range)
    {
        while (range.oldStart < range.oldEnd && range.newStart < range.newEnd &&
               m_old[range.oldStart] == m_new[range.newStart])
            Keep(range.oldStart++, range.newStart++);
        while (range.oldStart < range.oldEnd && range.newStart < range.newEnd &&
               m_old[range.oldEnd - 1] == m_new[range.newEnd - 1])
            Keep(--range.oldEnd, --range.newEnd);
        return range;
    }

    // The lines that occur exactly once in both parts, in the order of the new text.
    std::vector<Match> UniqueMatches(const Range& range)
    {
        for (std::size_t i = range.oldStart; i < range.oldEnd; ++i) {
            ++m_uses[m_old[i]].oldCount;
            m_uses[m_old[i]].oldLine = i;
        }
        for (std::size_t i = range.newStart; i < range.newEnd; ++i)
            ++m_uses[m_new[i]].newCount;
        std::vector<Match> matches;
        for (std::size_t i = range.newStart; i < range.newEnd; ++i) {
            const Uses& uses = m_uses[m_new[i]];
            if (uses.oldCount == 1 && uses.newCount == 1)
                matches.push_back({uses.oldLine, i});
        }
        for (std::size_t i = range.oldStart; i < range.oldEnd; ++i)
            m_uses[m_old[i]] = {};
        for (std::size_t i = range.newStart; i < range.newEnd; ++i)
            m_uses[m_new[i]] = {};
        return matches;
    }

    // Keeps the anchors and adds the ranges between them to `open`.
    void Divide(Range range, const std::vector<Match>& anchors, std::vector<Range>& open)
    {
        for (const Match& anchor : anchors) {
            Keep(anchor.oldLine, anchor.newLine);
            open.push_back({range.oldStart, anchor.oldLine, range.newStart, anchor.newLine});
            range.oldStart = anchor.oldLine + 1;
            range.newStart = anchor.newLine + 1;
        }
        open.push_back(range);
    }

    // Finds the smallest difference by extending paths of 0, 1, 2, ... differences as far as possible.
    // The furthest positions of each round are stored for tracing the path back.
    void KeepFewDifferences(const Range& range)
    {
        const std::size_t oldCount = range.oldEnd - range.oldStart;
        const std::size_t newCount = range.newEnd - range.newStart;
        const std::size_t most = std::min(oldCount + newCount, kMostDifferences);
        // On diagonal k the old position exceeds the new one by k; `reach[k + most + 1]` is the old position.
        std::vector<std::size_t> reach(2 * most + 3);
        std::vector<std::vector<std::size_t>> rounds;
        for (std::size_t differences = 0; differences <= most; ++differences) {
            rounds.push_back(reach);
            for (std::size_t step = 0; step <= differences; ++step) {
                const std::size_t at = most + 1 + 2 * step - differences;
                std::size_t x = step == 0 || (step < differences && reach[at - 1] < reach[at + 1])
                                    ? reach[at + 1]
                                    : reach[at - 1] + 1;
                // The new position. It is out of range where the diagonal leaves both texts.
                std::size_t y = x + most + 1 - at;
                while (x < oldCount && y < newCount &&
                       m_old[range.oldStart + x] == m_new[range.newStart + y]) {
                    ++x;
                    ++y;
                }
                reach[at] = x;
                if (x == oldCount && y == newCount) {
                    WalkBack(range, rounds, most);
                    return;
                }
            }
        }
    }

    void WalkBack(const Range& range, const std::vector<std::vector<std::size_t>>& rounds, std::size_t most)
    {
        std::size_t x = range.oldEnd - range.oldStart;
        std::size_t y = range.newEnd - range.newStart;
        for (std::size_t differences = rounds.size() - 1; differences > 0; --differences) {
            const std::vector<std::size_t>& reach = rounds[differences];
            const std::size_t at = most + 1 + x - y;
            const std::size_t lowest = most + 1 - differences;
            const bool inserted =
                at == lowest || (at < most + 1 + differences && reach[at - 1] < reach[at + 1]);
            const std::size_t from = inserted ? at + 1 : at - 1;
            const std::size_t fromX = reach[from];
            const std::size_t fromY = fromX + most + 1 - from;
            const std::size_t startX = inserted ? fromX : fromX + 1;
            for (; x > startX; --x, --y)
                Keep(range.oldStart + x - 1, range.newStart + y - 1);
            x = fromX;
            y = fromY;
        }
        for (; x > 0 && y > 0; --x, --y)
            Keep(range.oldStart + x - 1, range.newStart + y - 1);
    }

    std::vector<LineChange> Changes() const
    {
        std::vector<LineChange> changes;
        std::size_t oldLine = 0;
        std::size_t newLine = 0;
        while (oldLine < m_old.size() || newLine < m_new.size()) {
            LineChange change{oldLine, 0, newLine, 0};
            while (oldLine < m_old.size() && !m_oldKept[oldLine])
                ++oldLine;
            while (newLine < m_new.size() && !m_newKept[newLine])
                ++newLine;
            change.oldCount = oldLine - change.oldStart;
            change.newCount = newLine - change.newStart;
            if (change.oldCount > 0 || change.newCount > 0)
                changes.push_back(change);
            if (oldLine < m_old.size()) {
                ++oldLine;
                ++newLine;
            }
        }
        return changes;
    }

    std::vector<std::uint32_t> m_old; // A number for each line; equal lines have equal numbers.
    std::vector<std::uint32_t> m_new;
    std::vector<bool> m_oldKept;
    std::vector<bool> m_newKept;
    std::vector<Uses> m_uses; // By line number; empty between two uses.
};

} // namespace

std::vector<std::string_view> LinesWithEnds(std::string_view bytes)
{
    std::vector<std::string_view> lines;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        const std::size_t length = end == std::string_view::npos ? bytes.size() : end + 1;
        lines.push_back(bytes.substr(0, length));
        bytes.remove_prefix(length);
    }
    return lines;
}

std::vector<LineChange> DiffLines(std::span<const std::string_view> oldLines,
                                  std::span<const std::string_view> newLines)
{
    return LineDiffer(oldLines, newLines).Run();
}

} // namespace ov

#include "document/core/unified_diff.h"

#include "document/core/line_diff.h"

#include <algorithm>

namespace ov
{
namespace
{

constexpr std::size_t kContext = 3;

using Lines = std::vector<std::string_view>;

// After a name with blanks `patch` needs a tab to find the end of the name.
std::string NameLine(std::string_view mark, std::string_view name)
{
    const bool hasBlank = name.find_first_of(" \t") != std::string_view::npos;
    return std::string(mark) + " " + std::string(name) + (hasBlank ? "\t\n" : "\n");
}

// "3,7": the first line and the number of lines. An empty range has the number of the line before it; a
// single line has no count.
std::string RangeText(std::size_t start, std::size_t count)
{
    const std::string first = std::to_string(count == 0 ? start : start + 1);
    return count == 1 ? first : first + "," + std::to_string(count);
}

void AppendLines(std::string& out, char mark, const Lines& lines, std::size_t start, std::size_t end)
{
    for (std::size_t i = start; i < end; ++i) {
        out.push_back(mark);
        out.append(lines[i]);
        if (lines[i].back() != '\n')
            out.append("\n\\ No newline at end of file\n");
    }
}

// Appends the changes of one hunk, with the common lines around and between them.
void AppendPiece(std::string& out, const Lines& oldLines, const Lines& newLines,
                 const std::vector<LineChange>& changes, std::size_t first, std::size_t last)
{
    const LineChange& front = changes[first];
    const LineChange& back = changes[last];
    const std::size_t before = std::min(kContext, front.oldStart);
    const std::size_t backEnd = back.oldStart + back.oldCount;
    const std::size_t after = std::min(kContext, oldLines.size() - backEnd);
    const std::size_t oldStart = front.oldStart - before;
    const std::size_t newStart = front.newStart - before;
    out.append("@@ -").append(RangeText(oldStart, backEnd + after - oldStart));
    out.append(" +").append(RangeText(newStart, back.newStart + back.newCount + after - newStart));
    out.append(" @@\n");
    std::size_t at = oldStart;
    for (std::size_t i = first; i <= last; ++i) {
        const LineChange& change = changes[i];
        AppendLines(out, ' ', oldLines, at, change.oldStart);
        at = change.oldStart + change.oldCount;
        AppendLines(out, '-', oldLines, change.oldStart, at);
        AppendLines(out, '+', newLines, change.newStart, change.newStart + change.newCount);
    }
    AppendLines(out, ' ', oldLines, at, at + after);
}

} // namespace

std::string UnifiedDiff(std::string_view oldBytes, std::string_view newBytes, std::string_view oldName,
                        std::string_view newName)
{
    const Lines oldLines = LinesWithEnds(oldBytes);
    const Lines newLines = LinesWithEnds(newBytes);
    const std::vector<LineChange> changes = DiffLines(oldLines, newLines);
    if (changes.empty())
        return {};
    std::string out = NameLine("---", oldName) + NameLine("+++", newName);
    for (std::size_t first = 0; first < changes.size();) {
        std::size_t last = first;
        while (last + 1 < changes.size() &&
               changes[last + 1].oldStart - changes[last].oldStart - changes[last].oldCount <= 2 * kContext)
            ++last;
        AppendPiece(out, oldLines, newLines, changes, first, last);
        first = last + 1;
    }
    return out;
}

} // namespace ov

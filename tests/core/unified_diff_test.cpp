#include "document/core/line_diff.h"
#include "document/core/unified_diff.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace ov
{
namespace
{

std::string Diff(std::string_view oldBytes, std::string_view newBytes)
{
    return UnifiedDiff(oldBytes, newBytes, "old", "new");
}

// Removes and returns the number at the beginning of the text.
std::size_t TakeNumber(std::string_view& text)
{
    std::size_t number = 0;
    for (; !text.empty() && text.front() >= '0' && text.front() <= '9'; text.remove_prefix(1))
        number = number * 10 + static_cast<std::size_t>(text.front() - '0');
    return number;
}

// Applies a unified difference strictly, and fails the test if it does not fit.
std::string Apply(std::string_view oldBytes, const std::string& diff)
{
    const auto oldLines = LinesWithEnds(oldBytes);
    const auto lines = LinesWithEnds(diff);
    std::string result;
    std::size_t at = 0;
    for (std::size_t i = 2; i < lines.size(); ++i) {
        std::string_view line = lines[i];
        if (line.starts_with("@@ -")) {
            line.remove_prefix(4);
            const std::size_t first = TakeNumber(line);
            const bool none = line.starts_with(",0 ");
            for (const std::size_t start = none ? first : first - 1; at < start; ++at)
                result += oldLines[at];
            continue;
        }
        std::string text(line.substr(1));
        if (i + 1 < lines.size() && lines[i + 1].starts_with("\\ ")) {
            text.pop_back();
            ++i;
        }
        if (line.front() != '+') {
            EXPECT_LT(at, oldLines.size());
            EXPECT_EQ(oldLines[at], text);
            ++at;
        }
        if (line.front() != '-')
            result += text;
    }
    for (; at < oldLines.size(); ++at)
        result += oldLines[at];
    return result;
}

TEST(UnifiedDiff, EqualFilesHaveNone)
{
    EXPECT_EQ(Diff("", ""), "");
    EXPECT_EQ(Diff("a\nb", "a\nb"), "");
}

TEST(UnifiedDiff, ShowsThreeLinesAroundAChange)
{
    EXPECT_EQ(Diff("1\n2\n3\n4\n5\n6\n7\n8\n9\n", "1\n2\n3\n4\nfive\n6\n7\n8\n9\n"),
              "--- old\n+++ new\n@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+five\n 6\n 7\n 8\n");
}

TEST(UnifiedDiff, JoinsChangesWhoseSurroundingsTouch)
{
    EXPECT_EQ(Diff("a\n1\n2\n3\n4\n5\n6\nb\n", "A\n1\n2\n3\n4\n5\n6\nB\n"),
              "--- old\n+++ new\n@@ -1,8 +1,8 @@\n-a\n+A\n 1\n 2\n 3\n 4\n 5\n 6\n-b\n+B\n");
    EXPECT_EQ(Diff("a\n1\n2\n3\n4\n5\n6\n7\nb\n", "A\n1\n2\n3\n4\n5\n6\n7\nB\n"),
              "--- old\n+++ new\n@@ -1,4 +1,4 @@\n-a\n+A\n 1\n 2\n 3\n@@ -6,4 +6,4 @@\n 5\n 6\n 7\n-b\n+B\n");
}

TEST(UnifiedDiff, NamesAnEmptyRunByTheLineBeforeIt)
{
    EXPECT_EQ(Diff("", "a\n"), "--- old\n+++ new\n@@ -0,0 +1 @@\n+a\n");
    EXPECT_EQ(Diff("a\nb\n", ""), "--- old\n+++ new\n@@ -1,2 +0,0 @@\n-a\n-b\n");
}

TEST(UnifiedDiff, SaysWhereTheLastLineHasNoEnd)
{
    EXPECT_EQ(Diff("a\nb", "a\nb\n"),
              "--- old\n+++ new\n@@ -1,2 +1,2 @@\n a\n-b\n\\ No newline at end of file\n+b\n");
}

TEST(UnifiedDiff, LineEndsAndOtherBytesAreParts)
{
    EXPECT_EQ(Diff("a\r\n", "a\n"), "--- old\n+++ new\n@@ -1 +1 @@\n-a\r\n+a\n");
    EXPECT_EQ(Diff("\xE4\n", "\xF6\n"), "--- old\n+++ new\n@@ -1 +1 @@\n-\xE4\n+\xF6\n");
}

TEST(UnifiedDiff, NameWithABlankEndsInATab)
{
    EXPECT_EQ(UnifiedDiff("a\n", "", "my file", "b"), "--- my file\t\n+++ b\n@@ -1 +0,0 @@\n-a\n");
}

TEST(LineDiff, LinesThatOccurOnceAreKeptWhereOthersMoved)
{
    const std::vector<std::string_view> oldLines{"#", "a", "#", "b", "#", "c"};
    const std::vector<std::string_view> newLines{"#", "c", "#", "a", "#", "b"};
    const std::vector<LineChange> expected{{1, 0, 1, 2}, {4, 2, 6, 0}};
    EXPECT_EQ(DiffLines(oldLines, newLines), expected);
}

TEST(LineDiff, HugeFilesWithoutACommonOrderAreDone)
{
    std::vector<std::string> texts;
    for (int i = 0; i < 30000; ++i)
        texts.push_back(std::to_string(i % 97) + "\n");
    std::vector<std::string_view> oldLines(texts.begin(), texts.end());
    std::vector<std::string_view> newLines(texts.rbegin(), texts.rend());
    std::size_t kept = oldLines.size();
    for (const LineChange& change : DiffLines(oldLines, newLines))
        kept -= change.oldCount;
    EXPECT_LT(kept, oldLines.size());
}

TEST(UnifiedDiff, AppliedToRandomFilesGivesTheNewOnes)
{
    std::mt19937 random(20260616);
    const auto pick = [&random](std::size_t count) { return random() % count; };
    for (int round = 0; round < 2000; ++round) {
        const std::size_t words = std::vector<std::size_t>{1, 3, 40, 5000}[pick(4)];
        std::vector<std::string> lines(pick(120));
        const auto line = [&] { return std::to_string(pick(words)) + (pick(4) == 0 ? "\r\n" : "\n"); };
        for (std::string& text : lines)
            text = line();
        const auto join = [&] {
            std::string bytes;
            for (const std::string& text : lines)
                bytes += text;
            if (!bytes.empty() && pick(3) == 0)
                bytes.pop_back();
            return bytes;
        };
        const std::string oldBytes = join();
        for (std::size_t edits = pick(12); edits > 0; --edits) {
            const auto place = lines.begin() + static_cast<std::ptrdiff_t>(pick(lines.size() + 1));
            if (pick(2) == 0 || place == lines.end())
                lines.insert(place, line());
            else
                lines.erase(place);
        }
        const std::string newBytes = join();
        const std::string diff = Diff(oldBytes, newBytes);
        ASSERT_EQ(diff.empty(), oldBytes == newBytes);
        ASSERT_EQ(diff.empty() ? oldBytes : Apply(oldBytes, diff), newBytes) << diff;
    }
}

} // namespace
} // namespace ov

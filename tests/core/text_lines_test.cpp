#include "config/core/file_lines.h"
#include "config/core/text_lines.h"
#include "tests/core/memory_file_port.h"
#include "tests/core/scoped_locale.h"

#include <gtest/gtest.h>

namespace ov
{
namespace
{

std::vector<std::string> Split(std::string_view bytes, std::size_t blockSize)
{
    std::vector<std::string> lines;
    const auto add = [&lines](std::string_view line) { lines.emplace_back(line); };
    LineSplitter splitter;
    for (std::size_t at = 0; at < bytes.size(); at += blockSize)
        splitter.Feed(bytes.substr(at, blockSize), add);
    splitter.Finish(add);
    return lines;
}

TEST(LineSplitter, BothLineEndsAreLeftOutHoweverTheBlocksFall)
{
    const std::vector<std::string> expected{"a", "", "b\rc", "d\r", "\x1Ax"};
    for (std::size_t blockSize = 1; blockSize < 20; ++blockSize)
        EXPECT_EQ(Split("a\n\r\nb\rc\r\nd\r\r\n\x1Ax", blockSize), expected);
}

TEST(LineSplitter, FinalLineEndOpensNoFurtherLine)
{
    EXPECT_EQ(Split("", 1), std::vector<std::string>{});
    EXPECT_EQ(Split("\n", 1), std::vector<std::string>{""});
    EXPECT_EQ(Split("a\r", 1), std::vector<std::string>{"a\r"});
}

TEST(TextLines, FileIsReadIntoALineEach)
{
    const test::ScopedLocale locale("C");
    test::MemoryFilePort files;
    files.contents[u"f"] = "one\r\n\r\n\xE9\n";
    std::vector<Text> lines{u"old"};
    EXPECT_TRUE(ReadLines(files, u"f", lines));
    EXPECT_EQ(lines, (std::vector<Text>{u"one", u"", u"\u00E9"}));
    EXPECT_EQ(files.openFiles, 0);
}

TEST(TextLines, FileThatCannotBeReadLeavesTheLines)
{
    test::MemoryFilePort files;
    std::vector<Text> lines{u"old"};
    const FileResult result = ReadLines(files, u"missing", lines);
    EXPECT_FALSE(result);
    EXPECT_EQ(result.systemText, test::kFaultText);
    EXPECT_EQ(lines, std::vector<Text>{u"old"});
}

TEST(TextLines, EveryLineBreakIsWrittenAsCrLf)
{
    const test::ScopedLocale locale("C");
    test::MemoryFilePort files;
    files.contents[u"f"] = "something longer that stood there before";
    EXPECT_TRUE(WriteLines(files, u"f", std::vector<Text>{u"one\ntwo", u"", u"\u00E9"}));
    EXPECT_EQ(files.contents[u"f"], "one\r\ntwo\r\n\r\n\xE9\r\n");
}

TEST(TextLines, CharacterThatCannotBeWrittenLeavesTheFile)
{
    const test::ScopedLocale locale("C");
    test::MemoryFilePort files;
    files.contents[u"f"] = "old";
    EXPECT_FALSE(WriteLines(files, u"f", std::vector<Text>{u"\u20AC"}));
    EXPECT_EQ(files.contents[u"f"], "old");
}

TEST(TextLines, EveryFailureOfWritingIsReported)
{
    const test::ScopedLocale locale("C");
    for (const int call : {1, 2, 3}) { // create, write, close
        test::MemoryFilePort files;
        files.failing = {call};
        EXPECT_FALSE(WriteLines(files, u"f", std::vector<Text>{u"a"})) << call;
        EXPECT_EQ(files.openFiles, 0);
    }
}

} // namespace
} // namespace ov

#include "inspect/core/list_merge.h"
#include "tests/core/slow_merge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace ov
{
namespace
{

using test::EntriesOfLetters;

// The letters of the merged list; "conflict" without one.
std::string Lists(const std::string& base, const std::string& ours, const std::string& theirs)
{
    const auto merged =
        MergeEntries(EntriesOfLetters(base), EntriesOfLetters(ours), EntriesOfLetters(theirs), {});
    if (!merged)
        return "conflict";
    std::string letters = Utf8FromText(JoinEntries(*merged, {}));
    std::erase(letters, ';');
    return letters;
}

TEST(MergeEntries, TakesWhatEitherSideAddedOrRemoved)
{
    EXPECT_EQ(Lists("abc", "abc", "abc"), "abc");
    EXPECT_EQ(Lists("abc", "ac", "abcd"), "acd");
    EXPECT_EQ(Lists("abc", "abxc", "aybc"), "aybxc");
    EXPECT_EQ(Lists("abc", "", "abcd"), "d");
    EXPECT_EQ(Lists("", "ab", "bc"), "abc");
    EXPECT_EQ(Lists("aa", "aaa", "a"), "aa");
}

TEST(MergeEntries, TakesTheOrderOfTheSideThatChangedIt)
{
    EXPECT_EQ(Lists("abc", "cab", "abcd"), "cdab");
    EXPECT_EQ(Lists("abc", "abcd", "cab"), "cdab");
    EXPECT_EQ(Lists("abc", "cab", "cab"), "cab");
    EXPECT_EQ(Lists("abc", "cab", "bca"), "conflict");
}

TEST(MergeEntries, AnEntryKeepsItsBlanksAndQualifiers)
{
    const auto merged = MergeEntries({u"a"}, {u" a ", u"b"}, {u"\"a\"", u"c"}, {});
    ASSERT_TRUE(merged);
    EXPECT_EQ(*merged, (ListEntries{u" a ", u"c", u"b"}));
}

TEST(MergeEntries, IsAsTheSlowModelSays)
{
    std::mt19937 random(20'261'122);
    const auto list = [&random](std::string letters) {
        std::shuffle(letters.begin(), letters.end(), random);
        letters.resize(random() % (letters.size() + 1));
        if (random() % 3 != 0)
            std::sort(letters.begin(), letters.end());
        return letters;
    };
    int conflicts = 0;
    for (int round = 0; round < 2000; ++round) {
        const std::string base = list("abcdef");
        const std::string ours = list("abcdefgh");
        const std::string theirs = list("abcdefhi");
        const std::string expected = test::SlowLists(base, ours, theirs).value_or("conflict");
        ASSERT_EQ(Lists(base, ours, theirs), expected) << base << " " << ours << " " << theirs;
        conflicts += expected == "conflict" ? 1 : 0;
    }
    EXPECT_GT(conflicts, 15);
}

} // namespace
} // namespace ov

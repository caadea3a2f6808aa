#include "config/core/setting_comment.h"

#include <gtest/gtest.h>

namespace ov
{
namespace
{

Text Words(int count, const Text& word)
{
    Text text;
    for (int i = 0; i < count; ++i)
        text += (i > 0 ? u" " : u"") + word;
    return text;
}

TEST(SettingComment, DescriptionStandsBetweenTwoNumberSigns)
{
    EXPECT_EQ(MakeCommentBlock(u"What it does."), u"\n#\n# What it does.\n#\n");
}

TEST(SettingComment, EmptyDescriptionStillGivesTheBlock)
{
    EXPECT_EQ(MakeCommentBlock(u""), u"\n#\n# \n#\n");
}

TEST(SettingComment, LineBreaksBecomeCommentLines)
{
    EXPECT_EQ(MakeCommentBlock(u"one\r\ntwo\n\nthree\r"), u"\n#\n# one\n# two\n# \n# three\n#\n");
}

TEST(SettingComment, DescriptionOf250CharactersIsWrappedBeforeEach100ColumnMark)
{
    // Words of 9 characters and a blank: the blanks are at 9, 19, ... 249.
    const Text description = Words(25, u"abcdefghi") + u" ";
    ASSERT_EQ(description.size(), 250u);
    const Text tenWords = Words(10, u"abcdefghi");
    EXPECT_EQ(MakeCommentBlock(description),
              u"\n#\n# " + tenWords + u"\n# " + tenWords + u"\n# " + Words(5, u"abcdefghi") + u" \n#\n");
}

TEST(SettingComment, LineOf100CharactersIsNotWrapped)
{
    const Text line = Text(49, u'a') + u" " + Text(50, u'b');
    EXPECT_EQ(MakeCommentBlock(line), u"\n#\n# " + line + u"\n#\n");
    EXPECT_EQ(MakeCommentBlock(line + u"b"),
              u"\n#\n# " + Text(49, u'a') + u"\n# " + Text(51, u'b') + u"\n#\n");
}

TEST(SettingComment, BlankBehind100CharactersIsUsed)
{
    EXPECT_EQ(MakeCommentBlock(Text(100, u'a') + u" b"), u"\n#\n# " + Text(100, u'a') + u"\n# b\n#\n");
}

TEST(SettingComment, LongWordStaysWhole)
{
    EXPECT_EQ(MakeCommentBlock(u"ab " + Text(150, u'x') + u" cd"),
              u"\n#\n# ab\n# " + Text(150, u'x') + u"\n# cd\n#\n");
    EXPECT_EQ(MakeCommentBlock(Text(150, u'x')), u"\n#\n# " + Text(150, u'x') + u"\n#\n");
}

TEST(SettingComment, BlankAtTheFrontIsNeverUsed)
{
    EXPECT_EQ(MakeCommentBlock(u" " + Text(120, u'x')), u"\n#\n#  " + Text(120, u'x') + u"\n#\n");
}

TEST(SettingComment, LineBreakRestartsTheColumns)
{
    const Text line = Words(9, u"abcdefghi");
    EXPECT_EQ(MakeCommentBlock(line + u"\n" + line), u"\n#\n# " + line + u"\n# " + line + u"\n#\n");
}

TEST(SettingComment, BlankBeforeALineBreakIsStillRemembered)
{
    EXPECT_EQ(MakeCommentBlock(u"ab cd\n" + Text(101, u'x')),
              u"\n#\n# ab\n# cd\n# " + Text(101, u'x') + u"\n#\n");
}

TEST(SettingComment, ColumnsRestartAtTheDistanceFromTheWrap)
{
    // The 101st character is 20 after the blank that is replaced: 80 more fit into the second line.
    const Text first(80, u'a');
    const Text second = Text(60, u'b') + u" " + Text(39, u'c');
    EXPECT_EQ(MakeCommentBlock(first + u" " + second), u"\n#\n# " + first + u"\n# " + second + u"\n#\n");
    EXPECT_EQ(MakeCommentBlock(first + u" " + second + u"c"),
              u"\n#\n# " + first + u"\n# " + Text(60, u'b') + u"\n# " + Text(40, u'c') + u"\n#\n");
}

} // namespace
} // namespace ov

#include "config/core/compact_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace ov
{
namespace
{

TEST(CompactView, FormMakesNoDifferenceToTheContent)
{
    const CompactView narrow = CompactView::OfBytes("a\xE9");
    const CompactView wide = u"a\u00E9";
    EXPECT_TRUE(narrow.IsNarrow());
    EXPECT_FALSE(wide.IsNarrow());
    EXPECT_TRUE(narrow == wide);
    EXPECT_TRUE(wide == narrow);
    EXPECT_EQ(Text(narrow), Text(wide));
    EXPECT_EQ(narrow[1], u'\u00E9');
    EXPECT_EQ(wide[1], u'\u00E9');
}

TEST(CompactView, EmptyTextsAreEqualInBothForms)
{
    EXPECT_TRUE(CompactView() == CompactView(u""));
    EXPECT_TRUE(CompactView().IsNarrow());
    EXPECT_TRUE(CompactView().empty());
    EXPECT_EQ(Text(CompactView()), u"");
}

TEST(CompactView, OrderIsThatOfTheUnitsInWhateverForm)
{
    const std::vector<Text> ordered{u"", Text(1, u'\0'), u"A", u"AB", u"a", u"\u0080", u"\u00FF"};
    for (const Text& first : ordered) {
        for (const Text& second : ordered) {
            const std::string firstBytes(first.begin(), first.end());
            const std::string secondBytes(second.begin(), second.end());
            const auto a = CompactView::OfBytes(firstBytes);
            const auto b = CompactView::OfBytes(secondBytes);
            EXPECT_EQ(a <=> b, first <=> second);
            EXPECT_EQ(a <=> CompactView(second), first <=> second);
            EXPECT_EQ(CompactView(first) <=> b, first <=> second);
            EXPECT_EQ(CompactView(first) <=> CompactView(second), first <=> second);
            EXPECT_EQ(a == CompactView(second), first == second);
        }
    }
    EXPECT_TRUE(CompactView::OfBytes("\xFF\xFF") < CompactView(u"\u0100"));
    EXPECT_TRUE(CompactView(u"\u0100") > CompactView::OfBytes("\xFF\xFF"));
}

TEST(CompactView, UnitsAreFoundInBothForms)
{
    EXPECT_TRUE(CompactView::OfBytes("a;\xE9").Contains(u';'));
    EXPECT_TRUE(CompactView::OfBytes("a;\xE9").Contains(u'\u00E9'));
    EXPECT_FALSE(CompactView::OfBytes("a;\xE9").Contains(u'\u01E9')); // the same low byte
    EXPECT_TRUE(CompactView(u"a\u01E9").Contains(u'\u01E9'));
    EXPECT_FALSE(CompactView(u"a\u01E9").Contains(u'\u00E9'));
}

TEST(CompactView, OnlyUnitsAbove255NeedTheWideForm)
{
    EXPECT_TRUE(CompactView(u"\u00FF").FitsNarrow());
    EXPECT_FALSE(CompactView(u"abc\u0100").FitsNarrow());
    EXPECT_TRUE(CompactView(u"").FitsNarrow());
}

TEST(CompactView, CopiesKeepTheContentInEitherForm)
{
    alignas(char16_t) char room[16];
    EXPECT_TRUE(CopyUnits(u"a\u00E9", true, room) == CompactView(u"a\u00E9"));
    EXPECT_EQ(std::string(room, 2), "a\xE9");
    EXPECT_TRUE(CopyUnits(CompactView::OfBytes("a\xE9"), false, room) == CompactView(u"a\u00E9"));
    EXPECT_TRUE(CopyUnits(u"\u20AC", false, room) == CompactView(u"\u20AC"));
}

} // namespace
} // namespace ov

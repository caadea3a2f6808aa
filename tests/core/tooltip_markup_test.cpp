#include "controls/core/tooltip_markup.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

using namespace ov;

constexpr TextView wildcardText =
    u"<T>_ORTHOVAL_WILDCARD_TYPE<H>String Widlcard Type<D>Selects the type.\r\n\tOne of six.";

Text First(TextView text, TooltipSection section)
{
    std::size_t position = 0;
    return Text(ExtractSection(text, section, position));
}

TEST(TooltipMarkup, TagsStandInTheirOrder)
{
    EXPECT_EQ(TooltipTags[0], u"<H>");
    EXPECT_EQ(TooltipTags[1], u"<T>");
    EXPECT_EQ(TooltipTags[2], u"<D>");
    EXPECT_EQ(TooltipTags[3], u"<S>");
    EXPECT_EQ(static_cast<int>(TooltipSection::Heading), 0);
    EXPECT_EQ(static_cast<int>(TooltipSection::Variable), 1);
    EXPECT_EQ(static_cast<int>(TooltipSection::Description), 2);
    EXPECT_EQ(static_cast<int>(TooltipSection::SubHeading), 3);
}

TEST(TooltipMarkup, SectionsRunToTheNextTagOrTheEnd)
{
    EXPECT_EQ(First(wildcardText, TooltipSection::Variable), u"_ORTHOVAL_WILDCARD_TYPE");
    EXPECT_EQ(First(wildcardText, TooltipSection::Heading), u"String Widlcard Type");
    EXPECT_EQ(First(wildcardText, TooltipSection::Description), u"Selects the type.\r\n\tOne of six.");
}

TEST(TooltipMarkup, ButtonTextHasNoVariableName)
{
    constexpr TextView text = u"<H>OK<D>Saves the changes and closes the dialog.";
    EXPECT_EQ(VariableName(text), u"");
    EXPECT_EQ(Description(text), u"Saves the changes and closes the dialog.");
}

TEST(TooltipMarkup, VariableTagAloneGivesAnEmptyDescription)
{
    EXPECT_EQ(Description(u"<T>"), u"");
    EXPECT_EQ(VariableName(u"<T>"), u"");
    EXPECT_EQ(Description(u"<T>_ORTHOVAL_CHECK_CELLS"), u"");
    EXPECT_EQ(VariableName(u"<T>_ORTHOVAL_CHECK_CELLS"), u"_ORTHOVAL_CHECK_CELLS");
}

TEST(TooltipMarkup, TagsMatchWithoutRegardToCase)
{
    EXPECT_EQ(VariableName(u"<t>NAME<h>Heading<d>text"), u"NAME");
    EXPECT_EQ(Description(u"<T>NAME<h>Heading<d>text"), u"text");
}

TEST(TooltipMarkup, DescriptionIsTheFirstOne)
{
    EXPECT_EQ(Description(u"<D>one<S>sub<D>two"), u"one");
}

TEST(TooltipMarkup, PositionMovesToTheNextTag)
{
    std::size_t position = 0;
    EXPECT_EQ(ExtractSection(wildcardText, TooltipSection::Variable, position), u"_ORTHOVAL_WILDCARD_TYPE");
    EXPECT_EQ(position, wildcardText.find(u"<H>"));
    EXPECT_EQ(ExtractSection(wildcardText, TooltipSection::Heading, position), u"String Widlcard Type");
    EXPECT_EQ(position, wildcardText.find(u"<D>"));
}

TEST(TooltipMarkup, PositionMovesToTheEndBehindTheLastSection)
{
    std::size_t position = 0;
    ExtractSection(wildcardText, TooltipSection::Description, position);
    EXPECT_EQ(position, wildcardText.size());
}

TEST(TooltipMarkup, SuccessiveCallsWalkRepeatedSections)
{
    constexpr TextView text = u"<H>h<D>one<S>first<D>two<S>second<D>three";
    std::vector<Text> descriptions;
    std::size_t position = 0;
    for (std::size_t before = 0;; before = position) {
        const TextView section = ExtractSection(text, TooltipSection::Description, position);
        if (position == before)
            break;
        descriptions.emplace_back(section);
    }
    EXPECT_EQ(descriptions, (std::vector<Text>{u"one", u"two", u"three"}));
}

TEST(TooltipMarkup, SubHeadingsAndDescriptionsAlternateOverOnePosition)
{
    constexpr TextView text = u"<S>first<D>one<S>second<D>two";
    std::size_t position = 0;
    EXPECT_EQ(ExtractSection(text, TooltipSection::SubHeading, position), u"first");
    EXPECT_EQ(ExtractSection(text, TooltipSection::Description, position), u"one");
    EXPECT_EQ(ExtractSection(text, TooltipSection::SubHeading, position), u"second");
    EXPECT_EQ(ExtractSection(text, TooltipSection::Description, position), u"two");
    EXPECT_EQ(position, text.size());
}

TEST(TooltipMarkup, TagThatFollowsAtOnceMakesTheSectionEmpty)
{
    constexpr TextView text = u"<S><D>text<S>second";
    std::size_t position = 0;
    EXPECT_EQ(ExtractSection(text, TooltipSection::SubHeading, position), u"");
    EXPECT_EQ(position, 3u);
    EXPECT_EQ(ExtractSection(text, TooltipSection::Description, position), u"text");
    EXPECT_EQ(ExtractSection(text, TooltipSection::SubHeading, position), u"second");
}

TEST(TooltipMarkup, EmptySectionsOfOneKindAreWalkedOneByOne)
{
    constexpr TextView text = u"<D><D>x";
    std::size_t position = 0;
    EXPECT_EQ(ExtractSection(text, TooltipSection::Description, position), u"");
    EXPECT_EQ(position, 3u);
    EXPECT_EQ(ExtractSection(text, TooltipSection::Description, position), u"x");
}

TEST(TooltipMarkup, MissingTagGivesAnEmptySectionAndLeavesThePosition)
{
    std::size_t position = 2;
    EXPECT_EQ(ExtractSection(u"<H>heading only", TooltipSection::SubHeading, position), u"");
    EXPECT_EQ(position, 2u);
    EXPECT_EQ(Description(u""), u"");
    EXPECT_EQ(Description(u"no tag at all"), u"");
}

TEST(TooltipMarkup, TagAtThePositionIsFoundAndOneBeforeItIsNot)
{
    constexpr TextView text = u"<D>one<H>h";
    std::size_t position = 1;
    EXPECT_EQ(ExtractSection(text, TooltipSection::Description, position), u"");
    EXPECT_EQ(ExtractSection(text, TooltipSection::Heading, position), u"h");
    position = text.find(u"<H>");
    EXPECT_EQ(ExtractSection(text, TooltipSection::Heading, position), u"h");
}

TEST(TooltipMarkup, PositionBeyondTheTextFindsNothing)
{
    std::size_t position = 100;
    EXPECT_EQ(ExtractSection(u"<D>one", TooltipSection::Description, position), u"");
    EXPECT_EQ(position, 100u);
}

TEST(TooltipMarkup, OtherAngleBracketsBelongToTheSection)
{
    EXPECT_EQ(Description(u"<D>a < b <X> <D"), u"a < b <X> <D");
    EXPECT_EQ(Description(u"<D>use <b>bold</b><H>x"), u"use <b>bold</b>");
}

} // namespace

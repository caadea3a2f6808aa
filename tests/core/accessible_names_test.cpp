// The accessible names of controls that no visible text describes.
#include "controls/core/accessible_names.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using enum ov::ControlRole;

std::vector<std::string> Names(const std::vector<ov::ControlToName>& controls)
{
    std::vector<std::string> names;
    for (const ov::Text& name : ov::NamesToGive(controls))
        names.push_back(ov::Utf8FromText(name));
    return names;
}

using Expected = std::vector<std::string>;

TEST(AccessibleNames, CaptionsAndLabelsNeedNoOther)
{
    EXPECT_EQ(Names({{Label, u"Users File", u""},
                     {Input, u"", u""},
                     {Box, u"Check text", u""},
                     {Radio, u"None", u""},
                     {Button, u"&Save", u""}}),
              (Expected{"", "", "", "", ""}));
}

TEST(AccessibleNames, AButtonWithoutWordsIsNamedAfterTheInputBeforeIt)
{
    EXPECT_EQ(Names({{Label, u"Users File", u""},
                     {Input, u"", u""},
                     {Button, u"...", u"Browse for %1"},
                     {Label, u"&Config File:", u""},
                     {Input, u"", u""},
                     {Button, u"", u"Browse for %1"}}),
              (Expected{"", "", "Browse for Users File", "", "", "Browse for Config File"}));
}

TEST(AccessibleNames, AButtonWithWordsKeepsThem)
{
    EXPECT_EQ(Names({{Button, u"Define...", u"Browse for %1"}}), (Expected{""}));
}

TEST(AccessibleNames, AnUpDownControlIsNamedAfterItsInput)
{
    EXPECT_EQ(Names({{Label, u"Debug Level", u""}, {Input, u"", u""}, {UpDown, u"", u""}}),
              (Expected{"", "", "Debug Level"}));
}

TEST(AccessibleNames, AnInputAfterABoxIsNamedAfterTheBox)
{
    EXPECT_EQ(Names({{Frame, u"Title Block Tags", u""},
                     {Box, u"Required Tags", u""},
                     {Input, u"", u""},
                     {Button, u"...", u"Edit the entries of %1"}}),
              (Expected{"", "", "Required Tags", "Edit the entries of Required Tags"}));
}

TEST(AccessibleNames, AnInputAfterRadioButtonsIsNamedAfterTheirFrame)
{
    EXPECT_EQ(Names({{Frame, u"Default Report Name", u""},
                     {Radio, u"None", u""},
                     {Radio, u"User defined", u""},
                     {Input, u"", u""}}),
              (Expected{"", "", "", "Default Report Name"}));
    EXPECT_EQ(Names({{Radio, u"User defined", u""}, {Input, u"", u""}}), (Expected{"", "User defined"}));
}

TEST(AccessibleNames, OnlyTheInputRightAfterALabelHasIt)
{
    EXPECT_EQ(Names({{Label, u"Weight", u""}, {Input, u"", u""}, {Input, u"", u""}}),
              (Expected{"", "", "Weight"}));
}

TEST(AccessibleNames, AGivenNameCountsMoreThanWhatIsFound)
{
    EXPECT_EQ(Names({{Box, u"", u"Second date"},
                     {Input, u"", u"Operator"},
                     {Input, u"", u"Value"},
                     {Button, u"...", u"Browse for %1"}}),
              (Expected{"Second date", "Operator", "Value", "Browse for Value"}));
}

TEST(AccessibleNames, AreReadWithoutTheMarkOfTheKey)
{
    EXPECT_EQ(Names({{Box, u"Fonts && &Colours", u""}, {Input, u"", u""}}),
              (Expected{"", "Fonts & Colours"}));
}

} // namespace

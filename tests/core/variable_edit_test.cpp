#include "document/core/variable_edit.h"
#include "tests/core/edit_properties.h"

#include <gtest/gtest.h>

#include <string>

namespace ov
{
namespace
{

const FactsOf kFacts = test::KnownFacts;

std::string Outcome(const EditResult& result)
{
    std::string text = result.bytes;
    if (!result.refused.empty())
        text.clear();
    for (const RefusedEdit& refused : result.refused)
        text += "refused " + std::to_string(static_cast<int>(refused.reason)) + " " +
                Utf8FromText(refused.name) + "|" + Utf8FromText(refused.detail);
    for (const Text& name : result.commentsLeft)
        text += "left " + Utf8FromText(name);
    return text;
}

std::string Refused(EditRefusal reason, const std::string& name, const std::string& detail = "")
{
    return "refused " + std::to_string(static_cast<int>(reason)) + " " + name + "|" + detail;
}

std::string Set(std::string_view file, const Text& name, const Text& value)
{
    return Outcome(SetVariables({file, std::nullopt}, {{name, value}}, kFacts));
}

std::string Unset(std::string_view file, const Text& name)
{
    return Outcome(UnsetVariables({file, std::nullopt}, {name}, kFacts));
}

std::string List(std::string_view file, const Text& name, const ListChange& change)
{
    return Outcome(ChangeList({file, std::nullopt}, name, change, kFacts));
}

TEST(SetVariable, AValueIsWrittenAsTheWriterWritesItsKind)
{
    EXPECT_EQ(Set("A = 1\n", u"A", u"2"), "A = 2\n");
    EXPECT_EQ(Set("A = 1\n", u"A", u"-2.5"), "A = -2.5\n");
    EXPECT_EQ(Set("A = 1\n", u"A", u"x"), "A = \"x\"\n");
    EXPECT_EQ(Set("A = 1\n", u"A", u""), "A = \"\"\n");
    EXPECT_EQ(Set("K_PATH = a\n", u"K_PATH", u"C:\\b c"), "K_PATH = C:\\b c\n");
    EXPECT_EQ(Set("K_TEXT = \"a\"\n", u"K_TEXT", u"1"), "K_TEXT = \"1\"\n");
}

TEST(SetVariable, AListGetsALineForEachEntry)
{
    EXPECT_EQ(Set("A = 1\r\nB = 2\n", u"A", u"a;b;c"), "A = a\r\nA > b\r\nA > c\r\nB = 2\n");
    EXPECT_EQ(Set("A = a\nA > b\nB = 2\nA > c\n", u"A", u"x;y"), "A = x\nA > y\nB = 2\n");
}

TEST(SetVariable, TheLastAssignmentChangesAndAllOtherLinesGo)
{
    EXPECT_EQ(Set("A = 1\nB = 1\nA > 2\nA = 3\nA + 4\nC = 1\nA : 5\nA < 6\n", u"A", u"7"),
              "B = 1\nA = 7\nC = 1\n");
    EXPECT_EQ(Set("B = 1\nA > 2\nC = 1\nA < 3\n", u"A", u"7"), "B = 1\nA = 7\nC = 1\n");
    EXPECT_EQ(Set("A > 2\n", u"A", u"2"), "A = 2\n");
    EXPECT_EQ(Set("A = 1\nA = 2\n", u"A", u"2"), "A = 2\n");
}

TEST(SetVariable, WhatIsBeforeTheValueStays)
{
    EXPECT_EQ(Set("\t A\t =\t1 \t\n", u"A", u"2"), "\t A\t =\t2\n");
    EXPECT_EQ(Set("  A  :=  1\n", u"A", u"2"), "  A = 2\n");
    EXPECT_EQ(Set("  A =1\n", u"A", u"2"), "  A = 2\n");
    EXPECT_EQ(Set("A =", u"A", u"2"), "A = 2");
}

TEST(SetVariable, AValueThatIsThereAlreadyChangesNothing)
{
    for (const char* file : {"A = \"1\"\n", "A = a\nB = 1\nA > b\n", "A =  x", "%if X\nA = 1\n"}) {
        const Text value = file[4] == '"' ? u"1" : file[4] == 'a' ? u"a;b" : file[0] == '%' ? u"1" : u" x";
        EXPECT_EQ(Set(file, u"A", value), file);
    }
}

TEST(SetVariable, ANewOneIsAppendedUnderTheDialogsComment)
{
    EXPECT_EQ(Set("A = 1\r\n", u"K_FLAG", u"1"),
              "A = 1\r\n\r\n#\r\n# This is K_FLAG.\r\n#\r\nK_FLAG = 1\r\n");
    EXPECT_EQ(Set("A = 1\nB = 2", u"C", u"3"), "A = 1\nB = 2\nC = 3");
    EXPECT_EQ(Set("", u"C", u"a;b"), "C = a\r\nC > b\r\n");
}

TEST(SetVariable, AByteOrderMarkStaysAndBelongsToTheFirstName)
{
    EXPECT_EQ(Set("\xEF\xBB\xBF"
                  "A = 1\n",
                  u"A", u"2"),
              "\xEF\xBB\xBF"
              "A = 1\nA = 2\n");
    EXPECT_EQ(Set("\xEF\xBB\xBF"
                  "# c\nA = 1\n",
                  u"A", u"2"),
              "\xEF\xBB\xBF"
              "# c\nA = 2\n");
}

TEST(SetVariable, TheEncodingOfTheFileIsKept)
{
    EXPECT_EQ(Set("A = \xE4\n", u"A", u"\u00F6\u20AC"), "A = \"\xF6\x80\"\n");
    EXPECT_EQ(Set("B = \xC3\xA4\nA = 1\n", u"A", u"\u0394"), "B = \xC3\xA4\nA = \"\xCE\x94\"\n");
    EXPECT_EQ(Set("A = 1\n", u"A", u"a\u0394"), Refused(EditRefusal::CharacterLacking, "A", "\u0394"));
    const EditedFile asUtf8{"A = 1\n", Charset::Utf8};
    EXPECT_EQ(Outcome(SetVariables(asUtf8, {{u"A", u"\u0394"}}, kFacts)), "A = \"\xCE\x94\"\n");
}

TEST(SetVariable, AFileThatWouldBeTakenForAnotherEncodingIsRefused)
{
    EXPECT_EQ(Set("A = 1\n", u"A", u"\u00C3\u00A4"), Refused(EditRefusal::EncodingChanged, "A"));
    EXPECT_EQ(Set("A = \xE4\nB = \xC3\xA4\n", u"A", u"1"), Refused(EditRefusal::EncodingChanged, "B"));
}

TEST(SetVariable, AValueThatIsNotReadBackIsRefused)
{
    const Text values[] = {u"a # b", u"a\"b", u"a;\"b;c\"", u";", u"a\nB = 2", u"a; b"};
    for (const Text& value : values)
        EXPECT_EQ(Set("A = 1\n", u"A", value), Refused(EditRefusal::ValueNotKept, "A", Utf8FromText(value)));
    EXPECT_EQ(Set("", u"K_PATH", u" a "), Refused(EditRefusal::ValueNotKept, "K_PATH", " a "));
    EXPECT_EQ(Set("A = 1\n", u"A", u"#a b"), "A = \"#a b\"\n");
    EXPECT_EQ(Set("A = 1\n", u"A", u"a;b#c"), "A = a\nA > b#c\n");
}

TEST(SetVariable, ANameThatIsNotReadBackIsRefused)
{
    const Text names[] = {u"A B", u"#A", u"%A", u"\vA", u"A\n"};
    for (const Text& name : names)
        EXPECT_EQ(Set("B = 1\n", name, u"1"), Refused(EditRefusal::NameNotKept, Utf8FromText(name), "1"));
}

TEST(SetVariable, ConditionalLinesAreRefused)
{
    EXPECT_EQ(Set("A = 1\n%ifdef X\nA = 2\n%endif\n", u"A", u"3"), Refused(EditRefusal::Conditional, "A"));
    EXPECT_EQ(Set("%if X\nB = 2\n", u"A", u"3"), Refused(EditRefusal::EndsInCondition, "A"));
    EXPECT_EQ(Set("A = 1\n%if X\nB = 2\n", u"A", u"3"), "A = 3\n%if X\nB = 2\n");
}

TEST(SetVariable, AFileThatIsNotPlainTextIsRefused)
{
    EXPECT_EQ(Set(std::string("\xFF\xFE"
                              "A\0 \0=\0 \0001\0\n\0",
                              14),
                  u"A", u"2"),
              Refused(EditRefusal::NotPlainText, "A", "it is in UTF-16"));
    EXPECT_EQ(Set("A = 1\rB = 1\r", u"A", u"2"),
              Refused(EditRefusal::NotPlainText, "A", "its lines end in CR only"));
    EXPECT_EQ(Set("A = 1\r", u"A", u"2"), "A = 2");
}

TEST(SetVariable, AllNamedOnesChangeOrNone)
{
    const EditedFile file{"A = 1\nB = 2\n", std::nullopt};
    EXPECT_EQ(Outcome(SetVariables(file, {{u"B", u"3"}, {u"C", u"4"}, {u"A", u"5"}}, kFacts)),
              "A = 5\nB = 3\nC = 4\n");
    EXPECT_EQ(Outcome(SetVariables(file, {{u"B", u"3"}, {u"A", u"a#b"}}, kFacts)),
              Refused(EditRefusal::ValueNotKept, "A", "a#b"));
}

const std::string kHeader = "#\r\n# Header\r\n#\r\n";
const std::string kBlock = "\r\n#\r\n# This is K_TEXT.\r\n#\r\n";

TEST(UnsetVariable, AllLinesGoWithTheDialogsComment)
{
    EXPECT_EQ(Unset("A = 1\r\n" + kBlock + "K_TEXT = a\r\nB = 1\r\nK_TEXT > b\r\n", u"K_TEXT"),
              "A = 1\r\nB = 1\r\n");
    EXPECT_EQ(Unset("A = 1\n", u"B"), "A = 1\n");
    EXPECT_EQ(Unset("A = 1\nB = 2", u"B"), "A = 1");
}

TEST(UnsetVariable, AnotherCommentStaysAndIsSaid)
{
    EXPECT_EQ(Unset("B = 1\n# mine\nA = 1\n", u"A"), "B = 1\n# mine\nleft A");
    EXPECT_EQ(Unset("B = 1\r\n# mine\r\n" + kBlock + "K_TEXT = a\r\n", u"K_TEXT"),
              "B = 1\r\n# mine\r\nleft K_TEXT");
    EXPECT_EQ(Unset("B = 1\r\n" + kBlock + "# mine\r\nK_TEXT = a\r\n", u"K_TEXT"),
              "B = 1\r\n" + kBlock + "# mine\r\nleft K_TEXT");
    EXPECT_EQ(Unset("B = 1\nA = 1\n# mine\nA > 2\n", u"A"), "B = 1\n# mine\nleft A");
    EXPECT_EQ(Unset("B = 1\n\n\nA = 1\n", u"A"), "B = 1\n\n\n");
}

TEST(UnsetVariable, TheHeaderDoesNotBecomeTheNextComment)
{
    EXPECT_EQ(Unset(kHeader + kBlock + "K_TEXT = a\r\nZ = 1\r\n", u"K_TEXT"), kHeader + "\r\nZ = 1\r\n");
    EXPECT_EQ(Unset(kHeader + kBlock + "K_TEXT = a\r\n\r\n# z\r\nZ = 1\r\n", u"K_TEXT"),
              kHeader + "\r\n# z\r\nZ = 1\r\n");
    EXPECT_EQ(Unset(kHeader + kBlock + "K_TEXT = a\r\n", u"K_TEXT"), kHeader);
}

TEST(UnsetVariable, ConditionalLinesAreRefused)
{
    EXPECT_EQ(Unset("%if X\nA = 1\n", u"A"), Refused(EditRefusal::Conditional, "A"));
    EXPECT_EQ(Unset("%if X\nA = 1\n", u"B"), "%if X\nA = 1\n");
}

TEST(ChangeListOfLines, RemovesPrependsAndAppendsInThisOrder)
{
    EXPECT_EQ(List("A = a\nA > b\nB = 1\n", u"A", {{u"a"}, {u"p"}, {u"z"}}), "A = p\nA > b\nA > z\nB = 1\n");
    EXPECT_EQ(List("A = a\nA > b\n", u"A", {{u"b"}, {}, {u"b"}}), "A = a\nA > b\n");
    EXPECT_EQ(List("A = a\n", u"A", {{}, {u"p", u"q"}, {u"y", u"z"}}), "A = q\nA > p\nA > a\nA > y\nA > z\n");
}

TEST(ChangeListOfLines, WhatIsThereOrAbsentIsDone)
{
    EXPECT_EQ(List("A = a\nA > b\n", u"A", {{u"c"}, {u"b"}, {u"a"}}), "A = a\nA > b\n");
    EXPECT_EQ(List("B = 1\n", u"A", {{u"c"}, {}, {}}), "B = 1\n");
    EXPECT_EQ(List("A = \" a ;b\"\n", u"A", {{}, {}, {u"a"}}), "A = \" a ;b\"\n");
}

TEST(ChangeListOfLines, AnInheritedListStaysInherited)
{
    EXPECT_EQ(List("A > a\nB = 1\n", u"A", {{}, {u"p"}, {u"z"}}), "A > a\nA < p\nA > z\nB = 1\n");
    EXPECT_EQ(List("B = 1\n", u"A", {{}, {u"p"}, {u"z"}}), "B = 1\nA < p\nA > z\n");
    EXPECT_EQ(List("B = 1\n", u"K_TEXT", {{}, {}, {u"z"}}), "B = 1\n\n#\n# This is K_TEXT.\n#\nK_TEXT > z\n");
    EXPECT_EQ(List("# c\nA > a\nB = 1\nA > b\n", u"A", {{u"a"}, {}, {}}), "# c\nA > b\nB = 1\n");
    EXPECT_EQ(List("A > a\nB = 1\n", u"A", {{u"a"}, {}, {}}), "B = 1\n");
    EXPECT_EQ(List("A > a\n", u"A", {{u"a"}, {u"p"}, {}}), "A < p\n");
}

TEST(ChangeListOfLines, TheAssignmentGoesOnToTheNextEntry)
{
    EXPECT_EQ(List("# c\nA = a\nB = 1\nA > b\n", u"A", {{u"a"}, {}, {}}), "# c\nA = b\nB = 1\n");
    EXPECT_EQ(List("A = a\nA < b\nA < c\n", u"A", {{u"a"}, {}, {}}), "A = b\nA < c\n");
    EXPECT_EQ(List("A = a\n", u"A", {{u"a"}, {}, {}}), "A = \"\"\n");
    EXPECT_EQ(List("A = \"\"\n", u"A", {{}, {}, {u"a"}}), "A = \"a\"\n");
    EXPECT_EQ(List("A = a\n", u"A", {{u"a"}, {}, {u"b", u"c"}}), "A = b\nA > c\n");
}

TEST(ChangeListOfLines, SeveralEntriesInALineStayThere)
{
    EXPECT_EQ(List("A = \"a;b;c\"\n", u"A", {{u"b"}, {}, {u"d"}}), "A = \"a;c\"\nA > d\n");
    EXPECT_EQ(List("A = a;b;c\n", u"A", {{u"b"}, {}, {}}), "A = a;c\n");
    EXPECT_EQ(List("A = \"a;b\"\n", u"A", {{}, {u"p", u"q"}, {}}), "A = \"q;p;a;b\"\n");
}

TEST(ChangeListOfLines, EarlierAssignmentsAreLeftAlone)
{
    EXPECT_EQ(List("A = a\nA > b\nA = c\n", u"A", {{u"a"}, {}, {u"d"}}), "A = a\nA > b\nA = c\nA > d\n");
}

TEST(ChangeListOfLines, AfterAPrependingLineTheFrontIsAnotherOne)
{
    EXPECT_EQ(List("A = a\nA < b\n", u"A", {{}, {u"p"}, {}}), "A = a\nA < b\nA < p\n");
}

TEST(ChangeListOfLines, LinesThatJoinEntriesAreWrittenAgain)
{
    EXPECT_EQ(List("A = a\nA + b;c\n", u"A", {{u"c"}, {}, {u"d"}}), "A = ab\nA > d\n");
    EXPECT_EQ(List("A > a\nA + b\n", u"A", {{}, {}, {u"d"}}), Refused(EditRefusal::ListNotPlain, "A"));
}

TEST(ChangeListOfCommas, IsEditedInsideItsLine)
{
    EXPECT_EQ(List("K_COMMAS = \"a,b\"\n", u"K_COMMAS", {{u"a"}, {u"p"}, {u"z"}}), "K_COMMAS = \"p,b,z\"\n");
    EXPECT_EQ(List("K_COMMAS > a,b\n", u"K_COMMAS", {{}, {}, {u"z"}}), "K_COMMAS > a,b,z\n");
    EXPECT_EQ(List("B = 1\n", u"K_COMMAS", {{}, {}, {u"y", u"z"}}),
              "B = 1\n\n#\n# This is K_COMMAS.\n#\nK_COMMAS = \"y,z\"\n");
    EXPECT_EQ(List("K_COMMAS = \"a\"\n", u"K_COMMAS", {{u"a"}, {}, {}}), "K_COMMAS = \"\"\n");
}

TEST(ChangeListOfLines, ASeparatorBetweenQuotesBelongsToTheEntry)
{
    const std::string file = "A > a\nA > p\"x;y\"\n";
    EXPECT_EQ(List("A > a\n", u"A", {{}, {}, {u"p\"x;y\""}}), file);
    EXPECT_EQ(List(file, u"A", {{}, {}, {u"p\"x;y\""}}), file);
    EXPECT_EQ(List(file, u"A", {{u"x"}, {}, {u"b"}}), file + "A > b\n");
    EXPECT_EQ(List(file, u"A", {{u"p\"x;y\""}, {}, {}}), "A > a\n");
    EXPECT_EQ(List("K_COMMAS > a,b\n", u"K_COMMAS", {{}, {}, {u"\"x,y\""}}), "K_COMMAS > a,b,\"x,y\"\n");
}

TEST(ChangeListOfLines, QuotesDoNotTellEntriesApart)
{
    EXPECT_EQ(List("A = a;\"q\";b\n", u"A", {{u"q"}, {}, {}}), "A = a;b\n");
    EXPECT_EQ(List("A = a;q\n", u"A", {{}, {}, {u"\"q\""}}), "A = a;q\n");
}

TEST(ChangeListOfLines, AnUnpairedQuoteStaysButDoesNotPairWithAnother)
{
    EXPECT_EQ(List("A > a\n", u"A", {{}, {}, {u"x\"y"}}), "A > a\nA > x\"y\n");
    EXPECT_EQ(List("A > x\"y\n", u"A", {{}, {}, {u"b"}}), "A > x\"y\nA > b\n");
    EXPECT_EQ(List("A > x\"y\n", u"A", {{}, {}, {u"b\""}}), Refused(EditRefusal::QuotesPair, "A"));
    EXPECT_EQ(List("A > b;c\"\n", u"A", {{}, {u"x\"y"}, {}}), Refused(EditRefusal::QuotesPair, "A"));
    EXPECT_EQ(List("A > b;c\"\n", u"A", {{u"c"}, {u"x\"y"}, {}}), "A > b\nA < x\"y\n");
}

TEST(ChangeListOfLines, AnEntryThatIsNotReadBackIsRefused)
{
    EXPECT_EQ(List("A > a\n", u"A", {{}, {}, {u"\"x;y\""}}),
              Refused(EditRefusal::ValueNotKept, "A", "a;\"x;y\""));
    EXPECT_EQ(List("A > a\n", u"A", {{}, {}, {u"\" b \""}}),
              Refused(EditRefusal::ValueNotKept, "A", "a;\" b \""));
    EXPECT_EQ(List("A > a\n", u"A", {{}, {}, {u"b\nc"}}), Refused(EditRefusal::ValueNotKept, "A", "a;b\nc"));
    EXPECT_EQ(List("A > a\n", u"A", {{}, {}, {u"b\r\n"}}), "A > a\nA > b\n");
    EXPECT_EQ(List("A > a\n", u"A", {{}, {}, {u"b#c"}}), "A > a\nA > b#c\n");
    EXPECT_EQ(List("K_COMMAS = \"a\"\n", u"K_COMMAS", {{}, {}, {u"b#c"}}),
              Refused(EditRefusal::ValueNotKept, "K_COMMAS", "a,b#c"));
}

TEST(ChangeListOfLines, WhatIsNoEntryIsRefused)
{
    EXPECT_EQ(List("A = a\n", u"A", {{}, {}, {u"b;"}}), Refused(EditRefusal::SeveralEntries, "A", ";"));
    EXPECT_EQ(List("A = a\n", u"A", {{}, {}, {u"b\";c"}}), Refused(EditRefusal::SeveralEntries, "A", ";"));
    EXPECT_EQ(List("A = a\n", u"A", {{u""}, {}, {}}), Refused(EditRefusal::EmptyEntry, "A"));
    EXPECT_EQ(List("A = a\n", u"A", {{}, {}, {u"b;c"}}), Refused(EditRefusal::SeveralEntries, "A", ";"));
    EXPECT_EQ(List("A = a\n", u"A", {{}, {}, {u" "}}), Refused(EditRefusal::EmptyEntry, "A"));
    EXPECT_EQ(List("A = a\n%if X\nA > b\n", u"A", {{}, {}, {u"c"}}), Refused(EditRefusal::Conditional, "A"));
    EXPECT_EQ(List("A > a\n", u"A", {{}, {}, {u"\"b\"x\""}}),
              Refused(EditRefusal::ValueNotKept, "A", "a;\"b\"x\""));
}

} // namespace
} // namespace ov

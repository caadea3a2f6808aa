#include "document/core/document.h"
#include "document/core/line_edits.h"
#include "document/core/variable_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ov
{
namespace
{

std::vector<std::pair<std::string, std::string>> LinesOf(const Document& document)
{
    std::vector<std::pair<std::string, std::string>> lines;
    for (std::size_t i = 0; i < document.LineCount(); ++i)
        lines.emplace_back(document.Line(i).text, document.Line(i).end);
    return lines;
}

TEST(Document, EveryByteIsInTheTextOrTheEndOfALine)
{
    const std::vector<std::pair<std::string, std::string>> expected{
        {"a\r", "\r\n"}, {"", "\n"}, {"b\rc", "\n"}, {std::string("\0", 1), "\r\n"}, {"d\r", ""}};
    const Document document(std::string("a\r\r\n\nb\rc\n\0\r\nd\r", 14));
    EXPECT_EQ(LinesOf(document), expected);
}

TEST(Document, AnEmptyFileHasNoLines)
{
    EXPECT_EQ(Document("").LineCount(), 0u);
    EXPECT_EQ(Document("\n").LineCount(), 1u);
}

TEST(Document, LinesAreTakenApartAsTheReaderUnderstandsThem)
{
    const Document document(" \t\n\t# c\n %include x\nA  =  x \nA=1\nA x=y z\nA =\n");
    const auto kind = [&](std::size_t line) { return document.Parts(line).kind; };
    EXPECT_EQ(kind(0), LineKind::Blank);
    EXPECT_EQ(kind(1), LineKind::Comment);
    EXPECT_EQ(kind(2), LineKind::Directive);
    EXPECT_EQ(kind(3), LineKind::Assignment);
    EXPECT_EQ(document.Parts(3).name, "A");
    EXPECT_EQ(document.Parts(3).operatorToken, "=");
    EXPECT_EQ(document.Parts(3).value, " x");
    EXPECT_EQ(kind(4), LineKind::Ignored);
    EXPECT_EQ(kind(5), LineKind::Assignment);
    EXPECT_EQ(document.Parts(5).operatorToken, "x=y");
    EXPECT_EQ(document.Parts(5).operation, '=');
    EXPECT_EQ(document.Parts(5).value, "z");
    EXPECT_EQ(document.Parts(6).value, "");
}

TEST(LineEdits, WithoutChangesTheFileStaysAsItIs)
{
    for (const char* bytes : {"", "\n", "a", "a\r\nb\nc", "a\n\n"}) {
        const Document document(bytes);
        EXPECT_EQ(LineEdits(document).Apply(), bytes);
    }
}

TEST(LineEdits, ALineKeepsItsEndAndANewOneTakesThatAbove)
{
    const Document document("a\r\nb\nc\r\n");
    LineEdits edits(document);
    edits.Replace(0, "A");
    edits.InsertBelow(0, "a1");
    edits.InsertBelow(0, "a2");
    edits.InsertBelow(1, "b1");
    edits.Append("d");
    EXPECT_EQ(edits.Apply(), "A\r\na1\r\na2\r\nb\nb1\nc\r\nd\r\n");
}

TEST(LineEdits, AFileWithoutAFinalLineEndStaysSo)
{
    const Document document("a\r\nb");
    LineEdits appended(document);
    appended.Append("c");
    EXPECT_EQ(appended.Apply(), "a\r\nb\r\nc");
    LineEdits inserted(document);
    inserted.InsertBelow(1, "c");
    EXPECT_EQ(inserted.Apply(), "a\r\nb\r\nc");
    LineEdits erased(document);
    erased.Erase(1);
    EXPECT_EQ(erased.Apply(), "a");
    LineEdits everything(document);
    everything.Erase(0);
    everything.Erase(1);
    EXPECT_EQ(everything.Apply(), "");
}

TEST(LineEdits, AFinalLineEndStays)
{
    const Document document("a\nb\n");
    LineEdits edits(document);
    edits.Erase(1);
    EXPECT_EQ(edits.Apply(), "a\n");
    EXPECT_TRUE(edits.IsErased(1));
    EXPECT_FALSE(edits.IsErased(0));
}

TEST(LineEdits, AnEmptyFileGetsLinesAsSaveWritesThem)
{
    const Document document("");
    LineEdits edits(document);
    edits.Append("a");
    edits.Append("b");
    EXPECT_EQ(edits.Apply(), "a\r\nb\r\n");
}

TEST(LineEdits, ALineIsInsertedBelowOneThatIsRemoved)
{
    const Document document("a\nb\n");
    LineEdits edits(document);
    edits.Erase(0);
    edits.InsertBelow(0, "c");
    EXPECT_EQ(edits.Apply(), "c\nb\n");
}

TEST(VariableLines, AllAssignmentsOfANameInTheirOrder)
{
    const Document document("A = 1\nB = 1\n# A = 2\nA > 3\nA\nA + 4\na = 5\n");
    const VariableLines lines(document);
    std::vector<std::pair<std::size_t, char>> found;
    for (const VariableLine& line : lines.Of("A"))
        found.emplace_back(line.line, line.operation);
    const std::vector<std::pair<std::size_t, char>> expected{{0, '='}, {3, '>'}, {5, '+'}};
    EXPECT_EQ(found, expected);
    EXPECT_TRUE(lines.Of("C").empty());
}

// Which of the variables A, B, C, ... of a file are conditional.
std::string Conditional(std::string bytes)
{
    const Document document(std::move(bytes));
    const VariableLines lines(document);
    std::string names;
    for (char name = 'A'; name <= 'Z'; ++name) {
        for (const VariableLine& line : lines.Of(std::string(1, name))) {
            if (line.conditional)
                names.push_back(name);
        }
    }
    return names + (lines.EndsInCondition() ? "!" : "");
}

TEST(VariableLines, BetweenAnIfAndItsEndifEverythingIsConditional)
{
    EXPECT_EQ(Conditional("A = 1\n%if defined (X)\nB = 1\n%else\nC = 1\n%endif\nD = 1\n"), "BC");
    EXPECT_EQ(Conditional(" %ifdef X\nA = 1\n%ifndef Y\nB = 1\n%endif\nC = 1\n  %endif\nD = 1\n"), "ABC");
    EXPECT_EQ(Conditional("%IF X\nA = 1\n%EndIf\nB = 1\n"), "A");
    EXPECT_EQ(Conditional("%endif\nA = 1\n%include x\nB = 1\n"), "");
}

TEST(VariableLines, AnOpenIfReachesToTheEndOfTheFile)
{
    EXPECT_EQ(Conditional("A = 1\n%if X\nB = 1\n%if Y\n%endif\nC = 1\n"), "BC!");
}

} // namespace
} // namespace ov

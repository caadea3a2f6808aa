// Merging of files: against a slow model, and case by case where lines matter.

#include "config/core/config_line.h"
#include "config/core/config_reader.h"
#include "config/core/config_writer.h"
#include "document/core/line_diff.h"
#include "inspect/core/difference.h"
#include "inspect/core/merge.h"
#include "tests/core/slow_merge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace ov
{
namespace
{

using Variables = test::MergedVariables;
using Variable = test::MergedVariable;
using test::EntriesOfLetters;
using test::SlowMerge;

// Nothing is known of variables but that L_... are lists.
VariableFacts FactsOfName(TextView name)
{
    VariableFacts facts;
    facts.isList = name.starts_with(u"L_");
    return facts;
}

MergeResult Merge(const std::string& base, const std::string& ours, const std::string& theirs)
{
    return MergeFiles({base, DetectCharset(base)}, {ours, DetectCharset(ours)},
                      {theirs, DetectCharset(theirs)}, FactsOfName);
}

// The merged file; with a line for each conflict at the end when there are any.
std::string Outcome(const std::string& base, const std::string& ours, const std::string& theirs)
{
    MergeResult result = Merge(base, ours, theirs);
    for (const Text& name : result.conflicts)
        result.bytes += "conflict in " + Utf8FromText(name) + "\n";
    return result.otherLines ? result.bytes + "conflict in other lines\n" : result.bytes;
}

// Files of few variables, each changed from another one here and there.
class RandomFiles
{
  public:
    explicit RandomFiles(unsigned seed) : m_random(seed) {}

    Variables Base()
    {
        Variables variables;
        for (const char16_t* name : kNames) {
            if (Chance(70))
                variables[name] = New(name);
        }
        return variables;
    }

    Variables Changed(Variables variables)
    {
        for (const char16_t* name : kNames) {
            const auto found = variables.find(name);
            if (!Chance(25))
                continue;
            if (found == variables.end())
                variables[name] = New(name);
            else if (Chance(25))
                variables.erase(found);
            else if (Chance(30))
                found->second.comment = Comment();
            else
                found->second.value = Value(name, found->second.inherits);
        }
        return variables;
    }

    // The variables in any order of lines. Below the header that Save writes, the first blank line
    // belongs to no variable.
    std::string File(const Variables& variables)
    {
        std::vector<Text> names;
        for (const auto& [name, variable] : variables)
            names.push_back(name);
        if (Chance(30))
            std::shuffle(names.begin(), names.end(), m_random);
        Text text;
        if (Chance(70))
            text = MakeHeader({TextFromUtf8("Day " + std::to_string(m_random() % 3)), u"U", u"C"}) + u"\n\n";
        for (const Text& name : names)
            text += Lines(name, variables.at(name));
        const Text end = Chance(50) ? u"\r\n" : u"\n";
        Text bytes;
        for (const char16_t c : text)
            bytes += c == u'\n' ? end : Text(1, c);
        return Utf8FromText(bytes);
    }

  private:
    static constexpr const char16_t* kNames[] = {u"A", u"B", u"C", u"L_A", u"L_B", u"L_C", u"Z"};

    bool Chance(unsigned percent) { return m_random() % 100 < percent; }

    Text Comment() { return Chance(40) ? u"" : u"# " + TextFromUtf8(std::to_string(m_random() % 3)) + u"\n"; }

    Text Value(TextView name, bool inherits)
    {
        if (!name.starts_with(u"L_"))
            return TextFromUtf8(std::to_string(m_random() % 3));
        std::string letters = "abcd";
        std::shuffle(letters.begin(), letters.end(), m_random);
        letters.resize(inherits ? 1 + m_random() % 4 : m_random() % 5);
        if (Chance(80))
            std::sort(letters.begin(), letters.end());
        return JoinEntries(EntriesOfLetters(letters), {});
    }

    Variable New(TextView name)
    {
        Variable variable;
        variable.inherits = name == u"L_C";
        variable.value = Value(name, variable.inherits);
        variable.comment = Comment();
        return variable;
    }

    Text Lines(const Text& name, const Variable& variable)
    {
        Text lines = (variable.comment.empty() ? u"" : u"\n") + variable.comment;
        const ListEntries entries = EntriesOf(variable.value, {});
        if (entries.empty())
            return lines + name + u" = \"\"\n";
        for (const Text& entry : entries) {
            const bool first = &entry == &entries.front() && !variable.inherits;
            lines += name + (first ? u" = " : u" > ") + entry + u"\n";
        }
        return lines;
    }

    std::mt19937 m_random;
};

Variables Read(const std::string& bytes)
{
    SettingStore store;
    ReadConfig(store, kCurrentTable, bytes, Charset::Windows1252);
    Variables variables;
    store.VisitInOrder(kCurrentTable, [&variables](const SettingRecord& record) {
        const Text name = record.name;
        variables[name] = {record.value, CommentText(record.comment), false};
        return true;
    });
    std::set<Text> assigned;
    for (const std::string_view line : LinesWithEnds(bytes)) {
        const ConfigLine parts = ParseConfigLine(line);
        if (parts.kind == LineKind::Assignment && parts.operation == '=')
            assigned.insert(TextFromUtf8(parts.name));
    }
    for (auto& [name, variable] : variables)
        variable.inherits = !assigned.contains(name);
    return variables;
}

// The file with one side of each conflict.
std::string Resolved(const std::string& bytes, bool ours)
{
    std::string resolved;
    bool inOurs = true;
    bool inTheirs = true;
    for (const std::string_view line : LinesWithEnds(bytes)) {
        const std::string_view text = TrimBytes(line);
        if (text == "<<<<<<< ours") {
            EXPECT_TRUE(inOurs && inTheirs);
            inTheirs = false;
        } else if (text == "=======") {
            EXPECT_TRUE(inOurs && !inTheirs);
            std::swap(inOurs, inTheirs);
        } else if (text == ">>>>>>> theirs") {
            EXPECT_TRUE(!inOurs && inTheirs);
            inOurs = true;
        } else if (ours ? inOurs : inTheirs) {
            resolved += line;
        }
    }
    EXPECT_TRUE(inOurs && inTheirs);
    return resolved;
}

void EraseAll(Variables& variables, const std::set<Text>& names)
{
    for (const Text& name : names)
        variables.erase(name);
}

// The values of the variables; nothing for one that a file does not have.
std::map<Text, Text> ValuesOf(const Variables& variables, const std::set<Text>& names)
{
    std::map<Text, Text> values;
    for (const Text& name : names) {
        if (const auto found = variables.find(name); found != variables.end())
            values[name] = found->second.value;
    }
    return values;
}

TEST(MergeFiles, AreAsTheSlowModelSays)
{
    RandomFiles random(20'261'122);
    int clean = 0;
    for (int round = 0; round < 400; ++round) {
        const Variables base = random.Base();
        const Variables ours = random.Changed(base);
        const Variables theirs = random.Changed(base);
        const std::string baseFile = random.File(base);
        const std::string ourFile = random.File(ours);
        const std::string theirFile = random.File(theirs);
        SCOPED_TRACE(baseFile + "~~~~\n" + ourFile + "~~~~\n" + theirFile);
        const SlowMerge expected(base, ours, theirs);
        const MergeResult result = Merge(baseFile, ourFile, theirFile);
        ASSERT_EQ(std::set<Text>(result.conflicts.begin(), result.conflicts.end()), expected.Conflicts())
            << result.bytes;
        ASSERT_FALSE(result.otherLines) << result.bytes;
        clean += expected.Conflicts().empty() ? 1 : 0;
        for (const bool side : {true, false}) {
            Variables merged = Read(Resolved(result.bytes, side));
            ASSERT_EQ(ValuesOf(merged, expected.Conflicts()),
                      ValuesOf(side ? ours : theirs, expected.Conflicts()))
                << result.bytes;
            EraseAll(merged, expected.Conflicts());
            ASSERT_EQ(merged, expected.Variables()) << result.bytes;
        }
    }
    EXPECT_GT(clean, 100);
    EXPECT_LT(clean, 350);
}

// The entries of lists in ascending order.
Variables Sorted(Variables variables)
{
    for (auto& [name, variable] : variables) {
        ListEntries entries = EntriesOf(variable.value, {});
        std::sort(entries.begin(), entries.end());
        variable.value = JoinEntries(entries, {});
    }
    return variables;
}

TEST(MergeFiles, AreSymmetricButForTheOrderOfEntries)
{
    RandomFiles random(2);
    for (int round = 0; round < 200; ++round) {
        const Variables base = random.Base();
        const std::string baseFile = random.File(base);
        const std::string ourFile = random.File(random.Changed(base));
        const std::string theirFile = random.File(random.Changed(base));
        SCOPED_TRACE(baseFile + "~~~~\n" + ourFile + "~~~~\n" + theirFile);
        const MergeResult result = Merge(baseFile, ourFile, theirFile);
        const MergeResult reversed = Merge(baseFile, theirFile, ourFile);
        ASSERT_EQ(result.conflicts, reversed.conflicts);
        if (result.IsClean()) {
            ASSERT_EQ(Sorted(Read(result.bytes)), Sorted(Read(reversed.bytes)));
        }
    }
}

TEST(MergeFiles, WhereOneSideIsUnchangedAreTheOtherOne)
{
    RandomFiles random(3);
    for (int round = 0; round < 100; ++round) {
        const Variables base = random.Base();
        const std::string baseFile = random.File(base);
        const std::string other = random.File(random.Changed(base));
        ASSERT_EQ(Outcome(baseFile, other, baseFile), other);
        ASSERT_EQ(Outcome(baseFile, baseFile, other), other);
        ASSERT_EQ(Outcome(baseFile, other, other), other);
    }
}

std::string Header(const std::string& date)
{
    return Utf8FromText(MakeHeader({TextFromUtf8(date), u"U", u"C"})) + "\n\n";
}

TEST(MergeFiles, HeadersOfSavesNeverConflict)
{
    EXPECT_EQ(Outcome(Header("Monday") + "A = 1\nB = 1\n", Header("Tuesday") + "A = 2\nB = 1\n",
                      Header("Friday") + "A = 1\nB = 2\n"),
              Header("Tuesday") + "A = 2\nB = 2\n");
    // Without a blank line below, the header is the comment of the first variable.
    const auto joined = [](const std::string& date) {
        std::string header = Header(date);
        header.pop_back();
        return header;
    };
    EXPECT_EQ(Outcome(joined("Monday") + "A = 1\nB = 1\n", joined("Tuesday") + "A = 2\nB = 1\n",
                      joined("Friday") + "A = 1\nB = 2\n"),
              joined("Tuesday") + "A = 2\nB = 2\n");
}

TEST(MergeFiles, AHeaderThatOnlyTheyHaveIsTaken)
{
    EXPECT_EQ(
        Outcome("\n# c\nA = 1\nB = 1\n", "\n# c\nA = 2\nB = 1\n", Header("Friday") + "# c\nA = 1\nB = 1\n"),
        Header("Friday") + "# c\nA = 2\nB = 1\n");
    EXPECT_EQ(Outcome("\n# c\nA = 1\nB = 1\n", "\n# c\nA = 1\nB = 2\n", Header("Friday") + "B = 1\n"),
              Header("Friday") + "B = 2\n");
}

TEST(MergeFiles, HandMadeHeadersMerge)
{
    EXPECT_EQ(Outcome("# York\n\nA = 1\n", "# York\n\nA = 2\n", "# Leeds\n\nA = 1\n"), "# Leeds\n\nA = 2\n");
    EXPECT_EQ(Outcome("# York\n\nA = 1\n", "# Hull\n\nA = 1\n", "# Leeds\n\nA = 2\n"),
              "<<<<<<< ours\n# Hull\n=======\n# Leeds\n>>>>>>> theirs\n\nA = 2\nconflict in other lines\n");
}

TEST(MergeFiles, CommentsFollowTheSideThatChangedThem)
{
    EXPECT_EQ(Outcome("A = 1\nB = 1\n", "A = 2\nB = 1\n", "# theirs\nA = 1\nB = 1\n"),
              "# theirs\nA = 2\nB = 1\n");
    EXPECT_EQ(Outcome("# c\nA = 1\nB = 1\n", "# ours\nA = 1\nB = 1\n", "# c\nA = 2\nB = 1\n"),
              "# ours\nA = 2\nB = 1\n");
    EXPECT_EQ(Outcome("B = 1\n# c\nA = 1\n", "B = 2\n# c\nA = 1\n", "B = 1\nA = 1\n"), "B = 2\nA = 1\n");
    EXPECT_EQ(Outcome("# c\nA = 1\n", "# ours\nA = 1\n", "# theirs\nA = 1\n"),
              "<<<<<<< ours\n# ours\nA = 1\n=======\n# theirs\nA = 1\n>>>>>>> theirs\nconflict in A\n");
    EXPECT_EQ(
        Outcome("B = 1\n", "B = 1\n# ours\nA = 1\n", "B = 2\n# theirs\nA = 1\n"),
        "B = 2\n<<<<<<< ours\n# ours\nA = 1\n=======\n# theirs\nA = 1\n>>>>>>> theirs\nconflict in A\n");
}

TEST(MergeFiles, AVariableThatTheyAddedIsBelowTheOneAboveIt)
{
    EXPECT_EQ(Outcome("A = 1\nB = 1\n", "A = 2\nB = 1\n", "A = 1\n# n\nN = 1\nB = 1\n"),
              "A = 2\n# n\nN = 1\nB = 1\n");
    EXPECT_EQ(Outcome("B = 1\n", "Z = 1\nB = 1\n", "\n# n\nN = 1\n# b\nB = 1\n"),
              "Z = 1\n\n# n\nN = 1\n# b\nB = 1\n");
}

TEST(MergeFiles, DirectivesAndWhatDependsOnThemMergeAsLines)
{
    const std::string base = "A = 1\n%if X\nB = 1\n%endif\nC = 1\n";
    EXPECT_EQ(Outcome(base, "A = 2\n%if X\nB = 1\n%endif\nC = 1\n", "A = 1\n%if X\nB = 2\n%endif\nC = 1\n"),
              "A = 2\n%if X\nB = 2\n%endif\nC = 1\n");
    EXPECT_EQ(Outcome(base, "A = 1\n%if X\nB = 3\n%endif\nC = 1\n", "A = 1\n%if X\nB = 2\n%endif\nC = 2\n"),
              "A = 1\n%if X\n<<<<<<< ours\nB = 3\n=======\nB = 2\n>>>>>>> theirs\n%endif\nC = 2\n"
              "conflict in other lines\n");
}

TEST(MergeFiles, AnInheritedListStaysInherited)
{
    EXPECT_EQ(Outcome("L_A > a\n", "L_A > a\nL_A < o\n", "L_A > a\nL_A > t\n"),
              "L_A < o\nL_A > a\nL_A > t\n");
    EXPECT_EQ(Outcome("L_A > a\n", "L_A = a\nB = 1\n", "L_A > a\nL_A > t\n"),
              "<<<<<<< ours\nL_A = a\n=======\nL_A > a\nL_A > t\n>>>>>>> theirs\nB = 1\nconflict in L_A\n");
}

TEST(MergeFiles, AListOfManyEntriesIsDoneInSeconds)
{
    constexpr int kEntries = 30'000;
    std::string base;
    std::string ours;
    std::string theirs;
    for (int i = 0; i < kEntries; ++i) {
        const std::string line = std::string("L_A ") + (i == 0 ? "=" : ">") + " entry " + std::to_string(i);
        base += line + "\n";
        ours += i % 3 == 1 ? "" : line + "\n";
        theirs += line + (i % 3 == 2 ? " of theirs\n" : "\n");
    }
    const std::clock_t start = std::clock();
    const MergeResult result = Merge(base, ours, theirs);
    // Comparing all entries with each other takes more than a minute.
    EXPECT_LT(std::clock() - start, 15 * CLOCKS_PER_SEC);
    EXPECT_TRUE(result.IsClean());
    EXPECT_EQ(std::count(result.bytes.begin(), result.bytes.end(), '\n'), kEntries * 2 / 3);
}

TEST(MergeFiles, TheEncodingIsThatOfTheSideThatHasOne)
{
    EXPECT_EQ(Outcome("A = 1\nB = 1\n", "A = 2\nB = 1\n", "A = 1\nB = \xC3\xA4\n"), "A = 2\nB = \xC3\xA4\n");
    EXPECT_EQ(Outcome("A = 1\nB = 1\n", "A = \xE4\nB = 1\n", "A = 1\nB = \xC3\xA4\n"),
              "A = \xE4\nB = \xE4\n");
}

} // namespace
} // namespace ov

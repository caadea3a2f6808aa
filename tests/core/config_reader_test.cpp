#include "config/core/config_reader.h"
#include "config/core/config_writer.h"
#include "tests/core/code_page_locale.h"
#include "tests/core/memory_file_port.h"
#include "tests/core/scoped_locale.h"

#include <gtest/gtest.h>

#include <string>

namespace ov
{
namespace
{

class ConfigReader : public testing::Test
{
  protected:
    void ReadCurrent(std::string_view bytes) { ReadConfig(m_store, kCurrentTable, bytes); }
    void ReadDefault(std::string_view bytes) { ReadConfig(m_store, kDefaultTable, bytes); }
    Text Value(TextView name, TableSelector table = kCurrentTable) const
    {
        return m_store.GetSettingValue(name, table);
    }
    Text Comment(TextView name) const { return Text(m_store.FindSetting(name, kCurrentTable)->comment); }
    std::int32_t Kind(TextView name, TableSelector table = kCurrentTable) const
    {
        return m_store.FindSetting(name, table)->kind;
    }
    std::size_t Count() const { return m_store.Count(kCurrentTable); }

    const test::ScopedLocale m_locale{"C"};
    SettingStore m_store;
    test::MemoryFilePort m_files;
};

TEST_F(ConfigReader, LineWithoutBlanksIsSkipped)
{
    ReadCurrent("NAME=value\nOTHER = 1\n");
    EXPECT_EQ(Count(), 1u);
    EXPECT_TRUE(m_store.HasSetting(u"OTHER", kCurrentTable));
}

TEST_F(ConfigReader, BlankOnlyBeforeTheOperatorGivesAnEmptyValue)
{
    ReadCurrent("NAME =value\n");
    ASSERT_TRUE(m_store.HasSetting(u"NAME", kCurrentTable));
    EXPECT_EQ(Value(u"NAME"), u"");
    EXPECT_EQ(Kind(u"NAME"), SettingKindText);
}

TEST_F(ConfigReader, BlankOnlyBehindTheOperatorSkipsTheLine)
{
    ReadCurrent("NAME= value\n");
    EXPECT_EQ(Count(), 0u);
}

TEST_F(ConfigReader, BlankOnlyBehindTheOperatorIsReadWhenTheValueHoldsAnOperator)
{
    ReadCurrent("NAME= a=b\n");
    EXPECT_TRUE(m_store.HasSetting(u"NAME=", kCurrentTable));
    EXPECT_EQ(Value(u"NAME="), u"");
}

TEST_F(ConfigReader, TwoBlanksOnEachSideKeepOneBlankOfTheValue)
{
    ReadCurrent("NAME  =  5\n");
    EXPECT_EQ(Value(u"NAME"), u" 5");
    EXPECT_EQ(Kind(u"NAME"), SettingKindText);
}

TEST_F(ConfigReader, QuotedValueIsCutAtTheNumberSign)
{
    ReadCurrent("A = \"a # b\"\nB = a # b\n");
    EXPECT_EQ(Value(u"A"), u"a ");
    EXPECT_EQ(Value(u"B"), u"a # b");
}

TEST_F(ConfigReader, NumberSignAtTheFrontOfAQuotedValueStays)
{
    ReadCurrent("A = \"# b\"\n");
    EXPECT_EQ(Value(u"A"), u"# b");
}

TEST_F(ConfigReader, InnerQuotesOfAQuotedValueAreRemoved)
{
    ReadCurrent("A = \"a \"b\" c\"\nB = a \"b\" c\n");
    EXPECT_EQ(Value(u"A"), u"a b c");
    EXPECT_EQ(Value(u"B"), u"a \"b\" c");
}

TEST_F(ConfigReader, TwoQuotesOrOneAreAnEmptyText)
{
    ReadCurrent("A = \"\"\nB = \"\n");
    for (const char16_t* name : {u"A", u"B"}) {
        ASSERT_TRUE(m_store.HasSetting(name, kCurrentTable));
        EXPECT_EQ(Value(name), u"");
        EXPECT_EQ(Kind(name), SettingKindText);
    }
}

TEST_F(ConfigReader, AppendLineJoinsBehindTheEarlierValue)
{
    ReadCurrent("NAME = a\nNAME > b\n");
    EXPECT_EQ(Value(u"NAME"), u"a;b");
}

TEST_F(ConfigReader, AppendLineInTheDefaultFileCombinesWithTheCurrentTable)
{
    ReadCurrent("NAME = current\n");
    ReadDefault("NAME = a\nNAME > b\n");
    EXPECT_EQ(Value(u"NAME", kDefaultTable), u"current;b");
}

TEST_F(ConfigReader, AppendLineInTheDefaultFileStaysAloneWithoutACurrentValue)
{
    ReadDefault("NAME > b\n");
    EXPECT_EQ(Value(u"NAME", kDefaultTable), u"b");
}

TEST_F(ConfigReader, DefaultListReadFirstKeepsOnlyItsLastItem)
{
    ReadDefault("NAME = a\nNAME > b\nNAME > c\n");
    EXPECT_EQ(Value(u"NAME", kDefaultTable), u"c");
}

TEST_F(ConfigReader, EveryOperatorOfTheDefaultFileLooksAtTheCurrentTable)
{
    ReadCurrent("P = p\nC = 1\nD = .5\n");
    ReadDefault("P < x\nC + 2\nD : 9\nE : 9\n");
    EXPECT_EQ(Value(u"P", kDefaultTable), u"x;p");
    EXPECT_EQ(Value(u"C", kDefaultTable), u"12");
    EXPECT_EQ(Kind(u"C", kDefaultTable), SettingKindInteger);
    EXPECT_EQ(Value(u"D", kDefaultTable), u".5");
    EXPECT_EQ(Kind(u"D", kDefaultTable), SettingKindReal);
    EXPECT_EQ(Value(u"E", kDefaultTable), u"9");
}

TEST_F(ConfigReader, ReadingTheDefaultFileLeavesTheCurrentTableAlone)
{
    ReadCurrent("A = 1\n");
    m_store.SetModified(false);
    ReadDefault("A > 2\nB = 3\n");
    EXPECT_EQ(Count(), 1u);
    EXPECT_EQ(Value(u"A"), u"1");
    EXPECT_FALSE(m_store.IsModified());
}

TEST_F(ConfigReader, ReadingTheCurrentFileClearsTheMarkBeforeItsInsertionsSetIt)
{
    ReadCurrent("A = 1\n");
    EXPECT_TRUE(m_store.IsModified());
    ReadCurrent("# nothing but a comment\n");
    EXPECT_FALSE(m_store.IsModified());
}

TEST_F(ConfigReader, FileOfCommentsOnlyEmptiesTheTable)
{
    ReadCurrent("A = 1\n");
    ReadCurrent("# A = 1\n\n# B\n");
    EXPECT_EQ(Count(), 0u);
}

TEST_F(ConfigReader, EmptyFileLeavesTheTableAsItWas)
{
    ReadCurrent("A = 1\n");
    m_store.SetModified(false);
    ReadCurrent("");
    EXPECT_EQ(Value(u"A"), u"1");
    EXPECT_FALSE(m_store.IsModified());
}

TEST_F(ConfigReader, PrependLineJoinsBeforeTheEarlierValue)
{
    ReadCurrent("NAME = a\nNAME < b\nNEW < c\n");
    EXPECT_EQ(Value(u"NAME"), u"b;a");
    EXPECT_EQ(Value(u"NEW"), u"c");
}

TEST_F(ConfigReader, ConcatenateLineJoinsWithoutASeparator)
{
    ReadCurrent("NAME = a\nNAME + b\nNEW + c\n");
    EXPECT_EQ(Value(u"NAME"), u"ab");
    EXPECT_EQ(Value(u"NEW"), u"c");
}

TEST_F(ConfigReader, ConditionalLineDefinesOnlyWhatIsUndefined)
{
    ReadCurrent("NAME = a\nNAME : b\nNEW : c\n");
    EXPECT_EQ(Value(u"NAME"), u"a");
    EXPECT_EQ(Value(u"NEW"), u"c");
}

TEST_F(ConfigReader, AssignmentReplacesTheEarlierValue)
{
    ReadCurrent("NAME = a\nNAME > b\nNAME = c\n");
    EXPECT_EQ(Value(u"NAME"), u"c");
}

TEST_F(ConfigReader, OperatorsAreLookedForInTheirOrder)
{
    ReadCurrent("A = a\nA >= b\nA +> c\nA :< d\nA x+: e\n");
    EXPECT_EQ(Value(u"A"), u"d;b;ce");
}

TEST_F(ConfigReader, JoiningToAnEmptyValueKeepsTheSeparator)
{
    ReadCurrent("A =\nA > b\nB =\nB < b\n");
    EXPECT_EQ(Value(u"A"), u";b");
    EXPECT_EQ(Value(u"B"), u"b;");
}

TEST_F(ConfigReader, DirectivesAreSkippedAndChangeNothingElse)
{
    ReadCurrent("\n# about A\n%include x.cfg\n% if defined (B)\nA = 1\n");
    EXPECT_EQ(Count(), 1u);
    EXPECT_EQ(Comment(u"A"), u"\n# about A\n");
}

TEST_F(ConfigReader, HeaderAboveTheFirstBlankLineIsDropped)
{
    ReadCurrent("# header\n#\n\n# about A\nA = 1\n# about B\n\nB = 2\n");
    EXPECT_EQ(Comment(u"A"), u"\n# about A\n");
    EXPECT_EQ(Comment(u"B"), u"# about B\n\n");
}

TEST_F(ConfigReader, FirstAssignmentEndsTheHeaderToo)
{
    ReadCurrent("# kept\nA = 1\n# one\n\n# two\nB = 2\n");
    EXPECT_EQ(Comment(u"A"), u"# kept\n");
    EXPECT_EQ(Comment(u"B"), u"# one\n\n# two\n");
}

TEST_F(ConfigReader, SkippedLineKeepsTheCommentForTheNextVariable)
{
    ReadCurrent("\n# one\nNAME=value\n# two\nB = 2\n");
    EXPECT_EQ(Comment(u"B"), u"\n# one\n# two\n");
}

TEST_F(ConfigReader, LaterLinesOfANameKeepItsFirstComment)
{
    ReadCurrent("\n# one\nA = 1\n# two\nA > 2\n# three\nB = 1\n");
    EXPECT_EQ(Comment(u"A"), u"\n# one\n");
    EXPECT_EQ(Comment(u"B"), u"# three\n");
}

TEST_F(ConfigReader, IgnoredConditionalLineUsesUpItsComment)
{
    ReadCurrent("A = 1\n# about A\nA : 2\nB = 1\n");
    EXPECT_EQ(Comment(u"B"), u"");
}

TEST_F(ConfigReader, CommentLinesAreTrimmed)
{
    ReadCurrent("\n  # a \t\n \t \nA = 1\n");
    EXPECT_EQ(Comment(u"A"), u"\n# a\n\n");
}

TEST_F(ConfigReader, ValuesAreClassified)
{
    EXPECT_EQ(ClassifyValue(u""), SettingKindText);
    EXPECT_EQ(ClassifyValue(u"0"), SettingKindInteger);
    EXPECT_EQ(ClassifyValue(u"-12"), SettingKindInteger);
    EXPECT_EQ(ClassifyValue(u"-"), SettingKindInteger);
    EXPECT_EQ(ClassifyValue(u"1.5"), SettingKindReal);
    EXPECT_EQ(ClassifyValue(u"-.5"), SettingKindReal);
    EXPECT_EQ(ClassifyValue(u"."), SettingKindReal);
    EXPECT_EQ(ClassifyValue(u"1.2.3"), SettingKindReal);
    EXPECT_EQ(ClassifyValue(u"1-2"), SettingKindText);
    EXPECT_EQ(ClassifyValue(u"--1"), SettingKindText);
    EXPECT_EQ(ClassifyValue(u"+1"), SettingKindText);
    EXPECT_EQ(ClassifyValue(u"1 "), SettingKindText);
    EXPECT_EQ(ClassifyValue(u"1e5"), SettingKindText);
    EXPECT_EQ(ClassifyValue(u"\uFF11"), SettingKindText); // a full-width digit
}

TEST_F(ConfigReader, ConcatenatedValuesAreClassifiedAsAWhole)
{
    const Text parts[] = {u"", u"-", u"1", u"12", u".", u"1.5", u"-2", u"a", u"1a"};
    for (const Text& first : parts) {
        for (const Text& second : parts) {
            for (const Text& third : parts) {
                std::string bytes = "A = ";
                bytes.append(Utf8FromText(first)).append("\nA + ").append(Utf8FromText(second));
                bytes.append("\nA + ").append(Utf8FromText(third));
                ReadCurrent(bytes);
                EXPECT_EQ(Value(u"A"), first + second + third);
                EXPECT_EQ(Kind(u"A"), ClassifyValue(first + second + third)) << bytes;
            }
        }
    }
}

TEST_F(ConfigReader, ListOfNumbersIsText)
{
    ReadCurrent("A = 1\nA > 2\n");
    EXPECT_EQ(Kind(u"A"), SettingKindText);
}

TEST_F(ConfigReader, NulBytesAreKept)
{
    ReadCurrent(std::string_view("A = x\0y\nB\0 = 1\n", 15));
    EXPECT_EQ(Value(u"A"), Text(u"x\0y", 3));
    EXPECT_EQ(Value(Text(u"B\0", 2)), u"1");
}

TEST_F(ConfigReader, LoneCarriageReturnIsPartOfItsLine)
{
    ReadCurrent("A = x\ry\r\r\nB = 1\r\n");
    EXPECT_EQ(Value(u"A"), u"x\ry");
    EXPECT_EQ(Value(u"B"), u"1");
}

TEST_F(ConfigReader, ControlZDoesNotEndTheFile)
{
    ReadCurrent("A = 1\x1A\nB = 2\n");
    EXPECT_EQ(Value(u"A"), u"1\x1A");
    EXPECT_EQ(Value(u"B"), u"2");
}

TEST_F(ConfigReader, LastLineNeedsNoLineEnd)
{
    ReadCurrent("A = 1\nB = 2");
    EXPECT_EQ(Value(u"B"), u"2");
}

TEST_F(ConfigReader, ByteOrderMarkIsPartOfTheFirstLine)
{
    ReadCurrent("\xEF\xBB\xBF"
                "A = 1\n");
    EXPECT_EQ(Value(u"\u00EF\u00BB\u00BFA"), u"1");
}

TEST_F(ConfigReader, LineOfAMegabyteIsReadWhole)
{
    const std::string value(1 << 20, 'v');
    ReadCurrent("A = " + value + "\nB = 2\n");
    EXPECT_EQ(Value(u"A").size(), value.size());
    EXPECT_EQ(Value(u"B"), u"2");
}

TEST_F(ConfigReader, MillionBlankLinesAreAComment)
{
    ReadCurrent(std::string(1000000, '\n') + "A = 1\n");
    EXPECT_EQ(Comment(u"A").size(), 1000000u);
}

TEST_F(ConfigReader, FileIsReadInAnyBlocks)
{
    const std::string bytes = "# header\r\n\r\n# about A\r\nA = \"x\"\r\nA > y\r\nB = 2";
    for (std::size_t block = 1; block <= bytes.size(); ++block) {
        m_files.contents[u"a.cfg"] = bytes;
        m_files.blockSize = block;
        ASSERT_EQ(ReadConfigFile(m_store, kCurrentTable, u"a.cfg", m_files).outcome, ReadOutcome::Read);
        EXPECT_EQ(Value(u"A"), u"x;y");
        EXPECT_EQ(Comment(u"A"), u"\n# about A\n");
        EXPECT_EQ(Value(u"B"), u"2");
    }
}

TEST_F(ConfigReader, LongListsGrowAtBothEnds)
{
    std::string bytes = "A = m\n";
    Text expected = u"m";
    for (int i = 0; i < 3000; ++i) {
        const std::string item = std::to_string(i);
        const Text text(item.begin(), item.end());
        bytes += i % 2 == 0 ? "A > " : "A < ";
        bytes += item + '\n';
        expected = i % 2 == 0 ? expected + u';' + text : text + u';' + expected;
    }
    ReadCurrent(bytes);
    EXPECT_EQ(Value(u"A"), expected);
    EXPECT_EQ(Kind(u"A"), SettingKindText);
}

// Copying the current value for every line would copy 20 GB.
TEST_F(ConfigReader, OnlyTheLastDefaultLineIsJoinedWithALongCurrentValue)
{
    const std::string value(1 << 20, 'v');
    for (const char operation : {'>', '<', '+', ':'}) {
        ReadCurrent("A = " + value + "\n");
        std::string bytes;
        for (int i = 0; i < 20000; ++i)
            bytes.append("A ").append(1, operation).append(" x\n");
        ReadDefault(bytes);
        const Text current(value.begin(), value.end());
        EXPECT_EQ(Value(u"A", kDefaultTable), operation == '>'   ? current + u";x"
                                              : operation == '<' ? u"x;" + current
                                              : operation == '+' ? current + u"x"
                                                                 : current);
        EXPECT_EQ(Kind(u"A", kDefaultTable), SettingKindText);
    }
}

TEST_F(ConfigReader, LastDefaultLineDecidesWhateverStoodBefore)
{
    ReadCurrent("A = 1\nB =\n");
    ReadDefault("A > x\nA = 5\nB + -\nC > 1\nC + 2\n");
    EXPECT_EQ(Value(u"A", kDefaultTable), u"5");
    EXPECT_EQ(Kind(u"A", kDefaultTable), SettingKindInteger);
    EXPECT_EQ(Value(u"B", kDefaultTable), u"-");
    EXPECT_EQ(Kind(u"B", kDefaultTable), SettingKindInteger);
    EXPECT_EQ(Value(u"C", kDefaultTable), u"2");
    ReadDefault("A = 5\nA + 2\nA : 7\n");
    EXPECT_EQ(Value(u"A", kDefaultTable), u"1");
    ReadDefault("A : 7\nA + .5\nB : 3\n");
    EXPECT_EQ(Value(u"A", kDefaultTable), u"1.5");
    EXPECT_EQ(Kind(u"A", kDefaultTable), SettingKindReal);
    EXPECT_EQ(Value(u"B", kDefaultTable), u"");
    EXPECT_EQ(Kind(u"B", kDefaultTable), SettingKindText);
}

TEST_F(ConfigReader, DefaultLinesJoinWithWideCurrentValues)
{
    m_store.SetSetting(u"A", u"\u20AC", SettingKindText, u"", kCurrentTable);
    ReadDefault("A > \xE9\n");
    EXPECT_EQ(Value(u"A", kDefaultTable), u"\u20AC;\u00E9");
}

// Text read from invalid bytes is written and read back unchanged, for every division into blocks.
TEST_F(ConfigReader, OddBytesAreReadInAnyBlocksAndSurviveWriting)
{
    using namespace std::string_literals;
    const std::string inputs[] = {
        "\n# nul \0 in a comment\nA = x\0y\nB\0 = 1\n"s,
        "\n# lone \r return\nA = x\ry\r\r\n\rB = 1\r"s,
        "\n\x1A\nA\x1A = \x1A\n# \x1A\nB = 1\x1A"s,
        "\xEF\xBB\xBF\n\nA = 1"s,
        "\xFF\xFE\n\nA\0 \0=\0 \0001\0\n\0"s,
        "\n# \xE2\x82\nA = \xE2\x82\n\xF0\x9F = \xF0\x9F\x98\nB > \x80;\xC3\nB < \xA9\n"s,
        "\v\f\nA = 1\f\n\fB\t=\t\v2\n"s,
    };
    for (const char* name : {"C", "C.UTF-8"}) {
        const test::ScopedLocale locale(name);
        if (!locale.IsSet())
            continue; // Windows uses other names for locales.
        for (const std::string& bytes : inputs) {
            ReadCurrent(bytes);
            std::string whole;
            ASSERT_TRUE(WriteConfig(m_store, u"#", whole));
            EXPECT_GT(Count(), 0u);
            for (std::size_t block = 1; block <= 8; ++block) {
                m_files.contents[u"a.cfg"] = bytes;
                m_files.blockSize = block;
                SettingStore store;
                ASSERT_EQ(ReadConfigFile(store, kCurrentTable, u"a.cfg", m_files).outcome, ReadOutcome::Read);
                std::string written;
                ASSERT_TRUE(WriteConfig(store, u"#", written));
                EXPECT_EQ(written, whole);
            }
            SettingStore again;
            ReadConfig(again, kCurrentTable, whole);
            std::string rewritten;
            ASSERT_TRUE(WriteConfig(again, u"#", rewritten));
            EXPECT_EQ(rewritten, whole);
        }
    }
}

#ifndef _WIN32

TEST_F(ConfigReader, TextsOfAUtf8LocaleAreDecoded)
{
    const test::ScopedLocale locale("C.UTF-8");
    ASSERT_TRUE(locale.IsSet());
    ReadCurrent("\n# \xE2\x82\xAC\nN\xC3\xA9 = \xC3\xA9\nN\xC3\xA9 > \xE2\x82\xAC\nN\xC3\xA9 < a\n");
    EXPECT_EQ(Value(u"N\u00E9"), u"a;\u00E9;\u20AC");
    EXPECT_EQ(Comment(u"N\u00E9"), u"\n# \u20AC\n");
}

TEST_F(ConfigReader, InvalidBytesOfAUtf8LocaleAreKeptOneByOne)
{
    const test::ScopedLocale locale("C.UTF-8");
    ASSERT_TRUE(locale.IsSet());
    ReadCurrent("\n# \xE2\x82\nA = \xE9 x\xE2\x82\nB = \"\xC3\"\xA9 \"\n");
    EXPECT_EQ(Value(u"A"), Text({0xDCE9, u' ', u'x', 0xDCE2, 0xDC82}));
    EXPECT_EQ(Comment(u"A"), Text({u'\n', u'#', u' ', 0xDCE2, 0xDC82, u'\n'}));
    // Two bytes separated by a quote do not form one character after the quote is removed.
    EXPECT_EQ(Value(u"B"), Text({0xDCC3, 0xDCA9, u' '}));
}

#endif

TEST_F(ConfigReader, HalfACharacterTakesNoMarkWithIt)
{
    const test::ScopedLocale locale(test::CodePageLocale(932).c_str());
    ASSERT_TRUE(locale.IsSet());
    ReadCurrent("\n# \x93\xFA\x93\nA = \x93\xFA \x93\nB = \"\x93\"\n");
    EXPECT_EQ(Value(u"A").substr(0, 2), u"\u65E5 ");
    EXPECT_EQ(Value(u"A").size(), 3u);
    EXPECT_EQ(Value(u"B").size(), 1u);
    EXPECT_EQ(Comment(u"A").substr(0, 4), u"\n# \u65E5");
    EXPECT_EQ(Comment(u"A").back(), u'\n');
}

TEST_F(ConfigReader, EmptyPathAndMissingFileAreNotReadWithoutAWord)
{
    ReadCurrent("A = 1\n");
    for (const char16_t* path : {u"", u"missing.cfg"}) {
        const ReadResult result = ReadConfigFile(m_store, kCurrentTable, path, m_files);
        EXPECT_EQ(result.outcome, ReadOutcome::NothingToRead);
        EXPECT_EQ(result.systemText, u"");
    }
    EXPECT_EQ(Value(u"A"), u"1");
}

TEST_F(ConfigReader, DeviceIsNotOpenedForReading)
{
    ReadCurrent("A = 1\n");
    m_files.devices.insert(u"CON");
    const ReadResult result = ReadConfigFile(m_store, kCurrentTable, u"CON", m_files);
    EXPECT_EQ(result.outcome, ReadOutcome::NothingToRead);
    EXPECT_EQ(result.systemText, u"");
    EXPECT_EQ(m_files.calls, 1); // the query for the kind of file
    EXPECT_EQ(Value(u"A"), u"1");
}

TEST_F(ConfigReader, FileThatCannotBeOpenedIsToldAndLeavesTheStore)
{
    ReadCurrent("A = 1\n");
    m_files.contents[u"a.cfg"] = "B = 1\n";
    m_files.failing = {2}; // after the query whether it exists
    const ReadResult result = ReadConfigFile(m_store, kCurrentTable, u"a.cfg", m_files);
    EXPECT_EQ(result.outcome, ReadOutcome::Failed);
    EXPECT_EQ(result.systemText, test::kFaultText);
    EXPECT_EQ(Value(u"A"), u"1");
    EXPECT_FALSE(m_store.HasSetting(u"B", kCurrentTable));
}

TEST_F(ConfigReader, FileThatBreaksOffWhileReadingLeavesTheStore)
{
    ReadCurrent("A = 1\n");
    m_files.contents[u"a.cfg"] = "B = 1\nC = 1\n";
    m_files.blockSize = 6;
    m_files.failing = {4}; // the second block
    const ReadResult result = ReadConfigFile(m_store, kCurrentTable, u"a.cfg", m_files);
    EXPECT_EQ(result.outcome, ReadOutcome::Failed);
    EXPECT_EQ(result.systemText, test::kFaultText);
    EXPECT_EQ(Value(u"A"), u"1");
    EXPECT_FALSE(m_store.HasSetting(u"B", kCurrentTable));
    EXPECT_EQ(m_files.openFiles, 0);
}

TEST_F(ConfigReader, EmptyFileCountsAsRead)
{
    ReadCurrent("A = 1\n");
    m_files.contents[u"a.cfg"] = "";
    EXPECT_EQ(ReadConfigFile(m_store, kCurrentTable, u"a.cfg", m_files).outcome, ReadOutcome::Read);
    EXPECT_EQ(Value(u"A"), u"1");
}

} // namespace
} // namespace ov

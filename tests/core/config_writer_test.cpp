#include "base/locale_text.h"
#include "config/core/config_reader.h"
#include "config/core/config_writer.h"
#include "config/core/setting_comment.h"
#include "tests/core/scoped_locale.h"

#include <gtest/gtest.h>

#include <string>

namespace ov
{
namespace
{

class ConfigWriter : public testing::Test
{
  protected:
    void Set(TextView name, TextView value, SettingKind kind = SettingKindText, TextView comment = {})
    {
        m_store.SetSetting(name, value, kind, comment, kCurrentTable);
    }

    // The output after a header that is only "#".
    std::string Body() const
    {
        std::string bytes;
        EXPECT_TRUE(WriteConfig(m_store, u"#", bytes));
        EXPECT_EQ(bytes.substr(0, 3), "#\r\n");
        return bytes.substr(3);
    }

    const test::ScopedLocale m_locale{"C"};
    SettingStore m_store;
};

TEST_F(ConfigWriter, ListIsWrittenAsAnAssignmentAndAppendLines)
{
    Set(u"NAME", u"a;b;c");
    EXPECT_EQ(Body(), "NAME = a\r\nNAME > b\r\nNAME > c\r\n");
}

TEST_F(ConfigWriter, ListReadBackIsTheSameValue)
{
    Set(u"NAME", u"a;b;c");
    SettingStore readBack;
    ReadConfig(readBack, kCurrentTable, Body());
    EXPECT_EQ(readBack.GetSettingValue(u"NAME", kCurrentTable), u"a;b;c");
}

TEST_F(ConfigWriter, OnlyTextIsWrittenInQuotes)
{
    Set(u"A", u"text", SettingKindText);
    Set(u"B", u"C:\\a b\\", SettingKindPath);
    Set(u"C", u"-5", SettingKindInteger);
    Set(u"D", u"1", SettingKindFlag);
    Set(u"E", u"1.5", SettingKindReal);
    EXPECT_EQ(Body(), "A = \"text\"\r\nB = C:\\a b\\\r\nC = -5\r\nD = 1\r\nE = 1.5\r\n");
}

TEST_F(ConfigWriter, PathThatNoPageTouchesIsWrittenBackInQuotes)
{
    ReadConfig(m_store, kCurrentTable, "PATH = C:\\orthoval\\\n");
    EXPECT_EQ(Body(), "PATH = \"C:\\orthoval\\\"\r\n");
}

TEST_F(ConfigWriter, InnerQuotesOfATextAreNotEscaped)
{
    Set(u"A", u"a \"b\" c");
    EXPECT_EQ(Body(), "A = \"a \"b\" c\"\r\n");
}

TEST_F(ConfigWriter, EmptyValuesAreWritten)
{
    Set(u"A", u"", SettingKindText);
    Set(u"B", u"", SettingKindPath);
    EXPECT_EQ(Body(), "A = \"\"\r\nB = \r\n");
}

TEST_F(ConfigWriter, EmptyCommentIsTakenFromTheDefaultTable)
{
    Set(u"A", u"1", SettingKindInteger);
    Set(u"B", u"1", SettingKindInteger, u"# own\n");
    for (const char16_t* name : {u"A", u"B", u"C"})
        m_store.SetSetting(name, u"9", SettingKindInteger, u"# default\n", kDefaultTable);
    EXPECT_EQ(Body(), "# default\r\nA = 1\r\n# own\r\nB = 1\r\n");
}

TEST_F(ConfigWriter, VariablesAreInOrdinalNameOrder)
{
    ReadConfig(m_store, kCurrentTable, "b = 1\n_A = 2\nB = 3\nA = 4\n1 = 5\n");
    EXPECT_EQ(Body(), "1 = 5\r\nA = 4\r\nB = 3\r\n_A = 2\r\nb = 1\r\n");
}

TEST_F(ConfigWriter, DescriptionOf250CharactersIsWrittenInThreeLines)
{
    Text description;
    while (description.size() < 250)
        description += u"abcdefghi ";
    Set(u"A", u"1", SettingKindFlag, MakeCommentBlock(description));
    std::string tenWords;
    for (int i = 0; i < 10; ++i)
        tenWords += i == 0 ? "abcdefghi" : " abcdefghi";
    const std::string fiveWords = tenWords.substr(0, 50);
    EXPECT_EQ(Body(),
              "\r\n#\r\n# " + tenWords + "\r\n# " + tenWords + "\r\n# " + fiveWords + "\r\n#\r\nA = 1\r\n");
}

TEST_F(ConfigWriter, HeaderBecomesTheFirstVariablesCommentWhenNothingSeparatesThem)
{
    Set(u"A", u"1", SettingKindInteger);
    std::string first;
    ASSERT_TRUE(WriteConfig(m_store, u"#\n# one\n#", first));
    EXPECT_EQ(first, "#\r\n# one\r\n#\r\nA = 1\r\n");

    SettingStore again;
    ReadConfig(again, kCurrentTable, first);
    EXPECT_EQ(again.FindSetting(u"A", kCurrentTable)->comment, u"#\n# one\n#\n");
    std::string second;
    ASSERT_TRUE(WriteConfig(again, u"#\n# two\n#", second));
    EXPECT_EQ(second, "#\r\n# two\r\n#\r\n#\r\n# one\r\n#\r\nA = 1\r\n");
}

TEST_F(ConfigWriter, CommentBlockSurvivesReadingAndWriting)
{
    Set(u"A", u"1", SettingKindFlag, MakeCommentBlock(u"One line."));
    std::string bytes;
    ASSERT_TRUE(WriteConfig(m_store, u"# header\n#", bytes));
    SettingStore again;
    ReadConfig(again, kCurrentTable, bytes);
    EXPECT_EQ(again.FindSetting(u"A", kCurrentTable)->comment, u"\n#\n# One line.\n#\n");
}

TEST_F(ConfigWriter, ListCommentStandsAboveTheFirstItemOnly)
{
    Set(u"A", u"a;b", SettingKindText, u"# c\n");
    EXPECT_EQ(Body(), "# c\r\nA = a\r\nA > b\r\n");
}

TEST_F(ConfigWriter, ListItemsLoseQuotesAndOuterBlanks)
{
    Set(u"A", u" a b ;\"c\"; \"d e\" ");
    Set(u"B", u"x;y", SettingKindPath);
    EXPECT_EQ(Body(), "A = a b\r\nA > c\r\nA > d e\r\nB = x\r\nB > y\r\n");
}

TEST_F(ConfigWriter, EmptyListItemsAreSkipped)
{
    Set(u"A", u";;a; ;b;");
    EXPECT_EQ(Body(), "A = a\r\nA > b\r\n");
}

TEST_F(ConfigWriter, ListOfEmptyItemsWritesNothing)
{
    Set(u"A", u"; ;\"\";", SettingKindText, u"# c\n");
    EXPECT_EQ(Body(), "");
}

TEST_F(ConfigWriter, LongListItemsAreNotCut)
{
    const Text item(5000, u'i');
    Set(u"A", item + u";" + item);
    const std::string bytes(5000, 'i');
    EXPECT_EQ(Body(), "A = " + bytes + "\r\nA > " + bytes + "\r\n");
}

TEST_F(ConfigWriter, NulInAListIsKept)
{
    Set(u"A", TextView(u"a\0b;c", 5));
    EXPECT_EQ(Body(), std::string("A = a\0b\r\nA > c\r\n", 16));
}

TEST_F(ConfigWriter, DefaultTableIsNotWritten)
{
    m_store.SetSetting(u"A", u"1", SettingKindText, u"", kDefaultTable);
    EXPECT_EQ(Body(), "");
}

TEST_F(ConfigWriter, HeaderNamesDateUserAndComputer)
{
    EXPECT_EQ(
        MakeHeader({u"Friday 20 November 2026, 19:12:00", u"Jane Admin", u"OFFICE-01"}),
        u"#\n# Orthoval Administration Configuration File.\n#\n# NOTE: This is a standard MicroStation "
        u"configuration file read in at the\n#       application level. Variables can be copied from here "
        u"into the User\n#       or Project configuration file to override them at various workspace\n#     "
        u"  levels. See the Orthoval Administrator's Guide for more\n#       information. Note also that "
        u"commenting out a variable by preceding\n#       it with a '#' symbol will require a restart of "
        u"MicroStation to\n#       purge it from memory.\n#\n# This file was last saved on Friday 20 "
        u"November 2026, 19:12:00 by user Jane Admin on machine 'OFFICE-01'\n#");
}

TEST_F(ConfigWriter, SaveDateIsWrittenInWords)
{
    std::tm time{};
    time.tm_year = 126;
    time.tm_mon = 10;
    time.tm_mday = 5;
    time.tm_wday = 4;
    time.tm_hour = 7;
    time.tm_sec = 9;
    EXPECT_EQ(FormatSaveDate(time), u"Thursday 05 November 2026, 07:00:09");
}

TEST_F(ConfigWriter, RefusedCharacterNamesItsVariable)
{
    Set(u"A", u"1");
    Set(u"B", u"in \u20AC");
    Set(u"C", u"\u4E00");
    std::string bytes;
    const WriteResult result = WriteConfig(m_store, u"#", bytes);
    EXPECT_FALSE(result);
    EXPECT_FALSE(result.inHeader);
    EXPECT_EQ(result.variable, u"B");
    EXPECT_EQ(result.character, u"\u20AC");
}

TEST_F(ConfigWriter, RefusedCharacterMayStandInACommentOrBeAPair)
{
    Set(u"A", u"1", SettingKindText, u"# \U0001F600\n");
    std::string bytes;
    const WriteResult result = WriteConfig(m_store, u"#", bytes);
    EXPECT_EQ(result.variable, u"A");
    EXPECT_EQ(result.character, u"\U0001F600");
}

TEST_F(ConfigWriter, HalfAPairIsRefusedByItself)
{
    const Text half(1, u'\xD83D');
    for (const Text& behind : {Text(u"x"), Text(1, u'\xE000'), half}) {
        Set(u"A", half + behind);
        std::string bytes;
        const WriteResult result = WriteConfig(m_store, u"#", bytes);
        EXPECT_FALSE(result);
        EXPECT_EQ(result.character, half);
    }
}

TEST_F(ConfigWriter, RefusedCharacterInTheHeaderIsTold)
{
    std::string bytes;
    const WriteResult result = WriteConfig(m_store, u"# \u4E00", bytes);
    EXPECT_FALSE(result);
    EXPECT_TRUE(result.inHeader);
    EXPECT_EQ(result.character, u"\u4E00");
}

TEST_F(ConfigWriter, LineBreaksInsideNamesAndValuesAreWrittenAsCrLf)
{
    Set(u"A\nB", u"x\ny");
    Set(u"C", u"x\ny;z");
    EXPECT_EQ(Body(), "A\r\nB = \"x\r\ny\"\r\nC = x\r\ny\r\nC > z\r\n");
}

TEST_F(ConfigWriter, CharacterBehindOthersOfTheLocaleIsRefused)
{
    Set(u"A", u"\u00E9\u00FF\u0100", SettingKindText, u"# \u00E9\n");
    std::string bytes;
    const WriteResult result = WriteConfig(m_store, u"#", bytes);
    EXPECT_EQ(result.variable, u"A");
    EXPECT_EQ(result.character, u"\u0100");
}

#ifndef _WIN32

TEST_F(ConfigWriter, Utf8LocaleSpellsEveryText)
{
    const test::ScopedLocale locale("C.UTF-8");
    ASSERT_TRUE(locale.IsSet());
    Set(u"A", u"\u00E9", SettingKindText, u"# plain\n");
    Set(u"B", u"plain", SettingKindText, u"# \u20AC\n");
    Set(u"C\u00FF", u"1;\U0001F600", SettingKindText);
    EXPECT_EQ(Body(), "# plain\r\nA = \"\xC3\xA9\"\r\n# \xE2\x82\xAC\r\nB = \"plain\"\r\n"
                      "C\xC3\xBF = 1\r\nC\xC3\xBF > \xF0\x9F\x98\x80\r\n");
}

TEST_F(ConfigWriter, HalvesOfAPairThatMeetAreOneCharacter)
{
    const test::ScopedLocale locale("C.UTF-8");
    ASSERT_TRUE(locale.IsSet());
    Set(Text(1, char16_t{0xDE00}), u"1", SettingKindInteger, Text(u"# ") + char16_t{0xD83D});
    EXPECT_EQ(Body(), "# \xF0\x9F\x98\x80 = 1\r\n");
}

#endif

TEST_F(ConfigWriter, EveryByteOfTheLocaleSurvivesReadingAndWriting)
{
    std::string value;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\n' && byte != '\r' && byte != ';' && byte != '"')
            value.push_back(static_cast<char>(byte));
    }
    ReadConfig(m_store, kCurrentTable, "A = x" + value + "x\n");
    EXPECT_EQ(Body(), "A = \"x" + value + "x\"\r\n");
}

} // namespace
} // namespace ov

#include "app/cmd_line_info.h"

#include <gtest/gtest.h>

TEST(CommandLine, KeywordSetsItsText)
{
    CCmdLineInfo info;
    info.ParseParam(L"DEFAULT:C:\\Standards\\defaults.cfg", FALSE, FALSE);
    info.ParseParam(L"CURRENT:D:\\office.cfg", FALSE, FALSE);
    info.ParseParam(L"USER:J. Reeve", FALSE, TRUE);
    EXPECT_EQ(info.m_defaultPath, u"C:\\Standards\\defaults.cfg");
    EXPECT_EQ(info.m_currentPath, u"D:\\office.cfg");
    EXPECT_EQ(info.m_userName, u"J. Reeve");
}

TEST(CommandLine, KeywordBehindACharacterKeepsItsColon)
{
    CCmdLineInfo info;
    info.ParseParam(L"xDEFAULT:a.cfg", FALSE, FALSE);
    EXPECT_EQ(info.m_defaultPath, u":a.cfg");
}

TEST(CommandLine, KeywordsAreCaseSensitive)
{
    CCmdLineInfo info;
    info.ParseParam(L"default:a.cfg", FALSE, FALSE);
    EXPECT_EQ(info.m_defaultPath, u"default:a.cfg"); // an ordinary first parameter
}

TEST(CommandLine, TheFirstKeywordInOrderOfSearchWins)
{
    CCmdLineInfo info;
    info.ParseParam(L"USER:DEFAULT:", FALSE, FALSE);
    EXPECT_EQ(info.m_defaultPath, u"AULT:");
    EXPECT_EQ(info.m_userName, u"");
}

TEST(CommandLine, KeywordIsTakenFromASwitchToo)
{
    CCmdLineInfo info;
    info.ParseParam(L"USER:Jane", TRUE, FALSE);
    EXPECT_EQ(info.m_userName, u"Jane");
}

TEST(CommandLine, ASinglePositionalParameterSetsBothPaths)
{
    CCmdLineInfo info;
    info.ParseParam(L"office.cfg", FALSE, TRUE);
    EXPECT_EQ(info.m_defaultPath, u"office.cfg");
    EXPECT_EQ(info.m_currentPath, u"office.cfg");
}

TEST(CommandLine, PositionalParametersFillInOrderAndTheRestIsIgnored)
{
    CCmdLineInfo info;
    info.ParseParam(L"d.cfg", FALSE, FALSE);
    info.ParseParam(L"c.cfg", FALSE, FALSE);
    info.ParseParam(L"Jane", FALSE, FALSE);
    info.ParseParam(L"further", FALSE, TRUE);
    EXPECT_EQ(info.m_defaultPath, u"d.cfg");
    EXPECT_EQ(info.m_currentPath, u"c.cfg");
    EXPECT_EQ(info.m_userName, u"Jane");
}

TEST(CommandLine, SwitchesAndEmptyParametersAreIgnored)
{
    CCmdLineInfo info;
    info.ParseParam(L"quiet", TRUE, FALSE);
    info.ParseParam(L"", FALSE, FALSE);
    info.ParseParam(L"d.cfg", FALSE, FALSE);
    EXPECT_EQ(info.m_defaultPath, u"d.cfg");
    EXPECT_EQ(info.m_currentPath, u"");
}

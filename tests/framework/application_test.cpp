#include "tests/framework/ids.h"
#include "tests/framework/test_app.h"

#include <gtest/gtest.h>

namespace
{
struct Parameter {
    ov::Text text;
    bool flag;
    bool last;
    bool operator==(const Parameter&) const = default;
};

class CRecordingInfo : public CCommandLineInfo
{
  public:
    void ParseParam(LPCWSTR parameter, BOOL isFlag, BOOL isLast) override
    {
        m_parameters.push_back({FromWide(parameter), isFlag != FALSE, isLast != FALSE});
    }
    std::vector<Parameter> m_parameters;
};
} // namespace

TEST(CommandLine, SwitchCharactersAreStripped)
{
    CRecordingInfo info;
    CWinApp::ParseCommandLine(info, L"program.exe -one /two \"three four\" -");
    const std::vector<Parameter> expected = {
        {u"one", true, false}, {u"two", true, false}, {u"three four", false, false}, {u"", true, true}};
    EXPECT_EQ(expected, info.m_parameters);
}

TEST(CommandLine, ProgramNameAloneGivesNothing)
{
    CRecordingInfo info;
    CWinApp::ParseCommandLine(info, L"\"C:\\some folder\\program.exe\"");
    EXPECT_TRUE(info.m_parameters.empty());
}

TEST(CommandLine, FirstPlainParameterIsTheFileName)
{
    CCommandLineInfo info;
    CWinApp::ParseCommandLine(info, L"program.exe /silent first.cfg second.cfg");
    EXPECT_EQ(u"first.cfg", info.m_strFileName);
}

TEST(Application, IsFoundByTheFramework)
{
    EXPECT_EQ(&theTestApp, AfxGetApp());
    EXPECT_STREQ(L"Framework Tests", theTestApp.m_pszAppName);
    EXPECT_EQ(nullptr, AfxGetMainWnd());
    theTestApp.SetRegistryKey(L"Some Company");
    EXPECT_EQ(u"Some Company", theTestApp.GetRegistryKey());
}

TEST(Application, MainWindowIsForgottenWithItsWindow)
{
    CHostWindow host;
    const CMainWindowScope scope(&host);
    EXPECT_EQ(&host, AfxGetMainWnd());
    host.DestroyWindow();
    EXPECT_EQ(nullptr, AfxGetMainWnd());
}

TEST(Application, MissingIconIsNull)
{
    EXPECT_EQ(nullptr, theTestApp.LoadIcon(IDD_MISSING));
}

TEST(StringTable, GivesTheWholeText)
{
    EXPECT_EQ(u"Good morning", AfxLoadString(IDS_GREETING));
    EXPECT_EQ(17u * 16u, AfxLoadString(IDS_LONG).size());
    EXPECT_EQ(u"", AfxLoadString(IDS_MISSING));
}

// The calls of scripts and hosts: the dialog opens at once, whatever could be asked about the file.
#include "tests/launch/launcher_session.h"

#include <windows.h>

namespace
{

class OldCallsTest : public LauncherSession
{
  protected:
    OldCallsTest()
    {
        Put(L"office.cfg", "%include common.cfg\r\n_A = 1\r\n");
        Put(L"office.bak", "_A = 2\r\n");
        Put(L"defaults.cfg", "_A = 1\r\n");
    }

    void OpensAtOnce(const std::vector<std::wstring>& arguments)
    {
        const std::vector<std::wstring> before = Names();
        ASSERT_EQ(Shown::Dialog, Start(arguments));
        EXPECT_EQ(Shown::Nothing, Press(IDCANCEL));
        EXPECT_EQ(0U, ExitCode());
        EXPECT_EQ(before, Names());
        EXPECT_TRUE(Remembered().empty());
    }
};

TEST_F(OldCallsTest, WithTheFileToEdit)
{
    OpensAtOnce({L"DEFAULT:" + Path(L"defaults.cfg"), L"CURRENT:" + Path(L"office.cfg"), L"USER:j"});
}

TEST_F(OldCallsTest, WithTwoPaths)
{
    OpensAtOnce({Path(L"defaults.cfg"), Path(L"office.cfg")});
}

TEST_F(OldCallsTest, WithoutQuestions)
{
    OpensAtOnce({L"--no-questions", Path(L"office.cfg")});
}

TEST_F(OldCallsTest, InformationAndWrongOptionsShowNoWindow)
{
    const struct {
        std::vector<std::wstring> arguments;
        unsigned code;
    } calls[] = {
        {{L"--help"}, 0},
        {{L"--version"}, 0},
        {{L"--colour", Path(L"office.cfg")}, 2},
        {{L"--ask", L"CURRENT:" + Path(L"office.cfg")}, 2},
        {{Path(L"missing\\office.cfg"), L"DEFAULT:"}, 4},
    };
    for (const auto& call : calls) {
        EXPECT_EQ(Shown::Nothing, Start(call.arguments));
        EXPECT_EQ(call.code, ExitCode());
    }
    EXPECT_TRUE(Remembered().empty());
}

} // namespace

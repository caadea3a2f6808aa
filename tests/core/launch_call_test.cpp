// Which command lines are an administrator's, and which open the dialog at once.
#include "launch/core/launch_call.h"

#include <gtest/gtest.h>

namespace ov
{
namespace
{

bool IsKnown(const Text& parameter)
{
    return parameter == u"/USER:j" || parameter == u"-CURRENT:a.cfg";
}

LaunchCall Read(const std::vector<Text>& parameters)
{
    return ReadLaunchCall(parameters, &IsKnown);
}

TEST(LaunchCallTest, OneFileOrNoneIsAnAdministratorsCall)
{
    const LaunchCall none = Read({});
    EXPECT_TRUE(none.isAdministrators);
    EXPECT_EQ(Text(), none.path);

    const LaunchCall dropped = Read({u"C:\\a b.cfg"});
    EXPECT_TRUE(dropped.isAdministrators);
    EXPECT_EQ(u"C:\\a b.cfg", dropped.path);
    EXPECT_TRUE(dropped.rest.empty());
    EXPECT_FALSE(dropped.givesDefaults);
}

TEST(LaunchCallTest, DefaultsAndUserMayAccompanyTheFile)
{
    const LaunchCall call = Read({u"DEFAULT:d.cfg", u"a.cfg", u"USER:j"});
    EXPECT_TRUE(call.isAdministrators);
    EXPECT_EQ(u"a.cfg", call.path);
    EXPECT_EQ((std::vector<std::size_t>{0, 2}), call.rest);
    EXPECT_TRUE(call.givesDefaults);
    EXPECT_TRUE(Read({u"/USER:j"}).isAdministrators);
}

TEST(LaunchCallTest, CallsThatNameTheFileToEditOpenAtOnce)
{
    for (const std::vector<Text>& parameters : std::vector<std::vector<Text>>{
             {u"CURRENT:a.cfg"},
             {u"-CURRENT:a.cfg"},
             {u"CURRENT:"},
             {u"DEFAULT:d.cfg", u"CURRENT:a.cfg", u"USER:j"},
             {u"d.cfg", u"a.cfg"},
             {u"d.cfg", u"a.cfg", u"j"},
             {u"a.cfg", u"CURRENT:b.cfg"},
             {u"", u"a.cfg"}, // from a script whose variable is empty
         }) {
        const LaunchCall call = Read(parameters);
        EXPECT_FALSE(call.isAdministrators);
        EXPECT_EQ(std::nullopt, call.wrong);
        EXPECT_EQ(parameters.size(), call.rest.size());
    }
}

TEST(LaunchCallTest, NoQuestionsIsForEveryCall)
{
    const LaunchCall call = Read({u"a.cfg", u"--no-questions", u"USER:j"});
    EXPECT_TRUE(call.isAdministrators);
    EXPECT_TRUE(call.noQuestions);
    EXPECT_EQ(u"a.cfg", call.path);
    EXPECT_EQ(std::vector<std::size_t>{2}, call.rest);
    EXPECT_FALSE(Read({u"a.cfg"}).noQuestions);
    EXPECT_FALSE(Read({u"--no-questions", u"CURRENT:a.cfg"}).isAdministrators);
}

TEST(LaunchCallTest, AskAndForgetAreForAdministrators)
{
    const LaunchCall call = Read({u"--forget", u"a.cfg", u"--ask"});
    EXPECT_TRUE(call.isAdministrators);
    EXPECT_TRUE(call.ask);
    EXPECT_TRUE(call.forget);
    EXPECT_EQ(u"a.cfg", call.path);
    EXPECT_EQ(1U, Read({u"CURRENT:a.cfg", u"--ask"}).wrong);
    EXPECT_EQ(0U, Read({u"--forget", u"d.cfg", u"a.cfg"}).wrong);
    EXPECT_EQ(1U, Read({u"--no-questions", u"--ask"}).wrong);
}

TEST(LaunchCallTest, FindsUnknownOptions)
{
    EXPECT_EQ(1U, Read({u"a.cfg", u"--colour"}).wrong);
    EXPECT_EQ(0U, Read({u"/x", u"CURRENT:a.cfg"}).wrong);
    EXPECT_EQ(0U, Read({u"--ASK"}).wrong);
}

} // namespace
} // namespace ov

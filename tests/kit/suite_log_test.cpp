// How the test kit reads the logs of test programs.
#include "tests/kit/suite_log.h"

#include <gtest/gtest.h>

namespace ov::kit
{
namespace
{

TEST(SuiteLog, ReadsTheNumbersOfTheSummary)
{
    const SuiteResult result = ReadSuiteLog("[       OK ] A.B (3 ms)\r\n"
                                            "[==========] 4 tests from 2 test suites ran. (9 ms total)\r\n"
                                            "[  PASSED  ] 1 test.\r\n"
                                            "[  SKIPPED ] 1 test, listed below:\r\n"
                                            "[  SKIPPED ] A.S\r\n"
                                            "[  FAILED  ] 2 tests, listed below:\r\n"
                                            "[  FAILED  ] A.C\r\n"
                                            "[  FAILED  ] A.D/0, where GetParam() = 7\r\n",
                                            1);
    EXPECT_EQ(result.passed, 1);
    EXPECT_EQ(result.skipped, 1);
    EXPECT_EQ(result.failed, 2);
    EXPECT_EQ(result.failedTests, (std::vector<std::string>{"A.C", "A.D/0, where GetParam() = 7"}));
}

TEST(SuiteLog, ASuiteThatPassesHasNoFailure)
{
    const SuiteResult result = ReadSuiteLog("[  PASSED  ] 12 tests.\n", 0);
    EXPECT_EQ(result.passed, 12);
    EXPECT_EQ(result.skipped, 0);
    EXPECT_EQ(result.failed, 0);
    EXPECT_TRUE(result.failedTests.empty());
}

TEST(SuiteLog, ATestThatFailsIsCountedOnceByTheSummary)
{
    const SuiteResult result = ReadSuiteLog("[  FAILED  ] A.B (3 ms)\n"
                                            "[  PASSED  ] 0 tests.\n"
                                            "[  FAILED  ] 1 test, listed below:\n"
                                            "[  FAILED  ] A.B",
                                            1);
    EXPECT_EQ(result.failed, 1);
    EXPECT_EQ(result.failedTests, std::vector<std::string>{"A.B"});
}

TEST(SuiteLog, ACrashBeforeTheSummaryIsAFailure)
{
    const SuiteResult result = ReadSuiteLog("[       OK ] A.B (3 ms)\n[ RUN      ] A.C\n", 3);
    EXPECT_EQ(result.passed, 0);
    EXPECT_EQ(result.failed, 1);
    EXPECT_EQ(result.failedTests,
              std::vector<std::string>{"the program ended with exit code 3 and reported no test"});
}

TEST(SuiteLog, ACrashBehindTheSummaryIsAFailure)
{
    EXPECT_EQ(ReadSuiteLog("[  PASSED  ] 12 tests.\n", 0xC0000005).failed, 1);
}

TEST(SuiteLog, NoTestAtAllIsAFailure)
{
    EXPECT_EQ(ReadSuiteLog("", 0).failed, 1);
    EXPECT_EQ(ReadSuiteLog("[  PASSED  ] 0 tests.\n", 0).failed, 1);
}

} // namespace
} // namespace ov::kit

/// Reads the results in the log of a test program.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ov::kit
{

/// The results of one suite.
struct SuiteResult {
    int passed = 0;
    int failed = 0;
    int skipped = 0; ///< Not permitted on this machine.
    std::vector<std::string> failedTests;
};

/// Reads the summary of GoogleTest at the end of a log. A program that ended with an exit code other
/// than 0 without naming a failed test, or that reports no test at all, counts as one failure.
SuiteResult ReadSuiteLog(std::string_view log, unsigned long exitCode);

} // namespace ov::kit

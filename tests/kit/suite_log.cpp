#include "tests/kit/suite_log.h"

#include <charconv>

namespace ov::kit
{

namespace
{

// The number after a mark such as "[  PASSED  ] "; 0 if the line does not have that form.
int CountBehind(std::string_view line, std::string_view mark, std::string_view rest)
{
    if (!line.starts_with(mark))
        return 0;
    line.remove_prefix(mark.size());
    int count = 0;
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), count);
    line.remove_prefix(static_cast<std::size_t>(end - line.data()));
    return error == std::errc{} && (line.starts_with(" test" + std::string(rest)) ||
                                    line.starts_with(" tests" + std::string(rest)))
               ? count
               : 0;
}

void ReadLine(std::string_view line, SuiteResult& result)
{
    constexpr std::string_view failed = "[  FAILED  ] ";
    constexpr std::string_view listed = ", listed below";
    if (const int count = CountBehind(line, "[  PASSED  ] ", "."))
        result.passed = count;
    else if (const int skipped = CountBehind(line, "[  SKIPPED ] ", listed))
        result.skipped = skipped;
    else if (const int failures = CountBehind(line, failed, listed))
        result.failed = failures;
    else if (result.failed != 0 && line.starts_with(failed))
        result.failedTests.emplace_back(line.substr(failed.size()));
}

} // namespace

SuiteResult ReadSuiteLog(std::string_view log, unsigned long exitCode)
{
    SuiteResult result;
    while (!log.empty()) {
        const std::size_t end = log.find('\n');
        std::string_view line = log.substr(0, end);
        log.remove_prefix(end == std::string_view::npos ? log.size() : end + 1);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        ReadLine(line, result);
    }
    if (result.failed == 0 && (exitCode != 0 || result.passed == 0)) {
        result.failed = 1;
        result.failedTests.push_back("the program ended with exit code " + std::to_string(exitCode) +
                                     (result.passed == 0 ? " and reported no test" : ""));
    }
    return result;
}

} // namespace ov::kit

// ovRunTests, the main program of the test kit: runs the test programs in its own folder. Prints one
// line per suite and, as the last line, "N passed, N failed".
#include "tests/kit/handle.h"
#include "tests/kit/suite_log.h"

#include <windows.h>
#include <chrono>
#include <cstdio>
#include <cwchar>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace
{

namespace fs = std::filesystem;

struct Suite {
    const wchar_t* name;
    const wchar_t* program;
};

constexpr Suite kSuites[] = {
    {L"core", L"core_tests.exe"},      {L"saving", L"save_tests.exe"},
    {L"companion", L"cli_tests.exe"},  {L"framework", L"framework_tests.exe"},
    {L"windows", L"window_tests.exe"}, {L"program", L"app_tests.exe"},
    {L"dialog", L"ui_tests.exe"},      {L"launcher", L"launcher_tests.exe"},
    {L"walk", L"walker_tests.exe"},
};

constexpr const char* kUsage =
    "usage: run-tests [--wine] [--logs=NAME] [--gtest_OPTION...] [all|SUITE...]\n"
    "\n"
    "Runs all suites, or only the named ones: core, saving, companion, framework,\n"
    "windows, program, dialog, launcher, walk. The options of GoogleTest go to the\n"
    "test programs.\n"
    "Tests about Wine have \"Wine\" in their names and run with --wine only.\n"
    "The logs are in the folder NAME beside the programs, \"logs\" by default.\n";

// Much more than a suite needs; ends a suite that hangs.
constexpr DWORD kSuiteMilliseconds = 20 * 60 * 1000;
constexpr DWORD kEndedForTime = 124;
constexpr DWORD kNotStarted = 127;

struct Options {
    std::wstring logs = L"logs"; ///< The folder of the logs, beside the programs.
    std::wstring passedOn;
    std::vector<const Suite*> suites;
};

fs::path OwnFolder()
{
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size())
            return fs::path(path.substr(0, length)).parent_path();
        path.resize(path.size() * 2);
    }
}

const Suite* FindSuite(const wchar_t* name)
{
    for (const Suite& suite : kSuites) {
        if (std::wcscmp(suite.name, name) == 0)
            return &suite;
    }
    return nullptr;
}

// Returns false for an argument that is neither an option nor a suite.
bool ReadArguments(int count, wchar_t** arguments, Options& options)
{
    std::wstring filter = L" --gtest_filter=-*Wine*";
    for (int index = 1; index < count; ++index) {
        const std::wstring argument = arguments[index];
        if (argument == L"--wine")
            filter.clear();
        else if (argument.starts_with(L"--logs="))
            options.logs = argument.substr(std::wcslen(L"--logs="));
        else if (argument.starts_with(L"--gtest_"))
            options.passedOn += L" \"" + argument + L"\"";
        else if (const Suite* const suite = FindSuite(arguments[index]))
            options.suites.push_back(suite);
        else if (argument != L"all")
            return false;
    }
    // The last filter counts, so a filter of the user replaces this one.
    options.passedOn.insert(0, filter);
    if (options.suites.empty()) {
        for (const Suite& suite : kSuites)
            options.suites.push_back(&suite);
    }
    return true;
}

// Starts the program suspended, so that it belongs to the job before it starts other processes.
PROCESS_INFORMATION Start(const fs::path& program, const std::wstring& arguments, const fs::path& log)
{
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    const Handle output(::CreateFileW(log.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    const Handle input(::CreateFileW(L"NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                                     OPEN_EXISTING, 0, nullptr));
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = input.value;
    startup.hStdOutput = output.value;
    startup.hStdError = output.value;
    PROCESS_INFORMATION process = {};
    std::wstring commandLine = L'"' + program.native() + L'"' + arguments;
    ::CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, TRUE, CREATE_SUSPENDED, nullptr,
                     nullptr, &startup, &process);
    return process;
}

// Runs the program and returns its exit code. Ends its child processes with it.
DWORD Run(const fs::path& program, const std::wstring& arguments, const fs::path& log)
{
    const Handle job(::CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    ::SetInformationJobObject(job.value, JobObjectExtendedLimitInformation, &limits, sizeof limits);
    const PROCESS_INFORMATION started = Start(program, arguments, log);
    if (!started.hProcess)
        return kNotStarted;
    const Handle process(started.hProcess);
    const Handle thread(started.hThread);
    ::AssignProcessToJobObject(job.value, process.value);
    ::ResumeThread(thread.value);
    if (::WaitForSingleObject(process.value, kSuiteMilliseconds) != WAIT_OBJECT_0) {
        ::TerminateJobObject(job.value, kEndedForTime);
        return kEndedForTime;
    }
    DWORD code = 0;
    ::GetExitCodeProcess(process.value, &code);
    return code;
}

std::string ReadBytes(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

ov::kit::SuiteResult RunSuite(const fs::path& folder, const Suite& suite, const Options& options)
{
    const fs::path log = folder / options.logs / (std::wstring(suite.name) + L".log");
    const auto start = std::chrono::steady_clock::now();
    const DWORD code = Run(folder / suite.program, options.passedOn, log);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    auto result = ov::kit::ReadSuiteLog(ReadBytes(log), code);
    const std::string skipped =
        result.skipped == 0 ? "" : "  (" + std::to_string(result.skipped) + " skipped: not permitted here)";
    std::printf("%-10ls %4d passed, %d failed  %.1f s%s\n", suite.name, result.passed, result.failed,
                seconds.count(), skipped.c_str());
    for (const std::string& test : result.failedTests)
        std::printf("    failed: %s\n", test.c_str());
    if (result.failed != 0)
        std::printf("    The whole log: %ls\\%ls.log\n", options.logs.c_str(), suite.name);
    std::fflush(stdout);
    return result;
}

} // namespace

int wmain(int count, wchar_t** arguments)
{
    if (count == 2 && std::wcscmp(arguments[1], L"--help") == 0) {
        std::fputs(kUsage, stdout);
        return 0;
    }
    Options options;
    if (!ReadArguments(count, arguments, options)) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    // A test program that crashes must end and not wait until a message box is closed.
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    const fs::path folder = OwnFolder();
    ::SetEnvironmentVariableW(L"OV_TEST_DATA", folder.c_str());
    std::error_code error;
    fs::create_directory(folder / options.logs, error);
    if (error) {
        std::fputs("The folder of the logs cannot be created.\n", stderr);
        return 2;
    }
    int passed = 0;
    int failed = 0;
    for (const Suite* const suite : options.suites) {
        const auto result = RunSuite(folder, *suite, options);
        passed += result.passed;
        failed += result.failed;
    }
    std::printf("%d passed, %d failed\n", passed, failed);
    return failed == 0 ? 0 : 1;
}

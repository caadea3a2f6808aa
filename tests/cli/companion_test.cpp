// Runs ovprefs.exe as a command prompt does, in a folder whose name needs quotes.
#include "tests/kit/handle.h"

#include <gtest/gtest.h>

#include <windows.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <system_error>

namespace
{

namespace fs = std::filesystem;

constexpr DWORD kMostMilliseconds = 60'000;
// A process that has ended may hold its streams for an instant.
constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

fs::path ProgramPath()
{
    std::wstring path(32767, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return fs::path(path).parent_path() / L"ovprefs.exe";
}

void Put(const fs::path& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string Get(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

class Companion : public testing::Test
{
  protected:
    Companion()
        : m_folder(fs::temp_directory_path() /
                   (L"Companion \u03A9 & Co " + std::to_wstring(::GetCurrentProcessId())))
    {
        fs::create_directory(m_folder);
    }
    ~Companion() override
    {
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }

    // Runs the program in the folder with the standard streams in files. Returns its exit code.
    DWORD Run(const std::wstring& arguments)
    {
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        const Handle output(::CreateFileW((m_folder / L"output").c_str(), GENERIC_WRITE, kShared, &inherited,
                                          CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
        const Handle errors(::CreateFileW((m_folder / L"errors").c_str(), GENERIC_WRITE, kShared, &inherited,
                                          CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
        STARTUPINFOW startup = {};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
        startup.hStdOutput = output.value;
        startup.hStdError = errors.value;
        std::wstring commandLine = L"\"" + ProgramPath().native() + L"\" " + arguments;
        PROCESS_INFORMATION started = {};
        if (!::CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr,
                              m_folder.c_str(), &startup, &started))
            throw std::runtime_error("ovprefs.exe cannot be started");
        const Handle process(started.hProcess);
        const Handle thread(started.hThread);
        EXPECT_EQ(::WaitForSingleObject(process.value, kMostMilliseconds), WAIT_OBJECT_0);
        DWORD code = 0;
        ::GetExitCodeProcess(process.value, &code);
        return code;
    }

    fs::path File(const wchar_t* name) const { return m_folder / name; }
    std::string Printed() const { return Get(File(L"output")); }
    std::string Problems() const { return Get(File(L"errors")); }

  private:
    fs::path m_folder;
};

TEST_F(Companion, PrintsItsVersion)
{
    EXPECT_EQ(Run(L"--version"), 0u);
    EXPECT_TRUE(Printed().starts_with("ovprefs ")) << Printed();
    EXPECT_EQ(Problems(), "");
}

TEST_F(Companion, SetsAndGetsValues)
{
    Put(File(L"York \u03A9.cfg"), "# ours\r\nA = 1\r\n");
    EXPECT_EQ(Run(L"set \"York \u03A9.cfg\" \"A=two words\" B=\u00E4"), 0u) << Problems();
    EXPECT_EQ(Get(File(L"York \u03A9.cfg")), "# ours\r\nA = \"two words\"\r\nB = \"\xE4\"\r\n");
    EXPECT_EQ(Run(L"get \"York \u03A9.cfg\" B A"), 0u) << Problems();
    EXPECT_EQ(Printed(), "\xC3\xA4\ntwo words\n");
}

TEST_F(Companion, RefusesWhatCannotBeKept)
{
    Put(File(L"a.cfg"), "A = 1\r\n");
    EXPECT_EQ(Run(L"set a.cfg \"A=a # b\""), 1u);
    EXPECT_EQ(Problems(), "ovprefs: a.cfg: A: a value with # cannot be kept\n");
    EXPECT_EQ(Printed(), "");
    EXPECT_EQ(Get(File(L"a.cfg")), "A = 1\r\n");
}

} // namespace

// A host for the universal C runtime, whose own setlocale the library does not see.
#include "pages/branding/ids.h"
#include "resources/ids.h"
#include "tests/support/await.h"
#include "tests/support/category_list.h"
#include "tests/support/control_actions.h"
#include "tests/support/control_state.h"
#include "tests/support/message_box.h"
#include "tests/support/process.h"
#include "tests/support/test_files.h"
#include "tests/support/window_search.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

using namespace uidriver;

namespace
{

/// The text's bytes in the ANSI code page; nothing if the code page lacks a character.
std::optional<std::string> AnsiBytes(const std::wstring& text)
{
    std::string bytes(text.size() * 4, '\0');
    BOOL lost = FALSE;
    const int size =
        WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.data(), static_cast<int>(text.size()),
                            bytes.data(), static_cast<int>(bytes.size()), nullptr, &lost);
    if (size == 0 || lost)
        return std::nullopt;
    bytes.resize(static_cast<std::size_t>(size));
    return bytes;
}

class UniversalRuntimeTest : public testing::Test
{
  protected:
    void SetUp() override
    {
        const auto bytes = GetACP() == CP_UTF8 ? std::nullopt : AnsiBytes(L"\u20AC");
        if (!bytes)
            GTEST_SKIP() << "the code page of this computer has no euro sign that msvcrt.dll knows";
        m_euro = *bytes;
        ASSERT_TRUE(WriteBytes(m_path, "_ORTHOVAL_BRANDING_RENAME_TABLES = \"A" + m_euro + "\"\r\n"));
    }

    void TearDown() override
    {
        if (!m_host || !m_host->IsRunning())
            return;
        ADD_FAILURE() << "the dialog is still open";
        const HANDLE process = OpenProcess(PROCESS_TERMINATE, FALSE, m_host->Id());
        TerminateProcess(process, 1);
        CloseHandle(process);
    }

    bool Open(std::vector<std::wstring> arguments)
    {
        arguments.push_back(m_path);
        m_host.emplace(Folder() + L"ovUniversalHost.exe", arguments);
        m_dialog = AwaitTopWindow(L"Preferences", m_host->Id());
        return m_dialog != nullptr;
    }

    HWND Names() const { return FindControl(m_dialog, IDC_BRANDING_RENAME); }
    void Press(int id) { Click(GetDlgItem(m_dialog, id)); }
    std::string Saved() const { return ReadBytes(m_path).value_or(""); }

    std::string m_euro;
    TempFolder m_folder;
    std::wstring m_path = m_folder / L"office.cfg";
    std::optional<Process> m_host;
    HWND m_dialog = nullptr;

  private:
    static std::wstring Folder()
    {
        wchar_t path[MAX_PATH] = {};
        GetModuleFileNameW(nullptr, path, MAX_PATH);
        const std::wstring program = path;
        return program.substr(0, program.rfind(L'\\') + 1);
    }
};

TEST_F(UniversalRuntimeTest, WithTheLinesOfTheHeaderAEuroSignIsShownAndSaved)
{
    ASSERT_TRUE(Open({L"--as-the-header-says"}));
    EXPECT_EQ(L"A\u20AC", GetText(Names()));
    SetText(Names(), L"\u20AC 5");
    Press(IDC_PREFERENCES_SAVE);
    ASSERT_TRUE(m_host->AwaitEnd());
    EXPECT_EQ(0U, m_host->ExitCode());
    EXPECT_NE(std::string::npos, Saved().find("RENAME_TABLES = \"" + m_euro + " 5\"\r\n")) << Saved();
}

TEST_F(UniversalRuntimeTest, WithoutThemATypedEuroSignIsRefusedAndNothingIsWritten)
{
    const std::string before = Saved();
    ASSERT_TRUE(Open({}));
    EXPECT_NE(L"A\u20AC", GetText(Names()));
    SetText(Names(), L"\u20AC 5");
    Press(IDC_PREFERENCES_SAVE);
    const auto box = AwaitMessageBox(L"Orthoval for MicroStation Preferences", m_dialog);
    EXPECT_NE(std::wstring::npos, box.text.find(L"The variable _ORTHOVAL_BRANDING_RENAME_TABLES contains the "
                                                L"character \u20AC, which cannot be written"))
        << testing::PrintToString(box.text);
    EXPECT_TRUE(AnswerMessageBox(box.window, IDOK));
    EXPECT_EQ(before, Saved());
    Press(IDC_PREFERENCES_CANCEL);
    const auto question = AwaitMessageBox(L"Orthoval for MicroStation Preferences", m_dialog);
    EXPECT_TRUE(AnswerMessageBox(question.window, IDYES));
    ASSERT_TRUE(m_host->AwaitEnd());
    EXPECT_EQ(0U, m_host->ExitCode());
}

TEST_F(UniversalRuntimeTest, WithoutThemTheFilesBytesAreKept)
{
    ASSERT_TRUE(Open({}));
    Click(FindControl(m_dialog, IDC_BRANDING_AUTO));
    Press(IDC_PREFERENCES_SAVE);
    ASSERT_TRUE(m_host->AwaitEnd());
    EXPECT_EQ(0U, m_host->ExitCode());
    EXPECT_NE(std::string::npos, Saved().find("RENAME_TABLES = \"A" + m_euro + "\"\r\n")) << Saved();
}

} // namespace

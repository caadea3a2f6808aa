#include "tests/launch/launcher_session.h"

#include "resources/ids.h"

#include <cwctype>
#include <set>
#include <shlobj.h>

using namespace uidriver;

namespace
{

constexpr const wchar_t* UserDataVariable = L"APPDATA";

struct WindowSearch {
    DWORD process;
    HWND except;
    HWND found = nullptr;
};

BOOL CALLBACK FindEnabledDialog(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<WindowSearch*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != search.process || window == search.except || !IsWindowVisible(window) ||
        !IsWindowEnabled(window) || ClassOf(window) != L"#32770")
        return TRUE;
    search.found = window;
    return FALSE;
}

// The mnemonic of a button or a label; 0 for none.
wchar_t MnemonicOf(HWND control)
{
    const std::wstring className = ClassOf(control);
    const bool isText = className == L"Static" && (GetWindowLongPtrW(control, GWL_STYLE) & SS_NOPREFIX) != 0;
    if ((className != L"Button" && className != L"Static") || isText)
        return 0;
    const std::wstring caption = GetText(control);
    const std::size_t sign = caption.find(L'&');
    return sign == std::wstring::npos ? L'\0' : static_cast<wchar_t>(std::towupper(caption[sign + 1]));
}

std::wstring LauncherPath()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring program = path;
    return program.substr(0, program.rfind(L'\\') + 1) + L"ovPreferencesHost.exe";
}

} // namespace

LauncherSession::LauncherSession()
{
    wchar_t before[MAX_PATH] = {};
    GetEnvironmentVariableW(UserDataVariable, before, MAX_PATH);
    m_userDataBefore = before;
    SetEnvironmentVariableW(UserDataVariable, m_userData.Path().c_str());
}

LauncherSession::~LauncherSession()
{
    SetEnvironmentVariableW(UserDataVariable, m_userDataBefore.c_str());
    if (!m_launcher || !m_launcher->IsRunning())
        return;
    ADD_FAILURE() << "the launcher is still running";
    const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, m_launcher->Id());
    TerminateProcess(process, 1);
    WaitForSingleObject(process, DefaultDeadline);
    CloseHandle(process);
}

LauncherSession::Shown LauncherSession::Look()
{
    WindowSearch search{m_launcher->Id(), m_window};
    EnumWindows(FindEnabledDialog, reinterpret_cast<LPARAM>(&search));
    if (!search.found || !IsResponsive(search.found))
        return Shown::Nothing;
    m_window = search.found;
    if (GetDlgItem(m_window, IDC_HOST_START_FILE))
        return Shown::Start;
    if (GetDlgItem(m_window, IDC_HOST_QUESTION_TEXT))
        return Shown::Question;
    return GetDlgItem(m_window, IDC_PREFERENCES_CONFIG_FILE) ? Shown::Dialog : Shown::Box;
}

LauncherSession::Shown LauncherSession::AwaitNext()
{
    Shown shown = Shown::Nothing;
    Await([&] {
        shown = Look();
        return shown != Shown::Nothing || !m_launcher->IsRunning();
    });
    return shown;
}

LauncherSession::Shown LauncherSession::Start(const std::vector<std::wstring>& arguments)
{
    m_window = nullptr;
    m_launcher.emplace(LauncherPath(), arguments);
    EXPECT_TRUE(m_launcher->IsStarted());
    return AwaitNext();
}

LauncherSession::Shown LauncherSession::Press(int button)
{
    Click(GetDlgItem(m_window, button));
    return AwaitNext();
}

unsigned LauncherSession::ExitCode()
{
    EXPECT_TRUE(m_launcher->AwaitEnd());
    return m_launcher->ExitCode();
}

void LauncherSession::ExpectOrder() const
{
    RECT client = {};
    GetClientRect(m_window, &client);
    std::set<wchar_t> keys;
    std::vector<RECT> places;
    for (const HWND control : Children(m_window)) {
        if (!IsWindowVisible(control))
            continue;
        const RECT place = RectIn(control, m_window);
        RECT common = {};
        EXPECT_TRUE(UnionRect(&common, &client, &place) && EqualRect(&common, &client))
            << GetDlgCtrlID(control);
        for (const RECT& other : places)
            EXPECT_FALSE(IntersectRect(&common, &place, &other)) << GetDlgCtrlID(control);
        places.push_back(place);
        const wchar_t key = MnemonicOf(control);
        EXPECT_TRUE(key == 0 || keys.insert(key).second) << GetDlgCtrlID(control);
    }
}

std::wstring LauncherSession::Put(const std::wstring& name, const std::string& bytes)
{
    EXPECT_TRUE(WriteBytes(m_folder / name, bytes));
    return m_folder / name;
}

std::string LauncherSession::Content(const std::wstring& name) const
{
    return ReadBytes(m_folder / name).value_or("(no file)");
}

void LauncherSession::RememberDefaults(const std::wstring& path)
{
    const std::wstring folder = m_userData / L"Orthoval\\Preferences";
    SHCreateDirectoryExW(nullptr, folder.c_str(), nullptr);
    std::string bytes(path.size() * 3, '\0');
    bytes.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, path.data(), static_cast<int>(path.size()), bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr)));
    EXPECT_TRUE(WriteBytes(folder + L"\\launcher.txt", "defaults = " + bytes + "\r\n"));
}

std::vector<std::wstring> LauncherSession::Remembered() const
{
    return m_userData.Names();
}

// ovPreferencesHost opens the Preferences dialog from a command line. It is a
// console program, so that scripts wait for it and see its output and exit code.
#include "app/cmd_line_info.h"
#include "base/placeholders.h"
#include "framework/wide.h"
#include "host/host_output.h"
#include "include/ovPreferences.h"
#include "resources/ids.h"
#include "version/version.h"

#include <clocale>
#include <cwchar>

namespace
{

// Exit code of the launcher itself; all others are results of the library.
constexpr int ExitNotStarted = 2;

constexpr const wchar_t* Usage =
    L"usage: ovPreferencesHost [DEFAULT:path] [CURRENT:path] [USER:name]\n"
    L"       ovPreferencesHost defaults-path [current-path [user-name]]\n"
    L"\n"
    L"Opens the Orthoval Preferences dialog on a configuration file.\n"
    L"\n"
    L"  DEFAULT:path  the configuration file with the default values\n"
    L"  CURRENT:path  the configuration file to be edited\n"
    L"  USER:name     the name for the saved file's header; else the Windows user\n"
    L"  --help        show this text\n"
    L"  --version     show the version\n"
    L"\n"
    L"A single path is both the defaults and the file to be edited.\n"
    L"Exit code: 0 the dialog was shown, 1 it could not be set up,\n"
    L"2 wrong option, or ovPreferences.dll is missing or not the right one.";

// The path of the library in this program's folder; no other folder is searched.
std::wstring LibraryPath()
{
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            break;
        }
        path.resize(path.size() * 2);
    }
    path.resize(path.find_last_of(L"\\/") + 1);
    return path + OV_PREFERENCES_LIBRARY;
}

std::wstring SystemText(DWORD error)
{
    wchar_t text[512] = {};
    FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0, text,
                   static_cast<DWORD>(std::size(text)), nullptr);
    std::wstring result = text;
    result.erase(result.find_last_not_of(L" \r\n") + 1);
    return result;
}

// A leading "-" or "/" makes a parameter a switch.
bool IsSwitch(const wchar_t* text)
{
    return *text == L'-' || *text == L'/';
}

// True if CCmdLineInfo knows the switch: passed together with its value, it changes
// one of the texts.
bool IsKnownSwitch(const wchar_t* text)
{
    if (std::wcsncmp(text, L"--", 2) == 0)
        return false;
    const ov::Text before(1, u'\0'); // a value that no parameter can have
    CCmdLineInfo info;
    info.m_defaultPath = info.m_currentPath = info.m_userName = before;
    info.ParseParam(text + 1, TRUE, FALSE);
    return info.m_defaultPath != before || info.m_currentPath != before || info.m_userName != before;
}

// Passes the parameters on; switches lose their first character.
void Parse(CCmdLineInfo& info, int count, wchar_t** texts)
{
    for (int index = 1; index < count; ++index) {
        const wchar_t* text = texts[index];
        const bool isFlag = IsSwitch(text);
        info.ParseParam(isFlag ? text + 1 : text, isFlag, index + 1 == count);
    }
}

const wchar_t* NullIfEmpty(const ov::Text& text)
{
    return text.empty() ? nullptr : Wide(text);
}

// A string resource of the program with "%1" and "%2" replaced.
std::wstring Message(UINT id, const std::wstring& first, const std::wstring& second)
{
    const wchar_t* resource = nullptr;
    const int length = LoadStringW(GetModuleHandleW(nullptr), id, reinterpret_cast<wchar_t*>(&resource), 0);
    const ov::Text pattern = FromWide({resource, static_cast<size_t>(length)});
    return Wide(ov::FillPlaces(pattern, {FromWide(first), FromWide(second)}));
}

int ShowDialog(const CCmdLineInfo& info)
{
    const std::wstring path = LibraryPath();
    HMODULE library = LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (!library) {
        const DWORD error = GetLastError();
        const bool isMissing = error == ERROR_MOD_NOT_FOUND || error == ERROR_FILE_NOT_FOUND;
        ShowError(Message(isMissing ? IDS_HOST_LIBRARY_MISSING : IDS_HOST_LIBRARY_DAMAGED, path,
                          SystemText(error)));
        return ExitNotStarted;
    }
    const auto showDialog = reinterpret_cast<ovPreferences_showDialogEx_t>(
        reinterpret_cast<void*>(GetProcAddress(library, OV_PREFERENCES_SHOW_DIALOG_EX_NAME)));
    if (!showDialog) {
        ShowError(Message(IDS_HOST_EXPORT_MISSING, path, L"" OV_PREFERENCES_SHOW_DIALOG_EX_NAME));
        FreeLibrary(library);
        return ExitNotStarted;
    }
    const unsigned result = showDialog(nullptr, NullIfEmpty(info.m_defaultPath),
                                       NullIfEmpty(info.m_currentPath), NullIfEmpty(info.m_userName));
    FreeLibrary(library);
    return static_cast<int>(result);
}

} // namespace

int wmain(int count, wchar_t** texts)
{
    DropOwnConsole();
    for (int index = 1; index < count; ++index) {
        const wchar_t* text = texts[index];
        if (std::wcscmp(text, L"--help") == 0 || std::wcscmp(text, L"/?") == 0) {
            ShowText(Usage);
            return 0;
        }
        if (std::wcscmp(text, L"--version") == 0) {
            const ov::Text version = ov::TextFromUtf8(ov::VersionWithRevision());
            ShowText(std::wstring(L"ovPreferencesHost ") + Wide(version));
            return 0;
        }
        if (IsSwitch(text) && !IsKnownSwitch(text)) {
            ShowError(std::wstring(L"Unknown option: ") + text + L"\n\n" + Usage);
            return ExitNotStarted;
        }
    }
    // The library converts the file's bytes with the C locale of the process, which the
    // host has to set. The host is this program. In the default locale "C" each byte
    // would become the character with the same number, whatever the code page of the
    // system is.
    std::setlocale(LC_CTYPE, "");
    CCmdLineInfo info;
    Parse(info, count, texts);
    return ShowDialog(info);
}

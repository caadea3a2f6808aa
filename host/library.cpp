#include "host/library.h"

#include "config/win32_file_port.h"
#include "framework/wide.h"
#include "host/host_output.h"
#include "host/host_texts.h"
#include "include/ovPreferences.h"
#include "launch/core/exit_code.h"
#include "resources/ids.h"

#include <windows.h>
#include <string>

namespace
{

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

const wchar_t* NullIfEmpty(const ov::Text& text)
{
    return text.empty() ? nullptr : Wide(text);
}

} // namespace

int ShowDialog(const ov::Text& defaultPath, const ov::Text& currentPath, const ov::Text& userName)
{
    const std::wstring path = LibraryPath();
    HMODULE library = LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (!library) {
        const DWORD error = GetLastError();
        const bool isMissing = error == ERROR_MOD_NOT_FOUND || error == ERROR_FILE_NOT_FOUND;
        ShowError(HostText(isMissing ? IDS_HOST_LIBRARY_MISSING : IDS_HOST_LIBRARY_DAMAGED,
                           {FromWide(path), SystemErrorText(error)}));
        return ov::kExitNotStarted;
    }
    const auto showDialog = reinterpret_cast<ovPreferences_showDialogEx_t>(
        reinterpret_cast<void*>(GetProcAddress(library, OV_PREFERENCES_SHOW_DIALOG_EX_NAME)));
    if (!showDialog) {
        ShowError(HostText(IDS_HOST_EXPORT_MISSING,
                           {FromWide(path), FromWide(L"" OV_PREFERENCES_SHOW_DIALOG_EX_NAME)}));
        FreeLibrary(library);
        return ov::kExitNotStarted;
    }
    const unsigned result =
        showDialog(nullptr, NullIfEmpty(defaultPath), NullIfEmpty(currentPath), NullIfEmpty(userName));
    FreeLibrary(library);
    return static_cast<int>(result);
}

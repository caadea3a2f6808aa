#include "host/host_output.h"

#include "framework/wide.h"
#include "host/host_texts.h"
#include "resources/ids.h"

#include <windows.h>
#include <string>

namespace
{

// Writes UTF-8 to files and pipes, and UTF-16 characters to a console.
bool WriteTo(DWORD stream, const std::wstring& text)
{
    HANDLE output = GetStdHandle(stream);
    if (!output || output == INVALID_HANDLE_VALUE)
        return false;
    const std::wstring line = text + L"\n";
    const auto length = static_cast<int>(line.size());
    DWORD written = 0;
    DWORD mode = 0;
    if (GetConsoleMode(output, &mode))
        return WriteConsoleW(output, line.data(), static_cast<DWORD>(length), &written, nullptr) != 0;
    std::string bytes(line.size() * 3, '\0');
    const int size = WideCharToMultiByte(CP_UTF8, 0, line.data(), length, bytes.data(),
                                         static_cast<int>(bytes.size()), nullptr, nullptr);
    return WriteFile(output, bytes.data(), static_cast<DWORD>(size), &written, nullptr) != 0;
}

void Show(DWORD stream, UINT icon, const ov::Text& text)
{
    if (!WriteTo(stream, Wide(text)))
        MessageBoxW(nullptr, Wide(text), Wide(HostText(IDS_HOST_CAPTION)), MB_OK | icon | MB_SETFOREGROUND);
}

} // namespace

void DropOwnConsole()
{
    DWORD processes[2] = {};
    HWND console = GetConsoleWindow();
    if (console && IsWindowVisible(console) && GetConsoleProcessList(processes, 2) == 1)
        FreeConsole();
}

void ShowText(const ov::Text& text)
{
    Show(STD_OUTPUT_HANDLE, MB_ICONINFORMATION, text);
}

void ShowError(const ov::Text& text)
{
    Show(STD_ERROR_HANDLE, MB_ICONWARNING, text);
}

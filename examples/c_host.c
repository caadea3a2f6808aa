/*
 * The smallest host in C: linked with the import library, without a window of its
 * own.
 *
 *     c_host DEFAULTS.cfg CURRENT.cfg [USER]
 *
 * The exit code is the library's result, or 2 for wrong arguments.
 */
#include <ovPreferences.h>

#include <windows.h>
#include <locale.h>
#include <shellapi.h>

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR command_line, int show)
{
    unsigned int result;
    int count = 0;
    LPWSTR* arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    (void)instance;
    (void)previous;
    (void)command_line;
    (void)show;
    if (arguments == NULL || count < 3 || count > 4) {
        MessageBoxW(NULL, L"usage: c_host DEFAULTS.cfg CURRENT.cfg [USER]", L"C host", MB_ICONINFORMATION);
        return 2;
    }
    /* The library converts the file's bytes by this locale; see "Files" in the header. */
    setlocale(LC_CTYPE, "");
    result = ovPreferences_showDialogEx(NULL, arguments[1], arguments[2], count == 4 ? arguments[3] : NULL);
    LocalFree(arguments);
    return (int)result;
}

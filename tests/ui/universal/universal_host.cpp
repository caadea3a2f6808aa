// ovUniversalHost [--as-the-header-says] FILE: a host built for the universal C
// runtime alone, which opens the dialog for the file. It does not use the
// compiler's startup code, because that would load the older runtime.
//
// The exit code is that of the call; 100 if the library cannot be loaded, 101 if
// the locale of the older runtime cannot be set.
#include "include/ovPreferences.h"

#include <windows.h>
#include <locale.h>
#include <shellapi.h>

namespace
{

// The lines belong to the host, to which this project's style rules do not apply.
bool SetLocaleAsTheHeaderSays()
{
#include "set_locale_lines.inc"
    return true;
}

unsigned ShowDialog(const wchar_t* file)
{
    const HMODULE library = LoadLibraryW(OV_PREFERENCES_LIBRARY);
    const auto show = reinterpret_cast<ovPreferences_showDialogEx_t>(
        reinterpret_cast<void*>(GetProcAddress(library, OV_PREFERENCES_SHOW_DIALOG_EX_NAME)));
    return show != nullptr ? show(nullptr, L"", file, L"Ada Archer") : 100;
}

unsigned Run()
{
    int count = 0;
    const wchar_t* const* const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    // Sets the locale of this host's runtime, as every host does; the library does not see it.
    setlocale(LC_CTYPE, "");
    if (count > 2 && !SetLocaleAsTheHeaderSays())
        return 101;
    return ShowDialog(arguments[count - 1]);
}

} // namespace

extern "C" void StartUniversalHost()
{
    ExitProcess(Run());
}

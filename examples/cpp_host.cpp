// A host in C++ that owns a window and loads the library when the user asks for
// the dialog.
//
//     cpp_host DEFAULTS.cfg CURRENT.cfg
//
// The button "Preferences..." opens the dialog over the window. The title of the
// window then says how the call has ended.
#include <ovPreferences.h>

#include <windows.h>
#include <clocale>
#include <shellapi.h>
#include <string>

namespace
{

const int ButtonId = 1;

std::wstring defaults_path;
std::wstring current_path;

// From the folder of this program and from nowhere else.
HMODULE LoadPreferences()
{
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, &path[0], static_cast<DWORD>(path.size())));
    path.resize(path.find_last_of(L'\\') + 1);
    return LoadLibraryExW((path + OV_PREFERENCES_LIBRARY).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

std::wstring ShowPreferences(HWND window)
{
    HMODULE library = LoadPreferences();
    if (library == nullptr)
        return L"the library could not be loaded";
    const auto show = reinterpret_cast<ovPreferences_showDialogEx_t>(
        reinterpret_cast<void*>(GetProcAddress(library, OV_PREFERENCES_SHOW_DIALOG_EX_NAME)));
    if (show == nullptr)
        return L"the library has another interface";
    // The window owns the dialog: it is disabled until the dialog is closed.
    const unsigned result =
        show(reinterpret_cast<CWnd*>(window), defaults_path.c_str(), current_path.c_str(), nullptr);
    FreeLibrary(library);
    return result == OV_PREFERENCES_SHOWN ? L"the dialog was shown" : L"the dialog was not shown";
}

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wide, LPARAM parameter)
{
    switch (message) {
    case WM_CREATE:
        CreateWindowW(L"BUTTON", L"&Preferences...", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON,
                      20, 20, 160, 32, window, reinterpret_cast<HMENU>(static_cast<INT_PTR>(ButtonId)),
                      nullptr, nullptr);
        return 0;
    case WM_COMMAND:
        if (LOWORD(wide) == ButtonId)
            SetWindowTextW(window, (L"C++ host: " + ShowPreferences(window)).c_str());
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(window, message, wide, parameter);
    }
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int show)
{
    int count = 0;
    LPWSTR* arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (arguments == nullptr || count != 3) {
        MessageBoxW(nullptr, L"usage: cpp_host DEFAULTS.cfg CURRENT.cfg", L"C++ host", MB_ICONINFORMATION);
        return 2;
    }
    defaults_path = arguments[1];
    current_path = arguments[2];
    LocalFree(arguments);
    // The library converts the file's bytes by this locale; see "Files" in the header.
    std::setlocale(LC_CTYPE, "");

    WNDCLASSW window_class = {};
    window_class.lpfnWndProc = WindowProcedure;
    window_class.hInstance = instance;
    window_class.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    window_class.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    window_class.lpszClassName = L"ovPreferencesExample";
    RegisterClassW(&window_class);
    HWND window = CreateWindowW(window_class.lpszClassName, L"C++ host", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                                CW_USEDEFAULT, 420, 160, nullptr, nullptr, instance, nullptr);
    ShowWindow(window, show);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (!IsDialogMessageW(window, &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    return static_cast<int>(message.wParam);
}

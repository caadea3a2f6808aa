#include "framework/window_resolution.h"

namespace
{

/// Functions of newer Windows versions; null if missing.
struct ResolutionFunctions {
    UINT(WINAPI* windowResolution)(HWND);
    UINT(WINAPI* systemResolution)();
    int(WINAPI* metrics)(int, UINT);
    DPI_AWARENESS_CONTEXT(WINAPI* awareness)(HWND);
    BOOL(WINAPI* isSameAwareness)(DPI_AWARENESS_CONTEXT, DPI_AWARENESS_CONTEXT);
    BOOL(WINAPI* setDialogScaling)(HWND, DIALOG_DPI_CHANGE_BEHAVIORS, DIALOG_DPI_CHANGE_BEHAVIORS);
};

template <class Function>
void Find(Function& function, const char* name)
{
    const HMODULE user = ::GetModuleHandleW(L"user32.dll");
    function = reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(user, name)));
}

ResolutionFunctions FindFunctions()
{
    ResolutionFunctions functions{};
    Find(functions.windowResolution, "GetDpiForWindow");
    Find(functions.systemResolution, "GetDpiForSystem");
    Find(functions.metrics, "GetSystemMetricsForDpi");
    Find(functions.awareness, "GetWindowDpiAwarenessContext");
    Find(functions.isSameAwareness, "AreDpiAwarenessContextsEqual");
    Find(functions.setDialogScaling, "SetDialogDpiChangeBehavior");
    return functions;
}

const ResolutionFunctions& Functions()
{
    static const ResolutionFunctions functions = FindFunctions();
    return functions;
}

UINT ScreenResolution()
{
    if (Functions().systemResolution != nullptr)
        return Functions().systemResolution();
    const HDC screen = ::GetDC(nullptr);
    const int resolution = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    return static_cast<UINT>(resolution);
}

// Only per-monitor awareness version 2 scales frames and dialogs.
bool HasFollowingFrame(HWND window)
{
    const ResolutionFunctions& functions = Functions();
    return functions.windowResolution != nullptr && functions.awareness != nullptr &&
           functions.isSameAwareness != nullptr &&
           functions.isSameAwareness(functions.awareness(window), DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
}

} // namespace

UINT AfxGetWindowResolution(HWND window)
{
    const auto ask = Functions().windowResolution;
    const UINT resolution = ask != nullptr ? ask(window) : 0;
    return resolution != 0 ? resolution : ScreenResolution();
}

UINT AfxGetFrameResolution(HWND window)
{
    return HasFollowingFrame(window) ? AfxGetWindowResolution(window) : ScreenResolution();
}

int AfxGetMetrics(int index, UINT resolution)
{
    if (Functions().metrics != nullptr)
        return Functions().metrics(index, resolution);
    return ::MulDiv(::GetSystemMetrics(index), static_cast<int>(resolution),
                    static_cast<int>(ScreenResolution()));
}

int AfxGetFrameMetrics(HWND window, int index)
{
    return HasFollowingFrame(window) ? AfxGetMetrics(index, AfxGetWindowResolution(window))
                                     : ::GetSystemMetrics(index);
}

void AfxDisableDialogScaling(HWND dialog)
{
    if (Functions().setDialogScaling != nullptr)
        Functions().setDialogScaling(dialog, DDC_DISABLE_ALL, DDC_DISABLE_ALL);
}

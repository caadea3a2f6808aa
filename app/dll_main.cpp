#include "framework/afxwin.h"

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
        return AfxInitLibrary(instance);
    if (reason == DLL_PROCESS_DETACH)
        AfxTermLibrary();
    return TRUE;
}

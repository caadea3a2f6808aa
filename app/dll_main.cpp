#include "framework/afxwin.h"

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID processEnds)
{
    if (reason == DLL_PROCESS_ATTACH)
        return AfxInitLibrary(instance);
    // When the process ends, other threads may have been killed while holding a lock.
    // The system frees all resources anyway.
    if (reason == DLL_PROCESS_DETACH && processEnds == nullptr)
        AfxTermLibrary();
    return TRUE;
}

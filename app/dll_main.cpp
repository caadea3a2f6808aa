#include "framework/afxwin.h"

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID processEnds)
{
    if (reason == DLL_PROCESS_ATTACH)
        return AfxInitLibrary(instance);
    // When the whole process ends, other threads may have died holding a lock;
    // the system takes everything back anyway.
    if (reason == DLL_PROCESS_DETACH && processEnds == nullptr)
        AfxTermLibrary();
    return TRUE;
}

#include "framework/com_apartment.h"

#include "framework/windows_api.h"

#include <objbase.h>

// S_FALSE means that the thread was already initialised in this way; it needs a matching
// CoUninitialize too. RPC_E_CHANGED_MODE does not: the apartment that the host chose is used.
CComApartment::CComApartment()
    : m_entered(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)))
{
}

CComApartment::~CComApartment()
{
    if (m_entered)
        ::CoUninitialize();
}

#include "framework/com_apartment.h"

#include "framework/windows_api.h"

#include <objbase.h>

// S_FALSE, for a thread that was set up so before, counts as an entry and is to be
// paid back too; RPC_E_CHANGED_MODE does not, and the host's choice is good enough.
CComApartment::CComApartment()
    : m_entered(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)))
{
}

CComApartment::~CComApartment()
{
    if (m_entered)
        ::CoUninitialize();
}

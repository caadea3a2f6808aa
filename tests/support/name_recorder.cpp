#include "tests/support/name_recorder.h"

// Defines the identifiers of the next header.
#include <initguid.h>
#include <oleacc.h>

// Interfaces have no virtual destructors; nothing is deleted through one.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace uidriver
{

namespace
{

/// Lives as long as its owner, independent of references.
template <class Interface, const IID& InterfaceId>
class Owned : public Interface
{
  public:
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override
    {
        const bool known = id == IID_IUnknown || id == InterfaceId;
        *result = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
};

} // namespace

class NameRecorder::Service final : public Owned<IAccPropServices, IID_IAccPropServices>
{
  public:
    explicit Service(NameRequests& requests) : m_requests(requests) {}

    HRESULT STDMETHODCALLTYPE SetHwndPropStr(HWND window, DWORD object, DWORD child, MSAAPROPID property,
                                             LPCWSTR text) override
    {
        if (!IsName(window, object, child, property))
            return E_INVALIDARG;
        m_requests.names[window] = text;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE ClearHwndProps(HWND window, DWORD object, DWORD child,
                                             const MSAAPROPID* properties, int count) override
    {
        if (count != 1 || !IsName(window, object, child, *properties) || m_requests.names.erase(window) == 0)
            return E_INVALIDARG;
        m_requests.cleared.push_back(window);
        return S_OK;
    }

    // Not used by the program.
    HRESULT STDMETHODCALLTYPE SetPropValue(const BYTE*, DWORD, MSAAPROPID, VARIANT) override
    {
        return Fail();
    }
    HRESULT STDMETHODCALLTYPE SetPropServer(const BYTE*, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                            AnnoScope) override
    {
        return Fail();
    }
    HRESULT STDMETHODCALLTYPE ClearProps(const BYTE*, DWORD, const MSAAPROPID*, int) override
    {
        return Fail();
    }
    HRESULT STDMETHODCALLTYPE SetHwndProp(HWND, DWORD, DWORD, MSAAPROPID, VARIANT) override { return Fail(); }
    HRESULT STDMETHODCALLTYPE SetHwndPropServer(HWND, DWORD, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                                AnnoScope) override
    {
        return Fail();
    }
    HRESULT STDMETHODCALLTYPE ComposeHwndIdentityString(HWND, DWORD, DWORD, BYTE**, DWORD*) override
    {
        return Fail();
    }
    HRESULT STDMETHODCALLTYPE DecomposeHwndIdentityString(const BYTE*, DWORD, HWND*, DWORD*, DWORD*) override
    {
        return Fail();
    }
    HRESULT STDMETHODCALLTYPE SetHmenuProp(HMENU, DWORD, MSAAPROPID, VARIANT) override { return Fail(); }
    HRESULT STDMETHODCALLTYPE SetHmenuPropStr(HMENU, DWORD, MSAAPROPID, LPCWSTR) override { return Fail(); }
    HRESULT STDMETHODCALLTYPE SetHmenuPropServer(HMENU, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                                 AnnoScope) override
    {
        return Fail();
    }
    HRESULT STDMETHODCALLTYPE ClearHmenuProps(HMENU, DWORD, const MSAAPROPID*, int) override
    {
        return Fail();
    }
    HRESULT STDMETHODCALLTYPE ComposeHmenuIdentityString(HMENU, DWORD, BYTE**, DWORD*) override
    {
        return Fail();
    }
    HRESULT STDMETHODCALLTYPE DecomposeHmenuIdentityString(const BYTE*, DWORD, HMENU*, DWORD*) override
    {
        return Fail();
    }

  private:
    bool IsName(HWND window, DWORD object, DWORD child, const MSAAPROPID& property)
    {
        const bool is = IsWindow(window) && object == static_cast<DWORD>(OBJID_CLIENT) &&
                        child == CHILDID_SELF && property == PROPID_ACC_NAME;
        m_requests.failures += is ? 0 : 1;
        return is;
    }
    HRESULT Fail()
    {
        ++m_requests.failures;
        return E_NOTIMPL;
    }

    NameRequests& m_requests;
};

class NameRecorder::Factory final : public Owned<IClassFactory, IID_IClassFactory>
{
  public:
    explicit Factory(Service& service) : m_service(service) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** result) override
    {
        return m_service.QueryInterface(id, result);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

  private:
    Service& m_service;
};

NameRecorder::NameRecorder(NameRequests& requests)
    : m_service(std::make_unique<Service>(requests)), m_factory(std::make_unique<Factory>(*m_service))
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    CoRegisterClassObject(CLSID_AccPropServices, m_factory.get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                          &m_registration);
}

NameRecorder::~NameRecorder()
{
    CoRevokeClassObject(m_registration);
    CoUninitialize();
}

std::wstring SystemName(HWND control)
{
    IAccessible* accessible = nullptr;
    if (FAILED(AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                          reinterpret_cast<void**>(&accessible))))
        return {};
    VARIANT self = {};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR text = nullptr;
    accessible->get_accName(self, &text);
    std::wstring name = text != nullptr ? text : L"";
    SysFreeString(text);
    accessible->Release();
    return name;
}

} // namespace uidriver

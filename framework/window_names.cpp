#include "framework/window_names.h"

#include "framework/wide.h"

// Defines the identifiers of the next header.
#include <initguid.h>
#include <oleacc.h>
#include <utility>

namespace
{
// The object that a screen reader queries for the inside of a control.
constexpr auto object = static_cast<DWORD>(OBJID_CLIENT);
} // namespace

void CWindowNames::Set(HWND window, const ov::Text& name)
{
    if (!m_apartment)
        m_apartment.emplace();
    if (!std::exchange(m_servicesTried, true)) {
        void* services = nullptr;
        if (SUCCEEDED(::CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                                         IID_IAccPropServices, &services)))
            m_services = static_cast<IAccPropServices*>(services);
    }
    if (m_services != nullptr &&
        SUCCEEDED(m_services->SetHwndPropStr(window, object, CHILDID_SELF, PROPID_ACC_NAME, Wide(name))))
        m_named.push_back(window);
}

void CWindowNames::Clear()
{
    for (const HWND window : m_named)
        m_services->ClearHwndProps(window, object, CHILDID_SELF, &PROPID_ACC_NAME, 1);
    m_named.clear();
    if (m_services != nullptr)
        m_services->Release();
    m_services = nullptr;
    m_servicesTried = false;
}

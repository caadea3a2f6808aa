#pragma once

#include "base/text.h"
#include "framework/com_apartment.h"
#include "framework/windows_api.h"

#include <optional>
#include <vector>

struct IAccPropServices;

/// What screen readers call windows that neither show their name nor follow a
/// label. Call Clear before the windows are destroyed.
///
/// The first name makes the calling thread one that may use COM. Only the
/// destructor leaves COM again: leaving it can dispatch messages, which a window
/// that is being destroyed must not receive.
class CWindowNames
{
  public:
    CWindowNames() = default;
    ~CWindowNames() { Clear(); }
    CWindowNames(const CWindowNames&) = delete;
    CWindowNames& operator=(const CWindowNames&) = delete;

    /// Names the window. Where the system keeps no such names, nothing happens.
    void Set(HWND window, const ov::Text& name);

    /// Takes all names back. COM stays.
    void Clear();

  private:
    std::optional<CComApartment> m_apartment; ///< none until the first name
    bool m_servicesTried = false;
    IAccPropServices* m_services = nullptr; ///< null where the system has no such service
    std::vector<HWND> m_named;
};

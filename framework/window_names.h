#pragma once

#include "base/text.h"
#include "framework/com_apartment.h"
#include "framework/windows_api.h"

#include <optional>
#include <vector>

struct IAccPropServices;

/// Accessible names of windows that neither show their name nor follow a label.
/// Call Clear before the windows are destroyed.
///
/// The first Set initialises COM on the calling thread. Only the destructor
/// uninitialises it: doing so can dispatch messages, and a window that is being
/// destroyed must not receive them.
class CWindowNames
{
  public:
    CWindowNames() = default;
    ~CWindowNames() { Clear(); }
    CWindowNames(const CWindowNames&) = delete;
    CWindowNames& operator=(const CWindowNames&) = delete;

    /// Names the window. Does nothing if the system does not support such names.
    void Set(HWND window, const ov::Text& name);

    /// Removes all names. COM stays initialised.
    void Clear();

  private:
    std::optional<CComApartment> m_apartment; ///< empty until the first name is set
    bool m_servicesTried = false;
    IAccPropServices* m_services = nullptr; ///< null if the system has no such service
    std::vector<HWND> m_named;
};

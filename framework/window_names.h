#pragma once

#include "base/text.h"
#include "framework/com_apartment.h"
#include "framework/windows_api.h"

#include <optional>
#include <vector>

struct IAccPropServices;

/// What screen readers call windows that neither show their name nor follow a
/// label. The names belong to this object, which goes before their windows do.
class CWindowNames
{
  public:
    CWindowNames() = default;
    ~CWindowNames() { Clear(); }
    CWindowNames(const CWindowNames&) = delete;
    CWindowNames& operator=(const CWindowNames&) = delete;

    /// Names the window. Where the system keeps no such names, nothing happens.
    void Set(HWND window, const ov::Text& name);

    /// Takes all names back.
    void Clear();

  private:
    std::optional<CComApartment> m_apartment; ///< none until the first name
    IAccPropServices* m_services = nullptr;
    std::vector<HWND> m_named;
};

/// Records the accessible names that a program sets.
#pragma once

#include <windows.h>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace uidriver
{

/// The requests of a program to the system's service for accessible names. Some
/// systems do not support the service, so NameRecorder replaces it.
struct NameRequests {
    std::map<HWND, std::wstring> names; ///< the present names
    std::vector<HWND> cleared;          ///< the windows whose names were removed
    int failures = 0;                   ///< requests for another property than the name, or without a window
};

/// Replaces the service for objects that the constructing thread creates while the
/// recorder exists. That thread must own the windows to be named. Do not read the
/// requests while another thread is running on.
class NameRecorder
{
  public:
    explicit NameRecorder(NameRequests& requests);
    ~NameRecorder();
    NameRecorder(const NameRecorder&) = delete;
    NameRecorder& operator=(const NameRecorder&) = delete;

    /// Whether the system accepted the replacement.
    bool IsRegistered() const { return m_registration != 0; }

  private:
    class Service;
    class Factory;

    std::unique_ptr<Service> m_service;
    std::unique_ptr<Factory> m_factory;
    DWORD m_registration = 0;
};

/// The name that the system itself reports for a control; empty for none.
std::wstring SystemName(HWND control);

} // namespace uidriver

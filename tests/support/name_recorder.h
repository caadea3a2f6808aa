/// Seeing what windows are called to screen readers.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace uidriver
{

/// What a program asks of the system's service for such names. The service
/// itself does not take them everywhere, so that this one stands in for it.
struct NameRequests {
    std::map<HWND, std::wstring> names; ///< as they are now
    std::vector<HWND> cleared;          ///< whose names were taken back
    int failures = 0;                   ///< requests for other than a window's name, or for no window
};

/// Stands in for the service to what the constructing thread creates until
/// then; the thread is the one whose windows are to be named. The requests must
/// not be read while that thread runs on.
class NameRecorder
{
  public:
    explicit NameRecorder(NameRequests& requests);
    ~NameRecorder();
    NameRecorder(const NameRecorder&) = delete;
    NameRecorder& operator=(const NameRecorder&) = delete;

    /// Whether the system lets it stand in.
    bool IsRegistered() const { return m_registration != 0; }

  private:
    class Service;
    class Factory;

    std::unique_ptr<Service> m_service;
    std::unique_ptr<Factory> m_factory;
    DWORD m_registration = 0;
};

/// The name that the system itself tells of a control; empty for none.
std::wstring SystemName(HWND control);

} // namespace uidriver

/// Processes and the resources that they use.
#pragma once

#include "tests/support/await.h"

#include <windows.h>
#include <string>
#include <vector>

namespace uidriver
{

/// The resources of this process, for leak tests over many rounds.
struct Resources {
    unsigned gdiObjects = 0;
    unsigned userObjects = 0;  ///< windows, menus, icons and cursors
    std::size_t heapBytes = 0; ///< allocated bytes in all heaps
    std::size_t privateBytes = 0;
};

/// Measures the present resources of this process. Takes up to a second.
Resources MeasureResources();

/// Counts the handles of MeasureResources separately; counting USER objects takes most of its time.
unsigned CountGdiObjects();
unsigned CountUserObjects();

/// "12 GDI objects, 40 USER objects, ..." for a failure message.
std::string Describe(const Resources& resources);

/// A process that was started. The destructor closes the handle but does not end
/// the process.
class Process
{
  public:
    /// Starts the program; an argument may contain blanks and quotes.
    /// IsStarted() returns whether that succeeded.
    Process(const std::wstring& program, const std::vector<std::wstring>& arguments);
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    bool IsStarted() const { return m_handle != nullptr; }
    bool IsRunning() const;
    DWORD Id() const { return m_id; }
    /// Waits until it ends. False at the deadline.
    bool AwaitEnd(unsigned deadline = DefaultDeadline) const;
    /// The exit code; STILL_ACTIVE while it runs.
    DWORD ExitCode() const;

  private:
    HANDLE m_handle = nullptr;
    DWORD m_id = 0;
};

/// Quotes one argument so that the C runtime reads it back unchanged.
std::wstring QuoteArgument(const std::wstring& argument);

} // namespace uidriver

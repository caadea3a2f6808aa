#pragma once

namespace ov::test
{

/// While it exists, operator new fails on this thread.
class NoMemory
{
  public:
    NoMemory();
    ~NoMemory();
    NoMemory(const NoMemory&) = delete;
    NoMemory& operator=(const NoMemory&) = delete;
};

} // namespace ov::test

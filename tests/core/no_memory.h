#pragma once

namespace ov::test
{

/// While it exists, this thread gets no memory from operator new.
class NoMemory
{
  public:
    NoMemory();
    ~NoMemory();
    NoMemory(const NoMemory&) = delete;
    NoMemory& operator=(const NoMemory&) = delete;
};

} // namespace ov::test

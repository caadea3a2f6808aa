#pragma once

namespace ov::test
{

/// While it stands, this thread gets no memory from operator new.
class NoMemory
{
  public:
    NoMemory();
    ~NoMemory();
    NoMemory(const NoMemory&) = delete;
    NoMemory& operator=(const NoMemory&) = delete;
};

} // namespace ov::test

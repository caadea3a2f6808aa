#include "tests/core/no_memory.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace
{

thread_local bool noMemory = false;

} // namespace

namespace ov::test
{

NoMemory::NoMemory()
{
    noMemory = true;
}

NoMemory::~NoMemory()
{
    noMemory = false;
}

} // namespace ov::test

// Replaces all forms of operator new that the plain operator delete frees.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return noMemory ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void* operator new(std::size_t size)
{
    void* const room = operator new(size, std::nothrow);
    if (room == nullptr)
        throw std::bad_alloc();
    return room;
}

void operator delete(void* room) noexcept
{
    std::free(room);
}

void operator delete(void* room, std::size_t) noexcept
{
    std::free(room);
}

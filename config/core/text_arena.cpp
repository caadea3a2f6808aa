#include "config/core/text_arena.h"

#include <algorithm>

namespace ov
{

char* TextArena::Allocate(std::size_t bytes)
{
    // The block size grows with the arena: few blocks for a large table, little waste in a small one.
    constexpr std::size_t kSmallestBlock = std::size_t{8} * 1024;
    constexpr std::size_t kLargestBlock = std::size_t{4} * 1024 * 1024;
    bytes += bytes % 2;
    if (bytes > m_freeBytes) {
        const std::size_t usual = std::clamp(m_total / 8, kSmallestBlock, kLargestBlock);
        // A long text gets a block of its own, so that the rest of the current block stays usable.
        const bool alone = bytes > usual / 4;
        const std::size_t size = alone ? bytes : usual;
        m_blocks.push_back(std::make_unique_for_overwrite<char[]>(size));
        m_total += size;
        if (alone)
            return m_blocks.back().get();
        m_free = m_blocks.back().get();
        m_freeBytes = size;
    }
    char* room = m_free;
    m_free += bytes;
    m_freeBytes -= bytes;
    return room;
}

} // namespace ov

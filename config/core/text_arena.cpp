#include "config/core/text_arena.h"

namespace ov
{

char16_t* TextArena::Allocate(std::size_t length)
{
    constexpr std::size_t kBlockLength = std::size_t{32} * 1024;
    if (length > m_freeLength) {
        // A long text gets a block of its own, so that the rest of the present one stays of use.
        const bool alone = length > kBlockLength / 4;
        const std::size_t size = alone ? length : kBlockLength;
        m_blocks.push_back(std::make_unique_for_overwrite<char16_t[]>(size));
        if (alone)
            return m_blocks.back().get();
        m_free = m_blocks.back().get();
        m_freeLength = size;
    }
    char16_t* room = m_free;
    m_free += length;
    m_freeLength -= length;
    return room;
}

} // namespace ov

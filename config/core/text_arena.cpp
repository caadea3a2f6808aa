#include "config/core/text_arena.h"

namespace ov
{

char16_t* TextArena::Allocate(std::size_t length)
{
    constexpr std::size_t blockLength = std::size_t{32} * 1024;
    if (length > free_length_) {
        // A long text gets a block of its own, so that the rest of the present one stays of use.
        const bool alone = length > blockLength / 4;
        const std::size_t size = alone ? length : blockLength;
        blocks_.push_back(std::make_unique_for_overwrite<char16_t[]>(size));
        if (alone)
            return blocks_.back().get();
        free_ = blocks_.back().get();
        free_length_ = size;
    }
    char16_t* room = free_;
    free_ += length;
    free_length_ -= length;
    return room;
}

} // namespace ov

#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace ov
{

/// Room for many texts that live and die together. Grows in blocks and never moves a text.
class TextArena
{
  public:
    TextArena() = default;
    TextArena(TextArena&& other) noexcept { *this = std::move(other); }
    TextArena& operator=(TextArena&& other) noexcept
    {
        blocks_ = std::move(other.blocks_);
        other.blocks_.clear();
        free_ = std::exchange(other.free_, nullptr);
        free_length_ = std::exchange(other.free_length_, 0);
        return *this;
    }

    /// Room for `length` units, not initialised; stands until the arena is destroyed.
    char16_t* Allocate(std::size_t length);

  private:
    std::vector<std::unique_ptr<char16_t[]>> blocks_;
    char16_t* free_ = nullptr;
    std::size_t free_length_ = 0;
};

} // namespace ov

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
        m_blocks = std::move(other.m_blocks);
        other.m_blocks.clear();
        m_free = std::exchange(other.m_free, nullptr);
        m_freeLength = std::exchange(other.m_freeLength, 0);
        return *this;
    }

    /// Room for `length` units, not initialised; stands until the arena is destroyed.
    char16_t* Allocate(std::size_t length);

  private:
    std::vector<std::unique_ptr<char16_t[]>> m_blocks;
    char16_t* m_free = nullptr;
    std::size_t m_freeLength = 0;
};

} // namespace ov

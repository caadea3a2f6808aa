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
        m_total = std::exchange(other.m_total, 0);
        m_free = std::exchange(other.m_free, nullptr);
        m_freeBytes = std::exchange(other.m_freeBytes, 0);
        return *this;
    }

    /// Room for so many bytes, not initialised and on an even address; valid until the arena is
    /// destroyed.
    char* Allocate(std::size_t bytes);

    /// The bytes of all blocks together.
    std::size_t Total() const { return m_total; }

  private:
    std::vector<std::unique_ptr<char[]>> m_blocks;
    std::size_t m_total = 0;
    char* m_free = nullptr;
    std::size_t m_freeBytes = 0;
};

} // namespace ov

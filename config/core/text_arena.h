#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace ov
{

/// Memory for many texts that are freed together. Grows in blocks and never moves a text.
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

    /// Allocates `bytes` bytes, uninitialised and at an even address. They are valid until the arena is
    /// destroyed.
    char* Allocate(std::size_t bytes);

    /// The total size of all blocks in bytes.
    std::size_t Total() const { return m_total; }

  private:
    std::vector<std::unique_ptr<char[]>> m_blocks;
    std::size_t m_total = 0;
    char* m_free = nullptr;
    std::size_t m_freeBytes = 0;
};

} // namespace ov

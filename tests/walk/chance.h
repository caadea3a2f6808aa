/// The random choices of a walk. The same seed makes the same choices.
#pragma once

#include <random>
#include <string>
#include <vector>

namespace walk
{

class Chance
{
  public:
    explicit Chance(unsigned seed) : m_random(seed) {}

    /// A number from `first` to `last`, both included.
    int Number(int first, int last);
    bool Percent(int percent) { return Number(1, 100) <= percent; }

    template <class Type>
    const Type& OneOf(const std::vector<Type>& choices)
    {
        return choices[static_cast<std::size_t>(Number(0, static_cast<int>(choices.size()) - 1))];
    }

    /// What users and programs put into edits: words, numbers, lists, and texts that break parsers.
    std::wstring OddText();

    std::mt19937& Generator() { return m_random; }

  private:
    std::wstring Words();

    std::mt19937 m_random;
};

/// Whether the file's character set has no room for the text: the tests run in the "C" locale, which
/// knows Latin-1 only.
bool IsUnwritable(const std::wstring& text);

/// Whether the text, alone in a list, makes a list without an entry, which no save writes.
bool IsEmptyList(const std::wstring& text);

} // namespace walk

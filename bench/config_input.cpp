#include "bench/config_input.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <numeric>
#include <random>
#include <vector>

namespace ov::bench
{
namespace
{

constexpr std::array kWords = {"the",  "cells",    "of",       "a",        "design",  "file",
                               "are",  "checked",  "when",     "this",     "setting", "is",
                               "on",   "each",     "standard", "reported", "level",   "for",
                               "user", "Orthoval", "name",     "models",   "and",     "colours"};

class Generator
{
  public:
    std::string Sentence(int words)
    {
        std::string text;
        for (int i = 0; i < words; ++i) {
            if (i > 0)
                text += ' ';
            text += kWords[Below(kWords.size())];
        }
        return text;
    }

    std::string Value()
    {
        switch (Below(4)) {
        case 0:
            return Below(2) == 0 ? "0" : "1";
        case 1:
            return std::to_string(Below(10000));
        case 2:
            return '"' + Sentence(3).append("\"");
        default:
            return "C:\\orthoval\\" + std::to_string(Below(1000)) + "\\";
        }
    }

    std::size_t Below(std::size_t limit) { return m_engine() % limit; }

  private:
    std::mt19937 m_engine{20261120}; // A fixed seed: every run measures the same bytes.
};

} // namespace

std::string MakeConfigFile(int variables, bool inOrder, const char* prefix)
{
    Generator generator;
    std::vector<int> numbers(static_cast<std::size_t>(variables));
    std::iota(numbers.begin(), numbers.end(), 0);
    if (!inOrder)
        std::shuffle(numbers.begin(), numbers.end(), std::mt19937{20261121});
    std::string bytes = "#\r\n# A header.\r\n#\r\n";
    for (const int number : numbers) {
        std::array<char, 32> name{};
        std::snprintf(name.data(), name.size(), "%s%07d", prefix, number);
        bytes += "\r\n#\r\n";
        const std::size_t lines = 2 + generator.Below(2);
        for (std::size_t line = 0; line < lines; ++line)
            bytes.append("# ").append(generator.Sentence(15)).append("\r\n");
        bytes += "#\r\n";
        bytes.append(name.data()).append(" = ").append(generator.Value()).append("\r\n");
    }
    return bytes;
}

std::string MakeListFile(int lines, char operation)
{
    std::string bytes = "\r\n_ORTHOVAL_BENCH_LIST = x\r\n";
    for (int i = 0; i < lines; ++i)
        bytes.append("_ORTHOVAL_BENCH_LIST ").append(1, operation).append(" x\r\n");
    return bytes;
}

} // namespace ov::bench

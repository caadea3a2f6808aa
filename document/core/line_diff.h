#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace ov
{

/// A range of lines that was replaced by another one; either may be empty. Positions count from 0. The
/// position of an empty range is where its lines would be.
struct LineChange {
    std::size_t oldStart;
    std::size_t oldCount;
    std::size_t newStart;
    std::size_t newCount;

    bool operator==(const LineChange&) const = default;
};

/// The lines of a text with their line ends. LF ends a line; the last line may have no line end.
std::vector<std::string_view> LinesWithEnds(std::string_view bytes);

/// The changes that turn the old lines into the new ones, in ascending order. At least one common line
/// separates two changes. The result is small but not always minimal: lines that are unique in both
/// texts are matched first, so that the time is nearly proportional to the length for any input.
std::vector<LineChange> DiffLines(std::span<const std::string_view> oldLines,
                                  std::span<const std::string_view> newLines);

} // namespace ov

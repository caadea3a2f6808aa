#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace ov
{

/// A run of lines that was replaced by another one; one of them may be empty. Positions count from 0;
/// that of an empty run is where its lines would be.
struct LineChange {
    std::size_t oldStart;
    std::size_t oldCount;
    std::size_t newStart;
    std::size_t newCount;

    bool operator==(const LineChange&) const = default;
};

/// The lines of a text with their line ends. LF ends a line; the last one may have none.
std::vector<std::string_view> LinesWithEnds(std::string_view bytes);

/// What turns the old lines into the new ones, in ascending order. Between two changes there is at
/// least one common line. The result is small but not always the smallest: lines that occur once in
/// both texts come first, so that the time is nearly proportional to the length, whatever the lines.
std::vector<LineChange> DiffLines(std::span<const std::string_view> oldLines,
                                  std::span<const std::string_view> newLines);

} // namespace ov

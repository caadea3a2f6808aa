#pragma once

#include "inspect/core/merge_output.h"
#include "inspect/core/merge_side.h"

namespace ov
{

/// Merges the lines that belong to no variable: directives and the lines that depend on them, ignored
/// lines, comments without a variable, and the header. Returns false if there is a
/// conflict, which the output then contains between markers.
bool MergeOtherLines(const MergeSide& base, const MergeSide& ours, const MergeSide& theirs,
                     MergeOutput& output);

} // namespace ov

#pragma once

#include "inspect/core/merge_output.h"
#include "inspect/core/merge_side.h"

namespace ov
{

/// Merges the lines that belong to no variable: directives and what depends on them, lines that the
/// reader ignores, comments that no variable takes, and the header. Returns false when there is a
/// conflict, which is in the output between markers.
bool MergeOtherLines(const MergeSide& base, const MergeSide& ours, const MergeSide& theirs,
                     MergeOutput& output);

} // namespace ov

#pragma once

#include "base/locale_text.h"
#include "document/core/variable_facts.h"

#include <string>
#include <string_view>
#include <vector>

namespace ov
{

/// A file to be merged.
struct MergeInput {
    std::string_view bytes;
    Charset charset;
};

/// The result of a merge.
struct MergeResult {
    std::string bytes;           ///< Our file with their changes.
    std::vector<Text> conflicts; ///< Variables with both versions between conflict markers.
    bool otherLines = false;     ///< True if lines that belong to no variable are between conflict markers.

    bool IsClean() const { return conflicts.empty() && !otherLines; }
};

/// Merges two files that were derived from a common base. Variables are compared by value and comment,
/// so the order of lines does not matter; lists are merged entry by entry. The result is our file, with
/// the lines changed in which theirs differs from the base. If both sides changed something in
/// different ways, it is a conflict: both versions are put between lines of "<<<<<<<", "=======" and
/// ">>>>>>>". Our header is kept if either header is in the form that Save writes.
MergeResult MergeFiles(const MergeInput& base, const MergeInput& ours, const MergeInput& theirs,
                       const FactsOf& factsOf);

} // namespace ov

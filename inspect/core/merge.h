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

/// What came of a merge.
struct MergeResult {
    std::string bytes;           ///< Our file with their changes.
    std::vector<Text> conflicts; ///< Variables with both versions between markers.
    bool otherLines = false;     ///< Lines that belong to no variable are between markers.

    bool IsClean() const { return conflicts.empty() && !otherLines; }
};

/// Merges two files that were changed from a common one. Variables are compared by their values and
/// comments, so that the order of the lines does not matter; lists merge entry by entry. The result is
/// our file with the lines changed in which theirs differs from the common one. What both changed in
/// different ways is a conflict: both versions are put between lines of "<<<<<<<", "=======" and
/// ">>>>>>>". Our header stays where either header is as Save writes it.
MergeResult MergeFiles(const MergeInput& base, const MergeInput& ours, const MergeInput& theirs,
                       const FactsOf& factsOf);

} // namespace ov
